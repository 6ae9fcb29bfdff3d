# Read by cpack once for each kind of package: which parts go into it, and where they are in it.
if(CPACK_GENERATOR STREQUAL "DEB")
    set(CPACK_PACKAGING_INSTALL_PREFIX /)
    set(CPACK_INSTALL_CMAKE_PROJECTS
        "${CPACK_TALLYHOOP_BUILD};Tallyhoop;program;/usr/lib/tallyhoop"
        "${CPACK_TALLYHOOP_BUILD};Tallyhoop;desktop;/usr")
else()
    set(CPACK_PACKAGE_FILE_NAME Tallyhoop)
    set(CPACK_INSTALL_CMAKE_PROJECTS
        "${CPACK_TALLYHOOP_BUILD};Tallyhoop;program;/"
        "${CPACK_TALLYHOOP_BUILD};Tallyhoop;archive;/")
endif()
