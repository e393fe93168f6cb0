#!/bin/sh
# The user script for Linux: runs the handler that is its one argument, outside the application.
#
# TARNWICK_DEFAULTS_DIR  the folder of the user's defaults domains
# TARNWICK_LIBRARY_DIR   the user's GNUstep Library folder
#
# Leaves with 64 when it is called wrongly and with 69 when a program is missing.
set -u

refuse() {
    echo "applescript: $2" >&2
    exit "$1"
}

# Every folder of the desktop that is opened afterwards starts Nautilus anew.
restartFinder() {
    if command -v nautilus >/dev/null; then
        nautilus -q
    fi
}

openServices() {
    command -v gnome-control-center >/dev/null || refuse 69 "gnome-control-center is not installed"
    gnome-control-center keyboard
}

# requireFolder NAME VALUE: what is removed lies below these folders, so each must be a known one.
requireFolder() {
    case $2 in
    /*) ;;
    '') refuse 64 "$1 is not set" ;;
    *) refuse 64 "$1 is not an absolute path" ;;
    esac
}

initialize() {
    requireFolder TARNWICK_DEFAULTS_DIR "${TARNWICK_DEFAULTS_DIR:-}"
    requireFolder TARNWICK_LIBRARY_DIR "${TARNWICK_LIBRARY_DIR:-}"
    group=H7Q2ZK5RX9.org.halvane.Tarnwick
    rm -f -- "$TARNWICK_DEFAULTS_DIR/org.halvane.Tarnwick.plist" "$TARNWICK_DEFAULTS_DIR/$group.plist"
    rm -rf -- "$TARNWICK_LIBRARY_DIR/Group Containers/$group/Templates"
}

[ $# -eq 1 ] || refuse 64 "one handler expected: restartFinder, openServices or initialize"
case $1 in
restartFinder | openServices | initialize) "$1" ;;
*) refuse 64 "no handler \"$1\"" ;;
esac
