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
  -Wduplicated-cond -Wlogical-op  # copied conditions
)
if(RASTERATELIER_WERROR)
  target_compile_options(warnings INTERFACE -Werror)
endif()
if(RASTERATELIER_ASAN)
  target_compile_options(warnings INTERFACE -fsanitize=address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer)
  target_link_options(warnings INTERFACE -fsanitize=address,undefined)
endif()
