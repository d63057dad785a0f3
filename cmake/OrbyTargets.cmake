# How every target of the house is compiled, and the three kinds of targets there are.

add_library(orby_options INTERFACE)
target_compile_features(orby_options INTERFACE cxx_std_20)
target_compile_options(orby_options INTERFACE
  -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Wsign-conversion
  -Wold-style-cast -Wnon-virtual-dtor -Woverloaded-virtual -Wimplicit-fallthrough
  -ffp-contract=off)
target_include_directories(orby_options INTERFACE ${CMAKE_SOURCE_DIR}/src)
# What Windows reads in a program: its manifest; in a program of the product also icon and version.
set(ORBY_PROGRAM_RESOURCES)
set(ORBY_PRODUCT_RESOURCES)
if(WIN32)
  enable_language(RC)
  target_compile_definitions(orby_options INTERFACE UNICODE _WIN32_WINNT=0x0A00)
  set(ORBY_PROGRAM_RESOURCES ${CMAKE_SOURCE_DIR}/windows/program.rc)
  set(ORBY_PRODUCT_RESOURCES ${CMAKE_BINARY_DIR}/product.rc)
  set(ORBY_VERSION_NUMBERS ${PROJECT_VERSION_MAJOR},${PROJECT_VERSION_MINOR},${PROJECT_VERSION_PATCH},0)
  string(REGEX REPLACE "[.]([0-9])$" ".0\\1" ORBY_VERSION_TEXT ${PROJECT_VERSION})
  configure_file(${CMAKE_SOURCE_DIR}/windows/product.rc.in ${ORBY_PRODUCT_RESOURCES} @ONLY)
endif()
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
  # -Wrestrict of g++ 12 warns of string concatenation inside the standard library.
  target_compile_options(orby_options INTERFACE -Wduplicated-cond -Wlogical-op -Wno-restrict)
  # ccache needs to see which precompiled header a source uses.
  target_compile_options(orby_options INTERFACE -fpch-preprocess)
else()
  target_compile_options(orby_options INTERFACE -Wreserved-identifier)
endif()
if(ORBY_WARNINGS_ARE_ERRORS)
  target_compile_options(orby_options INTERFACE -Werror)
endif()
if(ORBY_SANITIZE)
  target_compile_options(orby_options INTERFACE
    -fsanitize=${ORBY_SANITIZE} -fno-sanitize-recover=all -fno-omit-frame-pointer)
  target_link_options(orby_options INTERFACE -fsanitize=${ORBY_SANITIZE})
endif()
if(ORBY_COVERAGE)
  target_compile_options(orby_options INTERFACE --coverage -fprofile-abs-path)
  target_link_options(orby_options INTERFACE --coverage)
endif()

set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)

# orby_library(name SOURCES file... LINKS folder... [HEADERS header...])
# One folder of src/. A folder without sources is an interface library of headers. HEADERS: what most of its sources
# include; with ORBY_PRECOMPILE they are compiled once. A folder without them uses those of base.
function(orby_library name)
  cmake_parse_arguments(ARG "" "" "SOURCES;LINKS;HEADERS" ${ARGN})
  list(TRANSFORM ARG_LINKS PREPEND orby_)
  if(ARG_SOURCES)
    add_library(orby_${name} STATIC ${ARG_SOURCES})
    target_link_libraries(orby_${name} PUBLIC orby_options ${ARG_LINKS})
    if(ORBY_PRECOMPILE AND ARG_HEADERS)
      target_precompile_headers(orby_${name} PRIVATE ${ARG_HEADERS})
    elseif(ORBY_PRECOMPILE)
      target_precompile_headers(orby_${name} REUSE_FROM orby_base)
    endif()
  else()
    add_library(orby_${name} INTERFACE)
    target_link_libraries(orby_${name} INTERFACE orby_options ${ARG_LINKS})
  endif()
endfunction()

