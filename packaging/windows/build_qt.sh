#!/bin/sh
# Builds Qt for Windows from Debian's source package, once, into a cache outside the tree; does nothing when it is there,
# and goes on where it was when it has been stopped. Takes half an hour at two cores, 1.6 GB meanwhile, and 70 MB for good.
#
# Only the modules that the program and its tests use, as DLLs: so everyone may put another Qt in their place, as its
# licence (LGPL) wants it.
set -eu
. "$(dirname "$0")/cache.sh"
version=6.4.2
prefix=$cache/qt-$version
if [ -e "$prefix/complete" ]; then
    echo "Qt for Windows is in $prefix"
    exit 0
fi

fetch_source qt6-base $version+dfsg-10
build=$cache/build/qt-$version
rm -rf "$prefix"
# Debian's source has no wintab.h, hence no tabletevent. Network is for the tests, which look into windows over a socket.
cmake -S "$source_folder" -B "$build" -G Ninja -Wno-dev --log-level=WARNING \
    -DCMAKE_TOOLCHAIN_FILE="$repository/cmake/windows_toolchain.cmake" \
    -DCMAKE_INSTALL_PREFIX="$prefix" -DCMAKE_BUILD_TYPE=Release -DBUILD_SHARED_LIBS=ON \
    -DQT_HOST_PATH=/usr -DQT_HOST_PATH_CMAKE_DIR=/usr/lib/x86_64-linux-gnu/cmake \
    -DQT_BUILD_EXAMPLES=OFF -DQT_BUILD_TESTS=OFF \
    -DINPUT_opengl=no -DINPUT_openssl=no \
    -DFEATURE_concurrent=OFF -DFEATURE_dbus=OFF -DFEATURE_direct2d1_1=OFF -DFEATURE_dnslookup=OFF -DFEATURE_http=OFF \
    -DFEATURE_icu=OFF -DFEATURE_imageformat_jpeg=OFF -DFEATURE_jpeg=OFF -DFEATURE_pkg_config=OFF -DFEATURE_schannel=OFF \
    -DFEATURE_sql=OFF -DFEATURE_tabletevent=OFF -DFEATURE_tuiotouch=OFF -DFEATURE_vulkan=OFF -DFEATURE_xml=OFF \
    -DFEATURE_system_zlib=OFF -DFEATURE_system_png=OFF -DFEATURE_system_pcre2=OFF -DFEATURE_system_freetype=OFF \
    -DFEATURE_system_harfbuzz=OFF -DFEATURE_system_doubleconversion=OFF -DFEATURE_zstd=OFF -DFEATURE_brotli=OFF
cmake --build "$build" --parallel "$jobs"
cmake --install "$build" --strip >"$build/install.log"
cp "$source_folder/debian/copyright" "$prefix/QT.TXT"
rm -rf "$build" "$source_folder"
touch "$prefix/complete"
echo "Qt for Windows is in $prefix"
