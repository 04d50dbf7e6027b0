#!/usr/bin/env bash
# Installs a build into an empty prefix, moves that prefix elsewhere, and uses what is there.
#
# Usage: install_and_use.sh BUILD_FOLDER
set -euo pipefail
here=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

build=$(cd "$1" && pwd)
cmake --install "$build" --prefix "$work/first" >/dev/null
mv "$work/first" "$work/moved"

# All headers together, for a program that knows no private one.
export PKG_CONFIG_PATH=$(dirname "$(find "$work/moved" -name VTWidgetsLite.pc)")
read -ra flags <<<"$(pkg-config --cflags VTWidgetsLite)"
cd "$work/moved/include/VTWidgetsLite"
find . -name '*.h' | sort | sed 's|^\./\(.*\)|#include "\1"|' >"$work/headers.cpp"
(($(wc -l <"$work/headers.cpp") > 30))
c++ -std=c++17 -fsyntax-only -Wall -Wextra -Werror "$work/headers.cpp" "${flags[@]}"

[[ -z $(find "$work/moved/include" -name '*Helper*.h' -o -name '*_p.h') ]] ||
    { echo "install_and_use: private headers were installed" >&2; exit 1; }
[[ -n $(find "$work/moved/share/doc" -name '*font-awesome*') ]] ||
    { echo "install_and_use: the fonts' licences are missing" >&2; exit 1; }
QT_QPA_PLATFORM=offscreen "$work/moved/bin/vtwidgets-gallery" --list-pages >/dev/null
mkdir "$work/exported"
env -u DISPLAY "$work/moved/bin/PhotoDesk" --export "$work/exported" --preset Silver "$work/moved/share/PhotoDesk" >/dev/null
[[ $(ls "$work/exported" | wc -l) == 3 ]] || { echo "install_and_use: PhotoDesk exported nothing" >&2; exit 1; }
[[ -f $work/moved/share/VTWidgetsLite/theme.schema.json ]]
if [[ -x $build/bin/vtwidgets-theme ]]; then
    "$work/moved/bin/vtwidgets-theme" list >/dev/null
fi
bash "$here/use_prefix.sh" "$work/moved" "$here/consumer"
