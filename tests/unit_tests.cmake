# tests/unit_tests.cmake - the test programs of the floors and of the windows.
include(GoogleTest)

add_library(tallyhoop_sample_brackets STATIC 
    files/naive_reader.cpp
    intake/field_2000.cpp
    pool/naive_scorer.cpp
    pool/outlook/brute_force.cpp
    pool/outlook/invented_pools.cpp
    pool/outlook/odd_pools.cpp
    pool/outlook/results_2000.cpp
    pool/outlook/summed_chances.cpp
    pool/sample_brackets.cpp)
target_include_directories(tallyhoop_sample_brackets PUBLIC ${CMAKE_CURRENT_SOURCE_DIR})
target_link_libraries(tallyhoop_sample_brackets PUBLIC tallyhoop_pool)
if(CMAKE_CXX_COMPILER_ID STREQUAL GNU)
    target_compile_options(tallyhoop_sample_brackets PRIVATE -Wno-restrict) # GCC 12 takes assigning a text for a mistake
endif()

# Tests run once and are compiled often: optimising them would take longer than they do. Undefined behaviour is looked
# for in what they test, not in their own lines.
if(TALLYHOOP_SANITIZERS)
    set(TALLYHOOP_TEST_OPTIONS -O0 -fno-sanitize=undefined)
elseif(NOT CMAKE_BUILD_TYPE STREQUAL Debug)
    set(TALLYHOOP_TEST_OPTIONS -O0)
endif()
if(TALLYHOOP_QUICK_BUILD AND CMAKE_CXX_COMPILER_ID STREQUAL GNU)
    # A fixture without linkage is as private in a source that is included as in one that is compiled.
    list(APPEND TALLYHOOP_TEST_OPTIONS -Wno-subobject-linkage)
endif()

function(add_tests name)
    add_executable(tallyhoop_${name}_tests)
    target_compile_options(tallyhoop_${name}_tests PRIVATE ${TALLYHOOP_TEST_OPTIONS})
    target_link_libraries(tallyhoop_${name}_tests PRIVATE ${ARGN} GTest::gmock GTest::gtest_main)
    target_include_directories(tallyhoop_${name}_tests PRIVATE ${CMAKE_CURRENT_SOURCE_DIR})
endfunction()
add_tests(pool tallyhoop_pool tallyhoop_sample_brackets)
add_tests(files tallyhoop_files tallyhoop_scratch_folder tallyhoop_sample_brackets)
add_tests(intake tallyhoop_intake tallyhoop_scratch_folder tallyhoop_sample_brackets)
add_tests(reports tallyhoop_reports tallyhoop_files tallyhoop_scratch_folder)
add_tests(output tallyhoop_output tallyhoop_scratch_folder tallyhoop_sample_brackets)
add_tests(screens tallyhoop_start_up tallyhoop_scratch_folder tallyhoop_sample_brackets)
target_sources(tallyhoop_screens_tests PRIVATE layers_test.cpp)
target_compile_definitions(tallyhoop_screens_tests PRIVATE TALLYHOOP_SOURCE_DIR="${PROJECT_SOURCE_DIR}")
foreach(room base pool files intake reports output ui screens app demo faults help hostile)
    add_subdirectory(${room})
endforeach()
add_subdirectory(fuzz)

# Scratch folders in memory, where programs can be started from there: the tests write thousands of files, each flushed
# to the disk.
set(memory_folder /dev/shm)
file(COPY_FILE /bin/true ${memory_folder}/tallyhoop-trial RESULT trial)
if(NOT trial)
    execute_process(COMMAND ${memory_folder}/tallyhoop-trial RESULT_VARIABLE trial ERROR_QUIET)
    file(REMOVE ${memory_folder}/tallyhoop-trial)
endif()
if(trial)
    set(scratch_in_memory "")
else()
    set(scratch_in_memory "TMPDIR=${memory_folder}")
endif()

# discover_tests(TARGET NAME SHARES [ENVIRONMENT...]): one test for each of the program's. A sanitized program takes its
# time to start: there it is a few runs with a share of the tests each, under names of their own, so that they differ in
# a ctest run over both builds.
function(discover_tests target name shares)
    set(environment ${scratch_in_memory} ${TALLYHOOP_LEAK_CHECK} ${ARGN})
    if(WIN32)
        add_test(NAME windows.${name} COMMAND ${target})
        set_tests_properties(windows.${name} PROPERTIES ENVIRONMENT "${ARGN}")
        return()
    endif()
    if(NOT TALLYHOOP_SANITIZERS)
        gtest_discover_tests(${target} DISCOVERY_TIMEOUT 60 PROPERTIES ENVIRONMENT "${environment}")
        return()
    endif()
    foreach(share RANGE 1 ${shares})
        math(EXPR index "${share} - 1")
        add_test(NAME sanitizers.${name}_${share}_of_${shares} COMMAND ${target})
        set_tests_properties(sanitizers.${name}_${share}_of_${shares} PROPERTIES
            ENVIRONMENT "GTEST_TOTAL_SHARDS=${shares};GTEST_SHARD_INDEX=${index};${environment}")
    endforeach()
endfunction()

foreach(floor pool files intake reports output)
    discover_tests(tallyhoop_${floor}_tests ${floor} 1)
endforeach()
discover_tests(tallyhoop_screens_tests screens 2)
compile_together(tallyhoop_pool_tests tallyhoop_files_tests tallyhoop_intake_tests tallyhoop_reports_tests tallyhoop_output_tests
    tallyhoop_screens_tests)

if(TALLYHOOP_WINDOWS)
    add_subdirectory(qt)
endif()
add_subdirectory(windows/console)
if(WIN32)
    add_subdirectory(windows/mapi)
endif()
