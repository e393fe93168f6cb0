#!/bin/sh
# Runs a program of the GNUstep tests with settings, temporary files and a screen of its own.
set -eu
folder=$(mktemp -d /tmp/tnt.XXXXXX)
remove=$(cd "$(dirname "$0")/../../script" && pwd)/remove-sandbox
trap '"$remove" "$folder"' EXIT
mkdir "$folder/defaults" "$folder/library" "$folder/tmp"
cat >"$folder/GNUstep.conf" <<END
GNUSTEP_USER_DEFAULTS_DIR=$folder/defaults
GNUSTEP_USER_DIR_LIBRARY=$folder/library
GNUSTEP_USER_CONFIG_FILE=
END
export LANGUAGE=en GNUSTEP_CONFIG_FILE="$folder/GNUstep.conf" TMP="$folder/tmp" TEMP="$folder/tmp" TMPDIR="$folder/tmp"
export TARNWICK_TEST_FOLDER="$folder" TARNWICK_STRICT_EXCEPTIONS=1 TARNWICK_OPENER=/bin/true
case " $* " in
# The list of tests needs no screen.
*" --gtest_list_tests "*) "$@" ;;
*) "$(dirname "$0")/../../script/with-display" timeout -s KILL 60 "$@" ;;
esac
