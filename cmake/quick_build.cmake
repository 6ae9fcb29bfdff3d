# cmake/quick_build.cmake - ways to build everything from nothing in a third of the time: most of the time of compiling a
# source goes into the headers that all of them include, and into the templates that all of them use.
#
# The presets `release` and `sanitizers` build so; `debug` does not, which is quicker after a small change, nor does the
# analysis, which thereby sees a missing #include.

option(TALLYHOOP_QUICK_BUILD "Precompile headers, and compile the tests of a folder together" OFF)
set(TALLYHOOP_TOGETHER 8) # sources; more would leave a processor idle at the end of a small program

# precompile_headers(HEADER... FOR TARGET...): once for all the targets, which have the same options.
function(precompile_headers)
    if(NOT TALLYHOOP_QUICK_BUILD)
        return()
    endif()
    cmake_parse_arguments(PARSE_ARGV 0 ARG "" "" FOR)
    list(POP_FRONT ARG_FOR first)
    target_precompile_headers(${first} PRIVATE ${ARG_UNPARSED_ARGUMENTS})
    foreach(target ${ARG_FOR})
        target_precompile_headers(${target} REUSE_FROM ${first})
    endforeach()
    # GCC forgets which precompiled headers are the system's, and then warns of what it takes for mistakes in them.
    foreach(target ${first} ${ARG_FOR})
        if(CMAKE_CXX_COMPILER_ID STREQUAL GNU)
            target_compile_options(${target} PRIVATE
                "$<$<COMPILE_LANGUAGE:CXX>:-Wno-array-bounds;-Wno-restrict;-Wno-stringop-overflow;-Wno-stringop-overread>")
        endif()
    endforeach()
endfunction()

# Sources that stay alone, because another one of their folder uses the same name for something of its own.
set(TALLYHOOP_ALONE
    tests/pool/moves_walk_test.cpp
    tests/pool/payoffs_test.cpp
    tests/pool/scoring_test.cpp
    tests/qt/services/.* # in a namespace with a part called test, in which names of another such part are looked for
    tests/qt/hostile_names.*
    tests/qt/printer_dialogs_test.cpp
    tests/qt/writers_under_faults_test.cpp
    tests/reports/team_selection_test.cpp
    tests/screens/players/players_screen_test.cpp
    tests/screens/reports/report_maker_test.cpp
    tests/screens/reports/reports_screen_refusals_test.cpp
    tests/ui/.*)

# compile_together(TARGET...): in groups of sources of one folder. A source that has definitions of its own stays alone.
# For tests only: where two sources use one name for different things, the program must not depend on which of them the
# compiler sees.
function(compile_together)
    if(NOT TALLYHOOP_QUICK_BUILD)
        return()
    endif()
    foreach(target ${ARGN})
        get_target_property(sources ${target} SOURCES)
        get_target_property(base ${target} SOURCE_DIR)
        set_target_properties(${target} PROPERTIES UNITY_BUILD ON UNITY_BUILD_MODE GROUP)
        foreach(source ${sources})
            cmake_path(ABSOLUTE_PATH source BASE_DIRECTORY ${base} NORMALIZE OUTPUT_VARIABLE file)
            cmake_path(RELATIVE_PATH file BASE_DIRECTORY ${PROJECT_SOURCE_DIR} OUTPUT_VARIABLE name)
            list(JOIN TALLYHOOP_ALONE "|" alone)
            if(name MATCHES "^(${alone})$")
                continue()
            endif()
            cmake_path(GET name PARENT_PATH folder)
            string(MAKE_C_IDENTIFIER ${folder} folder)
            math(EXPR count_${target}_${folder} "0${count_${target}_${folder}} + 1")
            math(EXPR group "(${count_${target}_${folder}} - 1) / ${TALLYHOOP_TOGETHER}")
            set_source_files_properties(${file} TARGET_DIRECTORY ${target} PROPERTIES UNITY_GROUP ${folder}_${group})
        endforeach()
    endforeach()
endfunction()