# orby_header_library(name folder header): the library orby_<name> of headers alone, which are in a folder of the machine's
# headers. Compilers for other machines find this folder too, and none of the other headers.
function(orby_header_library name folder header)
  find_path(ORBY_${name}_HEADERS ${folder}/${header} PATHS /usr/local/include /usr/include NO_CMAKE_FIND_ROOT_PATH REQUIRED)
  set(headers ${CMAKE_BINARY_DIR}/headers)
  file(MAKE_DIRECTORY ${headers})
  file(CREATE_LINK ${ORBY_${name}_HEADERS}/${folder} ${headers}/${folder} SYMBOLIC)
  add_library(orby_${name} INTERFACE)
  target_include_directories(orby_${name} SYSTEM INTERFACE ${headers})
endfunction()

# A test needs its lines in a trace, not the whole of the templates that it is made of. Wine shows no traces.
if(NOT WIN32)
  set(ORBY_TEST_OPTIONS $<$<CONFIG:Debug>:-g1>)
endif()

# Removes from the list the sources that use the library of property tests, which Debian has for this machine only, other
# programs of this machine, functions of POSIX, or a server with a certificate, which Wine cannot be.
function(leave_out_tests_of_this_machine list)
  foreach(source ${${list}})
    file(STRINGS ${source} uses REGEX "#include [<\"](rapidcheck|support/number_texts|any_single|unistd|fcntl|sys/)|popen|create_symlink|sheet_bench|xdg-|malloc[.]h|pdf_bench|setDefaultConfiguration|#!/bin")
    if(uses)
      list(REMOVE_ITEM ${list} ${source})
    endif()
  endforeach()
  set(${list} ${${list}} PARENT_SCOPE)
endfunction()

# orby_test(name [OWN_MAIN] SOURCES file... LINKS folder... [HEADERS header...])
# One test program per folder of tests/, named test_<name>; each of its tests is a test of ctest. OWN_MAIN: the sources
# have a main of their own. HEADERS: what most of the tests include besides the test library, compiled once.
function(orby_test name)
  cmake_parse_arguments(ARG "OWN_MAIN" "" "SOURCES;LINKS;HEADERS" ${ARGN})
  list(TRANSFORM ARG_LINKS PREPEND orby_)
  set(runner GTest::gmock_main)
  if(ARG_OWN_MAIN)
    set(runner GTest::gmock)
  endif()
  set(common ${CMAKE_SOURCE_DIR}/tests/support/environment.cpp)
  if(WIN32)
    leave_out_tests_of_this_machine(ARG_SOURCES)
  else()
    list(APPEND common ${CMAKE_SOURCE_DIR}/tests/support/property_cases.cpp)
  endif()
  add_executable(test_${name} ${ARG_SOURCES} ${common} ${ORBY_PROGRAM_RESOURCES})
  target_link_libraries(test_${name} PRIVATE orby_options orby_test_support ${ARG_LINKS} ${runner})
  target_compile_options(test_${name} PRIVATE ${ORBY_TEST_OPTIONS})
  set_target_properties(test_${name} PROPERTIES UNITY_BUILD ON UNITY_BUILD_BATCH_SIZE ${ORBY_TESTS_AT_ONCE})
  if(ARG_HEADERS)
    target_precompile_headers(test_${name} PRIVATE <gmock/gmock.h> ${ARG_HEADERS})
  else()
    target_precompile_headers(test_${name} REUSE_FROM orby_test_support)
  endif()
  gtest_discover_tests(test_${name} TEST_PREFIX "${name}/" DISCOVERY_MODE PRE_TEST)
endfunction()

# orby_fuzzer(name LINKS folder...): fuzz/<name>.cpp as the libFuzzer program fuzz_<name>; it may use
# the headers of tests/support.
function(orby_fuzzer name)
  cmake_parse_arguments(ARG "" "" "LINKS" ${ARGN})
  list(TRANSFORM ARG_LINKS PREPEND orby_)
  add_executable(fuzz_${name} ${name}.cpp)
  target_link_libraries(fuzz_${name} PRIVATE orby_options ${ARG_LINKS} orby_recording_platform)
  target_link_options(fuzz_${name} PRIVATE -fsanitize=fuzzer,address,undefined)
endfunction()
