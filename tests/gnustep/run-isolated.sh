#!/bin/sh
# Runs a program of the GNUstep tests with settings, temporary files and a screen of its own.
set -eu
export TARNWICK_STRICT_EXCEPTIONS=1 TARNWICK_OPENER=/bin/true
run=$(dirname "$0")/../../harness/user_folder.py
case " $* " in
# The list of tests needs no screen.
*" --gtest_list_tests "*) exec "$run" "$@" ;;
*) exec "$run" --display timeout -s KILL 60 "$@" ;;
esac
