#!/usr/bin/env bash
# Type-checks all sources that are for Windows with MinGW's compiler. Nothing is linked or run.
#
# Qt's headers are those of the system this runs on. They choose Q_OS_WIN by the compiler, so every Windows
# branch of ours and of theirs is seen; only features that Qt has on other systems alone are turned off below.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/../.."

compiler=x86_64-w64-mingw32-g++-posix
qmake=$(command -v qmake6 || command -v qmake)
qt=$($qmake -query QT_INSTALL_HEADERS)
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

cat >"$work/windows.h.in" <<'TEXT'
#include <QtGui/qtguiglobal.h>
#if !defined(Q_OS_WIN)
#error This compiler does not build for Windows
#endif
TEXT
for feature in xcb xcb_glx_plugin egl fontconfig glib inotify eventfd accessibility_atspi_bridge; do
    printf '#undef QT_FEATURE_%s\n#define QT_FEATURE_%s -1\n' $feature $feature
done >>"$work/windows.h.in"
mv "$work/windows.h.in" "$work/qt_on_windows.h"

flags=(-std=c++17 -fsyntax-only -Wall -Wextra -Wnon-virtual-dtor -Werror -DUNICODE -D_UNICODE
    -DQT_FORCE_ASSERTS -DQT_NO_CAST_TO_ASCII -DQT_NO_FOREACH -DVTWIDGETS_VERSION='""' -DPHOTODESK_VERSION='""' -DPHOTODESK_SAMPLES='""'
    -isystem "$qt" -isystem "$qt/QtCore" -isystem "$qt/QtGui" -isystem "$qt/QtWidgets"
    -include "$work/qt_on_windows.h" -I "$work/moc" -I Source/Common -I Source/Platform)
for folder in Source/Common/*/ Source/Platform/*/; do
    flags+=(-I "$folder")
done

# Headers of other makers that need nothing of this system; their own folder holds this system's headers too.
valijson=
for folder in ${VTWIDGETS_VALIJSON_INCLUDE_DIR:-} /usr/include /usr/local/include; do
    if [[ -z $valijson && -f $folder/valijson/validator.hpp ]]; then
        valijson=$folder/valijson
    fi
done
[[ -n $valijson ]] || { echo "check-windows: valijson/validator.hpp was not found" >&2; exit 2; }
mkdir "$work/headers"
ln -s "$valijson" "$work/headers/valijson"
flags+=(-isystem "$work/headers" -I Applications -I Plugins)

mapfile -t sources < <(find Source Plugins Applications Resources/Tools -name '*.cpp' ! -name '*_other.cpp' | sort)

# Meta-object code is not generated here, so what sources include of it is empty.
mkdir "$work/moc"
sed -nE 's/^#include "(.*\.moc|moc_.*\.cpp)".*/\1/p' "${sources[@]}" | while read -r generated; do
    touch "$work/moc/$generated"
done

# A library's own sources see its classes as exported, everybody else as imported.
check() {
    local library=
    case $1 in
        Source/Common/*) library=VTWIDGETSLITE ;;
        Source/Platform/*) library=$(cut -d / -f 3 <<<"${1^^}") ;;
    esac
    "${@:2}" ${library:+-D${library}_BUILD} "$1"
}
export -f check

echo "check-windows: ${#sources[@]} sources"
printf '%s\0' "${sources[@]}" |
    xargs -0 -P "$(nproc)" -I {} \
        bash -c 'check "$@" || ! echo "check-windows: $1 failed" >&2' _ {} "$compiler" "${flags[@]}"
echo "check-windows: all passed"
