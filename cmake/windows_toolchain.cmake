# cmake/windows_toolchain.cmake - builds for 64-bit Windows with Debian's cross compiler.
#
# The libraries come from a cache outside the tree, which packaging/windows/build_qt.sh and build_libraries.sh fill.

set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_VERSION 10)
set(CMAKE_SYSTEM_PROCESSOR x86_64)

set(CMAKE_C_COMPILER x86_64-w64-mingw32-gcc-posix)
set(CMAKE_CXX_COMPILER x86_64-w64-mingw32-g++-posix) # "posix": the one with std::thread
set(CMAKE_RC_COMPILER x86_64-w64-mingw32-windres)

# The same rule as in packaging/windows/cache.sh.
if(DEFINED ENV{TALLYHOOP_CACHE})
    set(TALLYHOOP_CACHE $ENV{TALLYHOOP_CACHE})
elseif(DEFINED ENV{XDG_CACHE_HOME})
    set(TALLYHOOP_CACHE $ENV{XDG_CACHE_HOME}/tallyhoop)
else()
    set(TALLYHOOP_CACHE $ENV{HOME}/.cache/tallyhoop)
endif()
set(CMAKE_FIND_ROOT_PATH
    ${TALLYHOOP_CACHE}/windows/libraries
    ${TALLYHOOP_CACHE}/windows/qt-6.4.2
    /usr/x86_64-w64-mingw32)
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER) # programs run here
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)

set(ENV{PKG_CONFIG_LIBDIR} ${TALLYHOOP_CACHE}/windows/libraries/lib/pkgconfig) # and none of this system's

set(CMAKE_CROSSCOMPILING_EMULATOR ${CMAKE_CURRENT_LIST_DIR}/../packaging/windows/run.sh) # by wine

# Qt's tools (moc, rcc, uic) are those of Debian's own Qt, which has the same version.
set(QT_HOST_PATH /usr)
set(QT_HOST_PATH_CMAKE_DIR /usr/lib/x86_64-linux-gnu/cmake)
