# shellcheck shell=bash
# Shared by the scripts beside it: copies of the rooms to plant mistakes in. Sets `work`, whose copy is removed at the end,
# and counts in `planted`.
work=$(mktemp -d /tmp/tarnwick-planted.XXXXXX)
trap 'rm -rf "$work"' EXIT
planted=0

fail() {
    echo "${0##*/}: $1" >&2
    exit 1
}
freshCopy() {
    rm -rf "$work/copy"
    mkdir -p "$work/copy/tests"
    cp -r adapters app editing front gnustep integration platform prefs transfer ui values "$work/copy"
    cp -r tests/editing tests/integration tests/prefs tests/support "$work/copy/tests"
}
# plant FILE: the standard input goes to the end of the file.
plant() {
    [[ -f "$work/copy/$1" ]] || fail "there is no $1 to plant in"
    cat >>"$work/copy/$1"
}
# fails MESSAGE COMMAND [ARGUMENT ...]: the command fails on the copy and says so; then the copy is a fresh one.
fails() {
    local message=$1 output
    shift
    if output=$("$@" "$work/copy"); then
        fail "not reported: $message"
    fi
    grep -qF -- "$message" <<<"$output" || fail "expected: $message; reported: $output"
    planted=$((planted + 1))
    freshCopy
}
# passes COMMAND [ARGUMENT ...]: the command finds nothing in the copy.
passes() {
    local output
    output=$("$@" "$work/copy") || fail "nothing is wrong, but reported: $output"
    freshCopy
}
freshCopy
