# floor(NAME SOURCES file... LINKS lib...): a static library of these sources of a folder, on the libraries that it may know.
function(floor NAME)
  cmake_parse_arguments(ARG "" "" "SOURCES;LINKS" ${ARGN})
  add_library(${NAME} STATIC ${ARG_SOURCES})
  set_target_properties(${NAME} PROPERTIES AUTOMOC ON)
  target_include_directories(${NAME} PUBLIC ${PROJECT_SOURCE_DIR}/src)
  target_link_libraries(${NAME} PUBLIC ${ARG_LINKS} PRIVATE warnings)
endfunction()
