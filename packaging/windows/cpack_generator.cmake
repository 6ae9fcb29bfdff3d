# Read by cpack once for each kind of package: its name, and where the program folder is in it.
if(CPACK_GENERATOR STREQUAL "NSIS")
    set(CPACK_PACKAGE_FILE_NAME Tallyhoop-${CPACK_PACKAGE_VERSION}-setup)
    set(CPACK_INSTALL_CMAKE_PROJECTS "${CPACK_TALLYHOOP_BUILD};Tallyhoop;program;/")
else()
    set(CPACK_PACKAGE_FILE_NAME Tallyhoop-${CPACK_PACKAGE_VERSION}-windows)
    set(CPACK_INCLUDE_TOPLEVEL_DIRECTORY OFF)
    set(CPACK_INSTALL_CMAKE_PROJECTS "${CPACK_TALLYHOOP_BUILD};Tallyhoop;program;/Tallyhoop")
endif()
