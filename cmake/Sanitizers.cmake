# For all folders: each may still leave out some of the checks.
if(RASTERATELIER_ASAN)
  add_compile_options(-fsanitize=address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer)
  add_link_options(-fsanitize=address,undefined)
endif()
if(RASTERATELIER_FUZZ)
  add_compile_options(-fsanitize=fuzzer-no-link) # the fuzzer follows which code an input reaches
endif()
