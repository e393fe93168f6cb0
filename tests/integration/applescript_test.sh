#!/bin/sh
# Runs the user script for Linux in throwaway folders: applescript_test.sh SCRIPT
set -u

script=$1
sandbox=$(mktemp -d) || exit 1
trap 'rm -rf "$sandbox"' EXIT
group=H7Q2ZK5RX9.org.halvane.Tarnwick
failures=0

fail() {
    echo "FAILED: $test: $1"
    failures=$((failures + 1))
}

# begin NAME: a new pair of folders, filled with what an application and its neighbours leave.
begin() {
    test=$1
    rm -rf "$sandbox/user"
    defaults="$sandbox/user/my defaults"
    library="$sandbox/user/my library"
    container="$library/Group Containers/$group"
    programs=$sandbox/user/programs
    mkdir -p "$defaults/.lck" "$container/Templates/CreateNewFile" "$container/Templates/FunctionIcon" \
        "$container/Library" "$library/Group Containers/H7Q2ZK5RX9.org.halvane/Templates" "$library/Templates" "$programs"
    touch "$defaults/org.halvane.Tarnwick.plist" "$defaults/$group.plist"
    touch "$defaults/$group.plist.lock" "$defaults/org.halvane.Tarnwick.plist.damaged-1" \
        "$defaults/org.halvane.TarnwickService.plist" "$defaults/NSGlobalDomain.plist"
    touch "$container/Templates/CreateNewFile/Word.docx" "$container/Templates/FunctionIcon/cut.png" \
        "$container/notes.txt" "$library/Group Containers/H7Q2ZK5RX9.org.halvane/Templates/other.txt"
    before=$(contents)
}

contents() { (cd "$sandbox/user" && find . | LC_ALL=C sort); }

# run ARGUMENT ...: sets `status`; standard error is left in $sandbox/errors. Only the core programs are found
# beside those of the test.
run() {
    TARNWICK_DEFAULTS_DIR=$defaults TARNWICK_LIBRARY_DIR=$library PATH=$programs:$corePrograms \
        /bin/sh "$script" "$@" 2>"$sandbox/errors"
    status=$?
}

# makeProgram NAME: one that records how it was called.
makeProgram() {
    printf '#!/bin/sh\necho "%s $*" >>"%s/calls"\n' "$1" "$sandbox/user" >"$programs/$1"
    chmod +x "$programs/$1"
    before=$(contents)
}

expectStatus() { [ "$status" -eq "$1" ] || fail "left with $status instead of $1"; }
expectMessage() { grep -q "$1" "$sandbox/errors" || fail "no word of \"$1\" on standard error"; }
expectSilence() { [ ! -s "$sandbox/errors" ] || fail "says: $(cat "$sandbox/errors")"; }
expectNothingChanged() { [ "$(contents)" = "$before" ] || fail "changed what is there"; }
expectCalls() { [ "$(cat "$sandbox/user/calls" 2>/dev/null)" = "$1" ] || fail "calls: $(cat "$sandbox/user/calls")"; }

corePrograms=$sandbox/core
mkdir "$corePrograms"
ln -s "$(command -v rm)" "$corePrograms/rm"

begin "initializing removes both domains and the templates and nothing else"
run initialize
expectStatus 0
expectSilence
removed=$(printf '%s\n' "./my defaults/$group.plist" "./my defaults/org.halvane.Tarnwick.plist" \
    "./my library/Group Containers/$group/Templates" \
    "./my library/Group Containers/$group/Templates/CreateNewFile" \
    "./my library/Group Containers/$group/Templates/CreateNewFile/Word.docx" \
    "./my library/Group Containers/$group/Templates/FunctionIcon" \
    "./my library/Group Containers/$group/Templates/FunctionIcon/cut.png")
expected=$(echo "$before" | grep -vxF "$removed")
[ "$(contents)" = "$expected" ] || fail "left behind: $(contents)"

begin "initializing twice is no failure"
run initialize
run initialize
expectStatus 0
expectSilence

begin "templates that are a link lose the link and not what it leads to"
mkdir "$sandbox/user/elsewhere"
touch "$sandbox/user/elsewhere/kept.txt"
rm -r "$container/Templates"
ln -s "$sandbox/user/elsewhere" "$container/Templates"
run initialize
expectStatus 0
[ ! -L "$container/Templates" ] || fail "the link is still there"
[ -f "$sandbox/user/elsewhere/kept.txt" ] || fail "the linked file is gone"

for folder in '' relative ./relative; do
    begin "initializing refuses the defaults folder \"$folder\""
    defaults=$folder
    run initialize
    expectStatus 64
    expectMessage TARNWICK_DEFAULTS_DIR
    expectNothingChanged

    begin "initializing refuses the library folder \"$folder\""
    library=$folder
    run initialize
    expectStatus 64
    expectMessage TARNWICK_LIBRARY_DIR
    expectNothingChanged
done

begin "initializing refuses to run without its folders"
env -u TARNWICK_DEFAULTS_DIR -u TARNWICK_LIBRARY_DIR /bin/sh "$script" initialize 2>"$sandbox/errors"
status=$?
expectStatus 64
expectMessage TARNWICK_DEFAULTS_DIR
expectNothingChanged

for handler in '' setTextServices Initialize requireFolder rm 'initialize '; do
    begin "the unknown handler \"$handler\" is refused"
    run "$handler"
    expectStatus 64
    expectMessage "no handler \"$handler\""
    expectNothingChanged
done

begin "a missing handler is refused"
run
expectStatus 64
expectMessage "one handler expected"
expectNothingChanged

begin "a second argument is refused"
run initialize now
expectStatus 64
expectMessage "one handler expected"
expectNothingChanged

begin "restarting quits Nautilus"
makeProgram nautilus
run restartFinder
expectStatus 0
expectCalls "nautilus -q"

begin "restarting without Nautilus does nothing"
run restartFinder
expectStatus 0
expectSilence
expectNothingChanged

begin "the services are opened in the keyboard settings"
makeProgram gnome-control-center
run openServices
expectStatus 0
expectCalls "gnome-control-center keyboard"

begin "a missing settings program is named"
run openServices
expectStatus 69
expectMessage gnome-control-center
expectNothingChanged

[ "$failures" -eq 0 ] || exit 1
echo "all passed"
