#!/usr/bin/env bash
# Does what the README says under "Use it", command by command, as a reader who pastes it: the commands before the first
# source in the project's folder, the others in an empty one. A program that opens a window has ten seconds.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/../.."
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
mkdir "$work/hello"
export QT_QPA_PLATFORM=offscreen

awk -v folder="$work" '
    /^## / { inside = $0 == "## Use it" }
    !inside { next }
    /^```cpp/ { file = folder "/hello/main.cpp"; sources = 1; next }
    /^```cmake/ { file = folder "/hello/CMakeLists.txt"; next }
    /^```/ { file = ""; next }
    file { print > file; next }
    /^    / { print substr($0, 5) > (folder "/" (sources ? "after" : "before")) }
' README.md
for file in before after hello/main.cpp hello/CMakeLists.txt; do
    [[ -s $work/$file ]] || { echo "follow_readme: the README has nothing for $file" >&2; exit 1; }
done

# follow FILE: runs its lines, which the shell has to accept as they are.
follow() {
    local line code
    while IFS= read -r line; do
        echo "follow_readme: $line"
        code=0
        timeout --foreground --kill-after 5 1800 bash -c "$line" </dev/null || code=$?
        ((code == 0)) || { echo "follow_readme: ended with $code: $line" >&2; exit 1; }
    done <"$1"
}

follow "$work/before"
cd "$work/hello"
# The program's window stays open until somebody closes it.
sed -i 's|\(.*&& \)\(build/hello\)$|\1{ timeout 10 \2; (($? == 124)); }|' "$work/after"
follow "$work/after"
