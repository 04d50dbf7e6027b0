#!/usr/bin/env bash
# with_windows.sh WINDOW_MANAGER PROGRAM...: runs a test program among real windows of the display at hand.
"$1" >/dev/null 2>&1 &
manager=$!
trap 'kill "$manager"' EXIT
sleep 1 # a window manager doesn't say when it is ready
QT_QPA_PLATFORM=xcb "${@:2}"
