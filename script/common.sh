# Shared by the scripts beside it: where things are, and how a preset is built.
root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
cd "$root"
mkdir -p build

# build PRESET [TARGET ...]: configures the first time, then builds; prints nothing but trouble.
build() {
    local preset=$1
    shift
    local log=build/$preset.log
    local targets=()
    (($# > 0)) && targets=(--target "$@")
    if [[ ! -f build/$preset/build.ninja ]]; then
        cmake --preset "$preset" >"$log" 2>&1 || { cat "$log" >&2; return 1; }
    fi
    cmake --build "build/$preset" "${targets[@]}" >"$log" 2>&1 || { cat "$log" >&2; return 1; }
}
