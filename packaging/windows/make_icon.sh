#!/bin/sh
# Makes tallyhoop.ico and finished.bmp anew from packaging/tallyhoop.svg, with this system's own Qt and icotool (package icoutils): to be run
# and committed when the drawing has changed.
set -eu
cd "$(dirname "$0")/../.."
scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT
# shellcheck disable=SC2046 # these are several words
${CXX:-g++} -std=c++20 -fPIC -DQT_NO_KEYWORDS -I. packaging/windows/draw_icon.cpp qt/svg_picture.cpp qt/svg_path.cpp \
    -o "$scratch/draw_icon" $(pkg-config --cflags --libs Qt6Gui)
QT_QPA_PLATFORM=offscreen "$scratch/draw_icon" packaging/tallyhoop.svg "$scratch"
cd "$scratch"
icotool --create --output=tallyhoop.ico 16.png 20.png 24.png 32.png 40.png 48.png 64.png --raw=256.png
mv tallyhoop.ico finished.bmp "$OLDPWD/packaging/windows/"
