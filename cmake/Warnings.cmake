# Every target links this; each warning says why it is here.
add_library(warnings INTERFACE)
target_compile_options(warnings INTERFACE
  -Wall -Wextra         # what the compiler itself finds worth saying
  -Wpedantic            # the code is to build with other compilers
  -Wshadow              # a local that hides a member is misread sooner or later
  -Wconversion          # twips, pixels and bytes meet here: no silent narrowing
  -Wnon-virtual-dtor    # clocks and messages are replaced through their base
  -Woverloaded-virtual  # an event handler with the wrong signature is never called
  -Wold-style-cast      # a cast must be findable
  -Wnull-dereference    # found at -O2
  $<$<CXX_COMPILER_ID:GNU>:-Wduplicated-cond> $<$<CXX_COMPILER_ID:GNU>:-Wlogical-op>  # copied conditions; only g++ knows these
  $<$<CXX_COMPILER_ID:Clang>:-Wno-sign-conversion>          # clang++ counts it to -Wconversion, g++ does not
)
if(RASTERATELIER_WERROR)
  target_compile_options(warnings INTERFACE -Werror)
endif()
