# A throwaway user folder for running the application without touching the real user's settings.

# makeSandbox: creates one below the temporary folder, exports what makes the application use it, and sets
# `sandbox`, `defaultsFolder` and `libraryFolder`. The path is short: the notification centre's socket lies in it.
makeSandbox() {
    sandbox=$(mktemp -d /tmp/tarnwick.XXXXXX)
    defaultsFolder=$sandbox/defaults
    libraryFolder=$sandbox/library
    mkdir -p "$defaultsFolder" "$libraryFolder" "$sandbox/tmp"
    cat >"$sandbox/GNUstep.conf" <<CONF
GNUSTEP_USER_DEFAULTS_DIR=$defaultsFolder
GNUSTEP_USER_DIR_LIBRARY=$libraryFolder
GNUSTEP_USER_CONFIG_FILE=
CONF
    export LANGUAGE=en GNUSTEP_CONFIG_FILE=$sandbox/GNUstep.conf TMP=$sandbox/tmp TEMP=$sandbox/tmp
}
