# floor(NAME LINKS lib...): the static library of one folder, from all the sources named in SOURCES.
function(floor NAME)
  cmake_parse_arguments(ARG "" "" "SOURCES;LINKS" ${ARGN})
  add_library(${NAME} STATIC ${ARG_SOURCES})
  set_target_properties(${NAME} PROPERTIES AUTOMOC ON)
  target_include_directories(${NAME} PUBLIC ${PROJECT_SOURCE_DIR}/src)
  target_link_libraries(${NAME} PUBLIC ${ARG_LINKS} PRIVATE warnings)
endfunction()
