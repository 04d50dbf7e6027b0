#!/usr/bin/env bash
# Cross-builds the parts of Qt that the library, its programs and its tests use, for Windows with MinGW.
#
# usage: build_qt.sh SOURCE_VERSION PREFIX
#
# The version is that of Debian's source package qt6-base; it has to be the one of the host's Qt, whose moc, rcc and uic
# are used. Takes 25 minutes on two cores. The prefix appears only when everything has been built.
set -euo pipefail
version=$1 prefix=$2
here=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
work=$prefix.work
mkdir -p "$work/apt/lists/partial" "$work/apt/archives/partial"

# Debian's sources, listed for this one download, so that the machine's own lists stay as they are.
fetch_sources() {
    local options=(-o Dir::Etc::SourceList="$work/apt/sources.list" -o Dir::Etc::SourceParts=/dev/null
        -o Dir::State::Lists="$work/apt/lists" -o Dir::Cache="$work/apt" -o APT::Sandbox::User=root)
    local keys=/usr/share/keyrings/debian-archive-keyring.gpg
    [[ -f $keys ]] && keys="[signed-by=$keys]" || keys=
    apt-get indextargets --format "deb-src $keys \$(REPO_URI) \$(CODENAME) \$(COMPONENT)" 'Created-By: Packages' |
        sort -u >"$work/apt/sources.list"
    apt-get "${options[@]}" update -qq
    (cd "$work" && apt-get "${options[@]}" source -qq "qt6-base=$version")
}

# The header of tablets, wintab.h, is not among Debian's sources. Turning OpenGL off
# leaves code that chooses its library at run time, which then doesn't compile.
leave_out_features() {
    local platforms=$1/src/plugins/platforms
    sed -i -E 's/QT_CONFIG\((tabletevent|dynamicgl)\)/0/' "$platforms"/windows/*.{h,cpp} "$platforms"/direct2d/*.{h,cpp}
    sed -i 's/CONDITION QT_FEATURE_tabletevent/CONDITION FALSE/' "$platforms"/{windows,direct2d}/CMakeLists.txt
}

if [[ ! -f $work/fetched ]]; then
    rm -rf "$work"/qt6-base-*/ "$work/build"
    fetch_sources
    leave_out_features "$(echo "$work"/qt6-base-*/)"
    touch "$work/fetched"
fi

features=()
for feature in network sql dbus printsupport xml opengl vulkan icu zstd; do
    features+=(-DFEATURE_$feature=OFF)
done
for library in freetype harfbuzz zlib png jpeg pcre2 doubleconversion; do
    features+=(-DFEATURE_system_$library=OFF)
done
qmake=$(command -v qmake6 || command -v qmake)
cmake -S "$(echo "$work"/qt6-base-*/)" -B "$work/build" -G Ninja \
    -DCMAKE_TOOLCHAIN_FILE="$here/toolchain.cmake" -DCMAKE_BUILD_TYPE=Release -DCMAKE_INSTALL_PREFIX="$prefix.new" \
    -DQT_HOST_PATH=/usr -DQT_HOST_PATH_CMAKE_DIR="$("$qmake" -query QT_INSTALL_LIBS)/cmake" \
    -DQT_QMAKE_TARGET_MKSPEC=win32-g++ -DQT_BUILD_EXAMPLES=OFF -DQT_BUILD_TESTS=OFF -DFEATURE_concurrent=ON \
    "${features[@]}" >"$work/configure.log" || { cat "$work/configure.log" >&2; exit 1; }
cmake --build "$work/build"
rm -rf "$prefix.new"
cmake --install "$work/build" >/dev/null
mv "$prefix.new" "$prefix"
rm -rf "$work"
