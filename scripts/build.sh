# Sourced by run.sh and test.sh: configures and builds one of the presets.

# build_preset PRESET FOLDER [-D...] [-- TARGET...]: no targets means everything.
build_preset() {
    local preset=$1 folder=$2
    shift 2
    local options=() targets=()
    while [ $# -gt 0 ] && [ "$1" != -- ]; do
        options+=("$1")
        shift
    done
    if [ $# -gt 1 ]; then
        shift
        targets=(--target "$@")
    fi
    if command -v ccache >/dev/null; then
        options+=(-DCMAKE_CXX_COMPILER_LAUNCHER=ccache)
    fi
    echo "Building the $preset preset in $folder/"
    cmake --preset "$preset" "${options[@]}" --log-level=WARNING
    cmake --build "$folder" --parallel "$(nproc)" "${targets[@]}"
}
