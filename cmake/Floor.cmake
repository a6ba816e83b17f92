# with_windows(NAME): its sources take the toolkit's headers from what platform/ has compiled of them.
function(with_windows NAME)
  target_precompile_headers(${NAME} REUSE_FROM platform)
  target_compile_definitions(${NAME} PRIVATE QT_PRINTSUPPORT_LIB QT_SVG_LIB) # as there: the compiler asks for the same ones
endfunction()

# floor(NAME SOURCES file... LINKS lib...): a static library of these sources of a folder, on the libraries that it may know.
function(floor NAME)
  cmake_parse_arguments(ARG "" "" "SOURCES;LINKS" ${ARGN})
  add_library(${NAME} STATIC ${ARG_SOURCES})
  set_target_properties(${NAME} PROPERTIES AUTOMOC ON)
  target_include_directories(${NAME} PUBLIC ${PROJECT_SOURCE_DIR}/src)
  target_link_libraries(${NAME} PUBLIC ${ARG_LINKS} PRIVATE warnings)
  if(NAME MATCHES "_engine$")
    target_precompile_headers(${NAME} REUSE_FROM platform_core)
  elseif(NOT NAME MATCHES "^platform")
    with_windows(${NAME})
  endif()
endfunction()
