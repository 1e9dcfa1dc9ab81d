# One place for what every target shares: warnings, guards, sanitizers, include root.

add_library(vendrel_settings INTERFACE)
target_include_directories(vendrel_settings INTERFACE ${PROJECT_SOURCE_DIR}/src)
target_compile_options(vendrel_settings INTERFACE
    -Wall -Wextra -Wpedantic -Wconversion -Wshadow)
if(VENDREL_STRICT)
    target_compile_options(vendrel_settings INTERFACE -Werror)
endif()
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU" AND CMAKE_CXX_COMPILER_VERSION VERSION_LESS 13)
    # GCC 12 sees overlapping copies in "text" + std::string where there are none.
    target_compile_options(vendrel_settings INTERFACE -Wno-restrict)
endif()
if(VENDREL_HARDEN AND NOT VENDREL_SANITIZE)
    target_compile_definitions(vendrel_settings INTERFACE
        $<$<CONFIG:Release>:_FORTIFY_SOURCE=3;_GLIBCXX_ASSERTIONS>)
    # No -fPIE: Qt's libraries need -fPIC of those who use them, and the other programs are
    # independent of their place without being told.
    target_compile_options(vendrel_settings INTERFACE
        $<$<CONFIG:Release>:-fstack-protector-strong;-fstack-clash-protection>)
    target_link_options(vendrel_settings INTERFACE $<$<CONFIG:Release>:-pie;LINKER:-z,relro,-z,now>)
endif()
# Neither packages nor sentences tell in which folder the program was built.
target_compile_options(vendrel_settings INTERFACE
    $<$<CONFIG:Release>:-ffile-prefix-map=${PROJECT_SOURCE_DIR}=.;-ffile-prefix-map=${PROJECT_BINARY_DIR}=build>)
if(VENDREL_SANITIZE)
    target_compile_options(vendrel_settings INTERFACE
        -fsanitize=address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer)
    target_link_options(vendrel_settings INTERFACE -fsanitize=address,undefined)
endif()
if(VENDREL_SANITIZE_THREADS)
    target_compile_options(vendrel_settings INTERFACE -fsanitize=thread)
    target_link_options(vendrel_settings INTERFACE -fsanitize=thread)
endif()
if(VENDREL_FUZZ)
    target_compile_options(vendrel_settings INTERFACE -fsanitize=fuzzer-no-link)
endif()

# vendrel_library(NAME SOURCES file... [DEPENDS target...])
# A folder of src/ as a static library. DEPENDS names only folders of a lower level.
function(vendrel_library name)
    cmake_parse_arguments(ARG "" "" "SOURCES;DEPENDS" ${ARGN})
    add_library(vendrel_${name} STATIC ${ARG_SOURCES})
    target_link_libraries(vendrel_${name} PUBLIC vendrel_settings ${ARG_DEPENDS})
    # They wait for painters and for other programs, and a first start waits for them to be built.
    if(name MATCHES "^(kit|batch|desktop)$")
        target_compile_options(vendrel_${name} PRIVATE $<$<CONFIG:Release>:-O1>)
    endif()
endfunction()

# Compiled as the tests are, so that they can share its precompiled headers.
function(vendrel_test_headers_target)
    file(WRITE ${PROJECT_BINARY_DIR}/test_headers.cpp "")
    add_library(vendrel_test_headers OBJECT ${PROJECT_BINARY_DIR}/test_headers.cpp)
    target_link_libraries(vendrel_test_headers PRIVATE vendrel_settings GTest::gmock GTest::gtest)
    target_compile_definitions(vendrel_test_headers PRIVATE VENDREL_SOURCE_DIR="${PROJECT_SOURCE_DIR}")
    target_compile_options(vendrel_test_headers PRIVATE -fPIC -Wno-array-bounds -Wno-stringop-overflow)
    target_precompile_headers(vendrel_test_headers PRIVATE
        <gmock/gmock.h> <gtest/gtest.h> <filesystem> <fstream> <random> <string> <vector>)
endfunction()

# vendrel_test(NAME SOURCES file... [DEPENDS target...])
# The tests of one folder as one GoogleTest program.
function(vendrel_test name)
    cmake_parse_arguments(ARG "" "" "SOURCES;DEPENDS" ${ARGN})
    add_executable(test_${name} ${ARG_SOURCES})
    target_include_directories(test_${name} PRIVATE ${PROJECT_SOURCE_DIR}/tests)
    target_link_libraries(test_${name} PRIVATE vendrel_settings ${ARG_DEPENDS} GTest::gmock GTest::gtest_main)
    target_compile_definitions(test_${name} PRIVATE VENDREL_SOURCE_DIR="${PROJECT_SOURCE_DIR}")
    # GCC 12 sees overruns behind range checks when tests pass constants that lie outside.
    # Qt wants -fPIC of those who link it; the shared headers want one answer from all.
    target_compile_options(test_${name} PRIVATE -fPIC -Wno-array-bounds -Wno-stringop-overflow)
    # The test framework's headers cost more to compile than most tests: one copy for all programs.
    if(NOT TARGET vendrel_test_headers)
        vendrel_test_headers_target()
    endif()
    target_precompile_headers(test_${name} REUSE_FROM vendrel_test_headers)
    set_target_properties(test_${name} PROPERTIES
        UNITY_BUILD ${VENDREL_UNITY_TESTS} UNITY_BUILD_BATCH_SIZE 0)
    add_test(NAME ${name} COMMAND test_${name})
endfunction()

# vendrel_qt_test(NAME SOURCES file... [DEPENDS target...])
# Qt Test program, run without a screen. Each source file carries its own QTEST_MAIN.
function(vendrel_qt_test name)
    cmake_parse_arguments(ARG "" "" "SOURCES;DEPENDS" ${ARGN})
    add_executable(test_${name} ${ARG_SOURCES})
    set_target_properties(test_${name} PROPERTIES AUTOMOC ON)
    target_include_directories(test_${name} PRIVATE ${PROJECT_SOURCE_DIR}/tests)
    target_link_libraries(test_${name} PRIVATE vendrel_settings ${ARG_DEPENDS} Qt6::Test)
    target_compile_definitions(test_${name} PRIVATE VENDREL_SOURCE_DIR="${PROJECT_SOURCE_DIR}")
    add_test(NAME ${name} COMMAND test_${name})
    set_tests_properties(${name} PROPERTIES ENVIRONMENT "QT_QPA_PLATFORM=offscreen")
endfunction()

# vendrel_bench(NAME SOURCES file... [DEPENDS target...])
function(vendrel_bench name)
    cmake_parse_arguments(ARG "" "" "SOURCES;DEPENDS" ${ARGN})
    add_executable(bench_${name} ${ARG_SOURCES})
    target_include_directories(bench_${name} PRIVATE ${PROJECT_SOURCE_DIR}/tests)
    target_link_libraries(bench_${name} PRIVATE vendrel_settings ${ARG_DEPENDS} benchmark::benchmark_main)
    target_compile_definitions(bench_${name} PRIVATE VENDREL_SOURCE_DIR="${PROJECT_SOURCE_DIR}")
endfunction()
