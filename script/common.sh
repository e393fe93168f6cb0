#!/bin/sh
# Shared by the project's scripts: where things are, and how a preset is built. POSIX sh, since a Mac runs it as well.
root=$(cd "$(dirname "$0")" && pwd)
until [ -f "$root/CMakePresets.json" ]; do
    root=${root%/*}
done
cd "$root" || exit
mkdir -p build

# build PRESET [TARGET ...]: configures the first time, then builds; prints nothing but trouble.
build() (
    preset=$1
    shift
    log=build/$preset.log
    if [ $# -gt 0 ]; then
        set -- --target "$@"
    fi
    if [ ! -f "build/$preset/build.ninja" ]; then
        cmake --preset "$preset" >"$log" 2>&1 || { cat "$log" >&2; exit 1; }
    fi
    cmake --build "build/$preset" "$@" >"$log" 2>&1 || { cat "$log" >&2; exit 1; }
)
