# The logic on the simulated platform: the host, the tests and the measurements.

# g++ 12 sees texts overlap in std::string's own operator+ where none do.
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU" AND CMAKE_CXX_COMPILER_VERSION VERSION_LESS 13)
  add_compile_options(-Wno-restrict)
endif()

file(GLOB SIMULATED CONFIGURE_DEPENDS src/platform/simulated/*.cpp)
list(FILTER SIMULATED EXCLUDE REGEX "/language\\.cpp$")

add_library(kvrpage OBJECT ${LOGIC} ${SIMULATED})
set(KVRPAGE $<TARGET_OBJECTS:kvrpage>)
foreach(file ${LANGUAGES})
  get_filename_component(name ${file} NAME_WE)
  add_library(language_${name} OBJECT src/platform/simulated/language.cpp)
  target_compile_definitions(language_${name} PRIVATE LANGUAGE_FILE=${name})
  list(APPEND KVRPAGE $<TARGET_OBJECTS:language_${name}>)
endforeach()

find_package(CLI11 REQUIRED)
find_package(utf8cpp REQUIRED)
find_package(PkgConfig REQUIRED)
pkg_check_modules(EDIT REQUIRED IMPORTED_TARGET libedit)

file(GLOB HOST CONFIGURE_DEPENDS host/*.cpp host/screen/*.cpp host/line/*.cpp host/machine_file/*.cpp
     host/worlds/simulated/*.cpp)
list(FILTER HOST EXCLUDE REGEX "/(main|console_windows)\\.cpp$")
set(SAMPLE_MACHINE ${CMAKE_SOURCE_DIR}/host/machines/sample.reg)
set_source_files_properties(host/machine_file/sample_machine.cpp PROPERTIES
                            OBJECT_DEPENDS ${SAMPLE_MACHINE} COMPILE_DEFINITIONS SAMPLE_MACHINE="${SAMPLE_MACHINE}")
add_library(host OBJECT ${HOST})
target_include_directories(host PUBLIC ${CMAKE_SOURCE_DIR})
target_link_libraries(host PUBLIC CLI11::CLI11 utf8::cpp PkgConfig::EDIT)
add_executable(kvrhost host/main.cpp ${KVRPAGE})
target_link_libraries(kvrhost PRIVATE host)

enable_testing()
find_package(GTest REQUIRED)
file(GLOB TESTS CONFIGURE_DEPENDS tests/*.cpp)
add_executable(kvr_tests ${TESTS} ${KVRPAGE})
target_link_libraries(kvr_tests PRIVATE host GTest::gtest_main rapidcheck)
set_source_files_properties(tests/scripts_test.cpp PROPERTIES COMPILE_DEFINITIONS SOURCE_DIR="${CMAKE_SOURCE_DIR}")
include(GoogleTest)
gtest_discover_tests(kvr_tests)

# The product itself, and the fuzzer, as their own presets have built them.
foreach(test hardening_test resources_test compare_worlds fit_test lifetime_test)
  add_test(NAME windows/${test} COMMAND python3 ${CMAKE_SOURCE_DIR}/tests/windows/${test}.py)
endforeach()
add_test(NAME fuzz/settings_line COMMAND ${CMAKE_SOURCE_DIR}/build/fuzz/settings_line_fuzz -runs=500000 -max_len=400)

# The fuzzer comes with clang.
if(CMAKE_CXX_COMPILER_ID STREQUAL "Clang")
  add_executable(settings_line_fuzz tests/fuzz/settings_line_fuzz.cpp ${KVRPAGE})
  target_link_options(settings_line_fuzz PRIVATE -fsanitize=fuzzer)
endif()

find_package(benchmark REQUIRED)
add_executable(kvr_bench bench/kvr_bench.cpp tests/machines.cpp ${KVRPAGE})
target_include_directories(kvr_bench PRIVATE ${CMAKE_SOURCE_DIR})
target_link_libraries(kvr_bench PRIVATE benchmark::benchmark)
