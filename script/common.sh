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

# passed PRESET: passes the tests of a preset that has been built, or prints what they said. Programs that count the
# lines they come through leave the counts in the preset's "profiles". Most tests of the window wait more than they
# work, so there are more of them at a time than processors.
passed() (
    log=build/$1/tests.log
    rm -rf "build/$1/profiles"
    LLVM_PROFILE_FILE=$root/build/$1/profiles/%4m.profraw
    export LLVM_PROFILE_FILE
    ctest --test-dir "build/$1" --output-on-failure -j$(($(getconf _NPROCESSORS_ONLN) * 2)) --quiet --output-log "$log" ||
        { cat "$log"; exit 1; }
)
