#!/usr/bin/env bash
# Builds the library, its tests and its programs for Windows with MinGW, and runs the tests under Wine.
#
# usage: test.sh [--pages FOLDER]     also writes the pages of the gallery, at scale 1 and 2, to a folder
#
# Qt is built by the first run, for the version of this system's Qt, and kept below
# ${VTWIDGETS_CACHE:-${XDG_CACHE_HOME:-~/.cache}/vtwidgets}. build/windows/bin can be copied to a Windows machine as it is.
# The last line says how many tests passed.
set -euo pipefail
pages=${2:-}
here=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
root=$(cd "$here/../.." && pwd)
build=$root/build/windows
compiler=x86_64-w64-mingw32-g++-posix

version=$(dpkg-query -W -f '${source:Version}' qt6-base-dev)
cache=${VTWIDGETS_CACHE:-${XDG_CACHE_HOME:-$HOME/.cache}/vtwidgets}
qt=$cache/qt-windows-$version
[[ -d $qt ]] || "$here/build_qt.sh" "$version" "$qt"

# Tests that can't pass under Wine, each with its reason.
left_out=(
    'tst_PhotoTour: its functions pass, but then the process waits in the C++ runtime of MinGW for a lock and never ends'
)

# Not below the project, as tools that walk through it would find this whole system there.
export WINEPREFIX=$cache/wine WINEDEBUG=-all WINEDLLOVERRIDES=mscoree,mshtml=
wine=$(command -v wine64 || echo /usr/lib/wine/wine64)

cd "$root"
cmake --preset windows -DCMAKE_PREFIX_PATH="$qt" -DQT_HOST_PATH=/usr \
    -DQT_HOST_PATH_CMAKE_DIR="$("$(command -v qmake6 || command -v qmake)" -query QT_INSTALL_LIBS)/cmake" \
    -DCMAKE_CROSSCOMPILING_EMULATOR="$wine" -DVTWIDGETS_PICTURE_TOOL="$root/build/release/bin/vtwidgets-picture" \
    -DVTWIDGETS_WERROR="${VTWIDGETS_WERROR:-OFF}"
cmake --build --preset windows

# The libraries that a program needs on a machine without a compiler.
for library in libstdc++-6.dll libgcc_s_seh-1.dll libwinpthread-1.dll; do
    cp -u "$($compiler -print-file-name=$library)" "$build/bin"
done
for library in Core Gui Widgets Concurrent Test; do
    cp -u "$qt/bin/Qt6$library.dll" "$build/bin"
done
mkdir -p "$build/bin/platforms" "$build/bin/imageformats" "$build/bin/styles"
cp -u "$qt"/plugins/platforms/{qwindows,qoffscreen,qminimal}.dll "$build/bin/platforms"
cp -u "$qt"/plugins/imageformats/*.dll "$build/bin/imageformats"

# Wine needs a display for its own windows, also while tests run offscreen.
in_display() {
    xvfb-run -a -s '-screen 0 1600x1200x24' "$@"
}

# A server that stays, rather than one for every program.
in_display "$wine" wineboot --init >/dev/null 2>&1
trap 'WINEPREFIX=$WINEPREFIX "${wine/wine64/wineserver64}" -k 2>/dev/null || true' EXIT

if [[ -n $pages ]]; then
    mkdir -p "$pages"
    pages=$(cd "$pages" && pwd)
    # Wine keeps Qt's variables from programs unless they are marked as its own.
    WINEQT_QPA_PLATFORM=offscreen in_display "$wine" "$build/bin/vtwidgets-gallery.exe" --all-screenshots "Z:$pages"
    echo "test-windows: $pages/*.png"
fi

skipped=$(IFS='|' && echo "${left_out[*]%%:*}")
log=$build/tests.log
code=0
in_display ctest --preset windows -j "$(nproc)" ${skipped:+-E "^($skipped)$"} | tee "$log" || code=$?
((${#left_out[@]} == 0)) || printf 'test-windows: left out %s\n' "${left_out[@]}"
tail -n 30 "$log" | sed -n "s/^.*% tests passed, \([0-9]*\) tests failed out of \([0-9]*\).*/Qt $version under Wine, \1 of \2 tests failed/p"
exit $code
