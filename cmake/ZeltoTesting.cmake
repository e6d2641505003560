# GoogleTest for both builds and one helper that turns a test program into a ctest entry.
# Host: Debian's libgtest-dev. Windows: compiled with the MinGW toolchain from the sources
# that Debian's googletest package installs.
if(NOT ZELTO_BUILD_TESTS)
    return()
endif()

set(ZELTO_GTEST_SOURCE /usr/src/googletest CACHE PATH "GoogleTest sources (Debian googletest)")

if(CMAKE_CROSSCOMPILING)
    if(NOT EXISTS ${ZELTO_GTEST_SOURCE}/CMakeLists.txt)
        message(FATAL_ERROR "GoogleTest sources missing at ${ZELTO_GTEST_SOURCE}: run scripts/install-deps.sh")
    endif()
    set(gtest_force_shared_crt OFF CACHE BOOL "" FORCE)
    set(INSTALL_GTEST OFF CACHE BOOL "" FORCE)
    set(BUILD_GMOCK ON CACHE BOOL "" FORCE)
    add_subdirectory(${ZELTO_GTEST_SOURCE} ${CMAKE_BINARY_DIR}/googletest EXCLUDE_FROM_ALL SYSTEM)
    if(NOT TARGET GTest::gtest_main)
        add_library(GTest::gtest ALIAS gtest)
        add_library(GTest::gtest_main ALIAS gtest_main)
        add_library(GTest::gmock ALIAS gmock)
    endif()
else()
    find_package(GTest REQUIRED)
endif()

# Every Windows test runs in a private Wine prefix inside the build tree.
set(ZELTO_WINEPREFIX ${CMAKE_BINARY_DIR}/wineprefix)
set(ZELTO_TEST_RESULTS ${CMAKE_BINARY_DIR}/test-results)

# zelto_add_test(<name> SOURCES <files...> LIBS <targets...> [LABELS <labels...>])
# Builds one GoogleTest program and registers it with ctest; each run leaves its XML report
# in test-results/ so that scripts/test.sh can count the cases.
function(zelto_add_test name)
    cmake_parse_arguments(ARG "" "" "SOURCES;LIBS;LABELS" ${ARGN})
    add_executable(${name} ${ARG_SOURCES})
    target_link_libraries(${name} PRIVATE ${ARG_LIBS} GTest::gtest_main)
    target_include_directories(${name} PRIVATE ${PROJECT_SOURCE_DIR}/tests)
    target_compile_definitions(${name} PRIVATE
        ZELTO_TEST_DATA_DIR="${PROJECT_SOURCE_DIR}/tests/data")
    # Wine reads a path without a drive as relative to the program's folder: name the drive.
    if(CMAKE_CROSSCOMPILING)
        set(report "Z:${ZELTO_TEST_RESULTS}/${name}.xml")
    else()
        set(report "${ZELTO_TEST_RESULTS}/${name}.xml")
    endif()
    add_test(NAME ${name} COMMAND ${name} --gtest_output=xml:${report})
    set(env "")
    if(CMAKE_CROSSCOMPILING)
        list(APPEND env "WINEPREFIX=${ZELTO_WINEPREFIX}" "WINEDEBUG=-all")
    endif()
    set_tests_properties(${name} PROPERTIES ENVIRONMENT "${env}" LABELS "${ARG_LABELS}")
    if(CMAKE_CROSSCOMPILING)
        # Wine can report a program that died after its failures with exit code 0: the
        # verdict comes from GoogleTest's own summary instead.
        set_tests_properties(${name} PROPERTIES PASS_REGULAR_EXPRESSION "\\[  PASSED  \\]"
            FAIL_REGULAR_EXPRESSION "\\[  FAILED  \\]")
    endif()
endfunction()
