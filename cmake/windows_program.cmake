# cmake/windows_program.cmake - what a program for Windows has in it besides its code: icon, version and manifest.

set(TALLYHOOP_WINDOWS_RESOURCES ${PROJECT_SOURCE_DIR}/packaging/windows)

# windows_program(TARGET FILE DESCRIPTION [unseen]): nothing elsewhere. FILE is the program's file; the unseen have no
# console, which Windows would open for them.
function(windows_program target file description)
    if(NOT WIN32)
        return()
    endif()
    string(REPLACE . , numbers ${PROJECT_VERSION})
    configure_file(${TALLYHOOP_WINDOWS_RESOURCES}/program.rc.in ${CMAKE_CURRENT_BINARY_DIR}/${target}.rc @ONLY)
    configure_file(${TALLYHOOP_WINDOWS_RESOURCES}/program.manifest.in ${CMAKE_CURRENT_BINARY_DIR}/${target}.manifest @ONLY)
    target_sources(${target} PRIVATE ${CMAKE_CURRENT_BINARY_DIR}/${target}.rc)
    set_source_files_properties(${CMAKE_CURRENT_BINARY_DIR}/${target}.rc PROPERTIES OBJECT_DEPENDS
        "${CMAKE_CURRENT_BINARY_DIR}/${target}.manifest;${TALLYHOOP_WINDOWS_RESOURCES}/tallyhoop.ico")
    if(ARGV3 STREQUAL unseen)
        set_target_properties(${target} PROPERTIES WIN32_EXECUTABLE ON)
    endif()
endfunction()
