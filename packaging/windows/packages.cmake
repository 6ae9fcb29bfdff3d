# packaging/windows/packages.cmake - the installer and the archive for Windows: the program folder with all that the
# program needs there, and the licences of what is not ours.

set(qt ${Qt6_DIR}/../../..)
cmake_path(NORMAL_PATH qt)
execute_process(COMMAND ${CMAKE_CXX_COMPILER} -print-file-name=libstdc++-6.dll OUTPUT_VARIABLE of_compiler
    OUTPUT_STRIP_TRAILING_WHITESPACE)
cmake_path(GET of_compiler PARENT_PATH of_compiler)
set(libraries ${qt}/bin/Qt6Core.dll ${qt}/bin/Qt6Gui.dll ${qt}/bin/Qt6PrintSupport.dll ${qt}/bin/Qt6Widgets.dll)
foreach(library ${of_compiler}/libgcc_s_seh-1.dll ${of_compiler}/libstdc++-6.dll
        /usr/x86_64-w64-mingw32/lib/libwinpthread-1.dll)
    cmake_path(GET library FILENAME name)
    execute_process(COMMAND ${CMAKE_STRIP} -o ${CMAKE_CURRENT_BINARY_DIR}/${name} ${library} COMMAND_ERROR_IS_FATAL ANY)
    list(APPEND libraries ${CMAKE_CURRENT_BINARY_DIR}/${name})
endforeach()
install(FILES ${libraries} DESTINATION . COMPONENT program)
install(FILES ${qt}/plugins/platforms/qwindows.dll DESTINATION platforms COMPONENT program)
install(FILES ${qt}/plugins/styles/qwindowsvistastyle.dll DESTINATION styles COMPONENT program)

# Read by people, with the line breaks that every editor of Windows knows.
set(licences "")
function(add_licence source name folder)
    set(made ${CMAKE_CURRENT_BINARY_DIR}/licences/${name})
    configure_file(${source} ${made} @ONLY NEWLINE_STYLE CRLF)
    install(FILES ${made} DESTINATION ${folder} COMPONENT program)
endfunction()
add_licence(${PROJECT_SOURCE_DIR}/LICENSE LICENSE.TXT .)
foreach(licence
        ${CMAKE_CURRENT_LIST_DIR}/LIBRARIES.TXT
        ${qt}/QT.TXT
        ${qt}/../libraries/FMT.TXT
        /usr/share/doc/libcli11-dev/copyright:CLI11.TXT
        /usr/share/doc/nlohmann-json3-dev/copyright:JSON.TXT
        /usr/share/doc/gcc-mingw-w64-x86-64-posix-runtime/copyright:GCC.TXT
        /usr/share/doc/mingw-w64-x86-64-dev/copyright:MINGW-W64.TXT
        /usr/share/doc/nsis/copyright:NSIS.TXT
        /usr/share/common-licenses/GPL-3:GPL-3.TXT
        /usr/share/common-licenses/LGPL-3:LGPL-3.TXT)
    string(REGEX REPLACE ":.*" "" source ${licence})
    string(REGEX REPLACE ".*[/:]" "" name ${licence})
    add_licence(${source} ${name} licences)
    string(APPEND licences "  Delete \"$INSTDIR\\licences\\${name}\"\n")
endforeach()

# What the uninstaller removes: never what may be of the pool, which the list of team names is.
set(CPACK_TALLYHOOP_DELETED "${licences}")
foreach(name tallyhoop.exe tallyhoop-cli.exe DEMOSET.EXE TALLYHOOP.HLP LICENSE.TXT platforms\\qwindows.dll
        styles\\qwindowsvistastyle.dll)
    string(APPEND CPACK_TALLYHOOP_DELETED "  Delete \"$INSTDIR\\${name}\"\n")
endforeach()
foreach(library ${libraries})
    cmake_path(GET library FILENAME name)
    string(APPEND CPACK_TALLYHOOP_DELETED "  Delete \"$INSTDIR\\${name}\"\n")
endforeach()

# `cpack` makes both.
set(CPACK_GENERATOR NSIS ZIP)
set(CPACK_TALLYHOOP_BUILD ${PROJECT_BINARY_DIR})
set(CPACK_TALLYHOOP_ICON ${CMAKE_CURRENT_LIST_DIR}/tallyhoop.ico)
set(CPACK_TALLYHOOP_PICTURE ${CMAKE_CURRENT_LIST_DIR}/finished.bmp)
set(CPACK_PROJECT_CONFIG_FILE ${CMAKE_CURRENT_LIST_DIR}/cpack_generator.cmake)
set(CPACK_MODULE_PATH ${CMAKE_CURRENT_LIST_DIR}) # where our NSIS.template.in is
set(CPACK_OUTPUT_FILE_PREFIX ${PROJECT_SOURCE_DIR}/_packages)
set(CPACK_PACKAGE_NAME Tallyhoop)
set(CPACK_PACKAGE_VENDOR "The Tallyhoop contributors")
set(CPACK_STRIP_FILES ON)
set(CPACK_VERBATIM_VARIABLES ON)
set(CPACK_MONOLITHIC_INSTALL ON)
set(CPACK_RESOURCE_FILE_LICENSE ${PROJECT_SOURCE_DIR}/LICENSE)
include(CPack)
