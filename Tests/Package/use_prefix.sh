#!/usr/bin/env bash
# Builds a small program outside the tree against an installed library, with CMake and with pkg-config, and runs
# both.
#
# Usage: use_prefix.sh PREFIX CONSUMER_FOLDER
set -euo pipefail
prefix=$1 consumer=$2
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
export QT_QPA_PLATFORM=offscreen

config=$(find "$prefix" -name VTWidgetsLite.pc)
[[ -n $config ]] || { echo "use_prefix: there is no VTWidgetsLite.pc below $prefix" >&2; exit 1; }
libraries=$(dirname "$(dirname "$config")")

cmake -S "$consumer" -B "$work/cmake" -DCMAKE_PREFIX_PATH="$prefix" >/dev/null
cmake --build "$work/cmake" >/dev/null
with_cmake=$("$work/cmake/consumer")

export PKG_CONFIG_PATH=$(dirname "$config")
read -ra flags <<<"$(pkg-config --cflags --libs VTWidgetsLite)"
c++ -std=c++17 "$consumer/main.cpp" -o "$work/consumer" "${flags[@]}" -Wl,-rpath,"$libraries"
with_pkg_config=$("$work/consumer")

expected="$(pkg-config --modversion VTWidgetsLite) Roboto 1"
for said in "$with_cmake" "$with_pkg_config"; do
    [[ $said == "$expected" ]] || { echo "use_prefix: expected \"$expected\", got \"$said\"" >&2; exit 1; }
done
echo "use_prefix: $expected, with CMake and with pkg-config"
