#!/bin/sh
# Builds the small libraries for Windows from Debian's packages, once, into a cache outside the tree: fmt and GoogleTest
# as static libraries, nlohmann-json and CLI11 as the headers that they are.
set -eu
. "$(dirname "$0")/cache.sh"
prefix=$cache/libraries
if [ -e "$prefix/complete" ]; then
    echo "The libraries for Windows are in $prefix"
    exit 0
fi

# build SOURCE NAME OPTION...
build()
{
    source=$1
    build=$cache/build/$2
    shift 2
    cmake -S "$source" -B "$build" -G Ninja --log-level=WARNING \
        -DCMAKE_TOOLCHAIN_FILE="$repository/cmake/windows_toolchain.cmake" \
        -DCMAKE_INSTALL_PREFIX="$prefix" -DCMAKE_BUILD_TYPE=Release -DBUILD_SHARED_LIBS=OFF "$@"
    cmake --build "$build" --parallel "$jobs"
    cmake --install "$build" >"$build/install.log"
    rm -rf "$build"
}

rm -rf "$prefix"
fetch_source fmtlib 9.1.0+ds1-2
build "$source_folder" fmt -DFMT_TEST=OFF -DFMT_DOC=OFF
cp "$source_folder/debian/copyright" "$prefix/FMT.TXT"
rm -rf "$source_folder"
build /usr/src/googletest googletest

mkdir -p "$prefix/share/cmake"
cp -R /usr/include/nlohmann /usr/include/CLI "$prefix/include"
cp -R /usr/share/cmake/nlohmann_json /usr/share/cmake/CLI11 "$prefix/share/cmake"
touch "$prefix/complete"
echo "The libraries for Windows are in $prefix"
