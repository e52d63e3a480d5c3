# Settings for everything that is built for Windows.

enable_language(RC)
set(CMAKE_RC_FLAGS "-c 65001") # the texts are UTF-8
add_compile_definitions(UNICODE _UNICODE WINVER=0x0601 _WIN32_WINNT=0x0601)
# The same sources give the same bytes, wherever the sources are.
add_compile_options($<$<COMPILE_LANGUAGE:CXX>:-ffile-prefix-map=${CMAKE_SOURCE_DIR}=.>)
add_link_options(-static)
if(CMAKE_CXX_COMPILER_ID STREQUAL "Clang")
  set(CMAKE_CXX_STANDARD_LIBRARIES -lpthread)
  add_compile_options($<$<COMPILE_LANGUAGE:CXX>:-ffile-compilation-dir=.>)
  add_link_options(-Wl,--Xlink=-brepro)
else()
  set(CMAKE_CXX_STANDARD_LIBRARIES "")
  add_link_options(-Wl,--no-insert-timestamp -s)
endif()
