# cmake/unity.cmake - compiles the sources of a folder together, a handful at a time: most of the time of compiling one
# of them goes into the headers that all of them include, and into the templates that all of them use.
#
# The presets `release` and `sanitizers` do so; `debug` compiles each source alone, which is quicker after a small change,
# and so does the analysis, which thereby sees a missing #include.

option(TALLYHOOP_UNITY "Compile the sources of a folder together" OFF)
set(TALLYHOOP_UNITY_SIZE 8) # sources; more would leave a processor idle at the end of a small library

# Sources that stay alone, because another one of their folder uses the same name for something of its own.
set(TALLYHOOP_ALONE
    reports/.* # each has its widths, its header and its last line
    screens/players/players_screen.cpp
    screens/reports/report_maker.cpp
    screens/setup/setup_screen.cpp
    qt/views/setup_view.cpp
    qt/services/qt_system.cpp
    tests/pool/moves_walk_test.cpp
    tests/pool/payoffs_test.cpp
    tests/pool/scoring_test.cpp
    tests/qt/services/.* # in a namespace with a part called test, in which names of another such part are looked for
    tests/qt/hostile_names.*
    tests/reports/team_selection_test.cpp
    tests/screens/players/players_screen_test.cpp
    tests/screens/reports/reports_screen_refusals_test.cpp
    tests/ui/list_navigation_test.cpp)

# compile_together(TARGET...): in groups of sources of one folder. A source that has definitions of its own stays alone.
function(compile_together)
    if(NOT TALLYHOOP_UNITY)
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
            math(EXPR group "(${count_${target}_${folder}} - 1) / ${TALLYHOOP_UNITY_SIZE}")
            set_source_files_properties(${file} TARGET_DIRECTORY ${target} PROPERTIES UNITY_GROUP ${folder}_${group})
        endforeach()
    endforeach()
endfunction()
