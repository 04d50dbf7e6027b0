#!/usr/bin/env bash
# What CMake says to a Qt that is too old, and where there is none.
#
# Usage: old_qt.sh PROJECT_FOLDER
set -euo pipefail
project=$1
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

# expects TEXT OPTIONS...: configuring fails and says the text.
expects() {
    ! cmake -S "$project" -B "$work/build" "${@:2}" >"$work/output" 2>&1 ||
        { echo "old_qt: configured with ${*:2}" >&2; exit 1; }
    # CMake wraps messages.
    tr -s ' \n' ' ' <"$work/output" | grep -qF -- "$1" ||
        { echo "old_qt: \"$1\" was not said:" >&2; cat "$work/output" >&2; exit 1; }
    rm -r "$work/build"
}

mkdir "$work/old"
echo 'set(Qt6_FOUND TRUE)' >"$work/old/Qt6Config.cmake"
echo 'set(PACKAGE_VERSION 6.2.4)
set(PACKAGE_VERSION_COMPATIBLE TRUE)' >"$work/old/Qt6ConfigVersion.cmake"
expects 'has Qt 6.2.4' -DQt6_DIR="$work/old"
expects 'Qt 6.4 or newer was not found' -DCMAKE_DISABLE_FIND_PACKAGE_Qt6=ON
