# The product, and the programs that try and measure it on a real or a stand-in Windows.

enable_language(RC)
set(CMAKE_RC_FLAGS "-c 65001") # the texts are UTF-8
set(CMAKE_CXX_STANDARD_LIBRARIES "")
add_compile_definitions(UNICODE _UNICODE WINVER=0x0601 _WIN32_WINNT=0x0601)
# The same bytes from the same sources, wherever they lie.
add_compile_options($<$<COMPILE_LANGUAGE:CXX>:-ffile-prefix-map=${CMAKE_SOURCE_DIR}=.>)
add_link_options(-static -Wl,--no-insert-timestamp $<$<NOT:$<CONFIG:Debug>>:-s>)

# One object a resource script and language; the linker merges them into the one resource section.
function(add_resources target script)
  add_library(${target} OBJECT ${script})
  target_include_directories(${target} PRIVATE src/resources)
  target_compile_definitions(${target} PRIVATE ${ARGN})
endfunction()

file(GLOB RESOURCE_PARTS CONFIGURE_DEPENDS src/resources/*.h src/resources/*.inc src/resources/*.manifest)
set_source_files_properties(src/resources/language.rc src/resources/kvrpagex64.rc
                            PROPERTIES OBJECT_DEPENDS "${RESOURCE_PARTS};${LANGUAGES}")
add_resources(module_resources src/resources/kvrpagex64.rc)
set(RESOURCES $<TARGET_OBJECTS:module_resources>)
foreach(file ${LANGUAGES})
  get_filename_component(name ${file} NAME_WE)
  add_resources(language_${name} src/resources/language.rc LANGUAGE_FILE=${name})
  list(APPEND RESOURCES $<TARGET_OBJECTS:language_${name}>)
endforeach()

# The library lives in other people's processes: it starts at its own entry point, without a runtime's start-up, and
# takes nothing but what every Windows has. Only constructors, thread-local data and references to the data of another
# library would need one: the linker refuses the last, tests/windows/hardening_test.py the others.
add_library(kvrpagex64 SHARED ${LOGIC} ${RESOURCES} src/resources/kvrpagex64.def)
set_target_properties(kvrpagex64 PROPERTIES PREFIX "" LINK_DEPENDS ${CMAKE_SOURCE_DIR}/src/resources/kvrpagex64.def)
target_compile_options(kvrpagex64 PRIVATE
  -fno-exceptions -fno-rtti -fno-threadsafe-statics -ffunction-sections -fdata-sections)
target_link_options(kvrpagex64 PRIVATE
  -nostdlib -Wl,--entry=DllMain -Wl,--gc-sections -Wl,--disable-auto-import -Wl,--disable-runtime-pseudo-reloc
  -Wl,--subsystem,windows:6.1 -Wl,--image-base,0x180000000
  -Wl,--dynamicbase -Wl,--high-entropy-va -Wl,--nxcompat)
target_link_libraries(kvrpagex64 PRIVATE gcc kernel32 user32 comctl32 advapi32 setupapi msports msvcrt)

# --- The stand-in of the device manager, and the programs beside it -----------------------------------------------

# What of the host's dependencies consists of headers only serves both builds: these two, and nothing else of the
# machine's own headers.
find_path(CLI11_HEADERS CLI/CLI.hpp PATHS /usr/include REQUIRED NO_CMAKE_FIND_ROOT_PATH)
find_path(UTFCPP_HEADERS utf8.h PATHS /usr/include/utf8cpp /usr/include REQUIRED NO_CMAKE_FIND_ROOT_PATH)
file(MAKE_DIRECTORY ${CMAKE_BINARY_DIR}/headers)
foreach(header ${CLI11_HEADERS}/CLI ${UTFCPP_HEADERS}/utf8 ${UTFCPP_HEADERS}/utf8.h)
  get_filename_component(name ${header} NAME)
  file(CREATE_LINK ${header} ${CMAKE_BINARY_DIR}/headers/${name} SYMBOLIC)
endforeach()

# Stands in for the system's own library where that has nothing to offer, and is never shipped.
add_library(standin_msports SHARED host/worlds/windows/standins/msports.cpp host/worlds/windows/standins/msports.def)
set_target_properties(standin_msports PROPERTIES PREFIX "" OUTPUT_NAME msports RUNTIME_OUTPUT_DIRECTORY standins
                                                 ARCHIVE_OUTPUT_DIRECTORY standins)
target_link_libraries(standin_msports PRIVATE kernel32 advapi32)

file(GLOB HOST CONFIGURE_DEPENDS host/*.cpp host/screen/*.cpp host/line/*.cpp host/machine_file/registry_export*.cpp
     host/machine_file/text_lines.cpp host/worlds/windows/*.cpp host/worlds/windows/standins/*.cpp)
list(FILTER HOST EXCLUDE REGEX "/(main|msports|console_libedit)\\.cpp$")
file(GLOB TEST_PROGRAM_PARTS CONFIGURE_DEPENDS tests/windows/programs/*.cpp)
add_library(host OBJECT ${HOST})
target_include_directories(host PUBLIC ${CMAKE_SOURCE_DIR})
target_include_directories(host SYSTEM PUBLIC ${CMAKE_BINARY_DIR}/headers)
target_link_libraries(host PUBLIC kernel32 user32 gdi32 comctl32 advapi32 setupapi msports)

add_executable(kvrhost host/main.cpp)
target_link_libraries(kvrhost PRIVATE host)

add_executable(kvrfit tests/windows/programs/fit/main.cpp tests/windows/programs/fit/run_time_texts.cpp)
target_include_directories(kvrfit PRIVATE ${CMAKE_SOURCE_DIR})
target_link_libraries(kvrfit PRIVATE kernel32 user32 gdi32 comctl32)

add_executable(kvrpictures tests/windows/programs/pictures/main.cpp ${TEST_PROGRAM_PARTS})
target_link_libraries(kvrpictures PRIVATE host)

add_executable(kvrlifetime tests/windows/programs/lifetime/main.cpp ${TEST_PROGRAM_PARTS})
target_link_libraries(kvrlifetime PRIVATE host)
