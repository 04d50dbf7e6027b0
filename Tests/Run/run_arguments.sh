#!/usr/bin/env bash
# Usage: run_arguments.sh PATH_OF_RUN. What "run" does with words that it doesn't know, and with packages that
# it can't install. Nothing is built.
set -u
run=$1
failures=0
path=$PATH
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

fail() {
    echo "FAILED: $*"
    failures=$((failures + 1))
}

# refuses TEXT ARGUMENTS...: exit code 2 and one line on the standard error with the text, nothing else.
refuses() {
    local text=$1 output lines
    shift
    output=$(PATH=$path "$run" "$@" 2>"$work/error" </dev/null)
    local code=$?
    lines=$(wc -l <"$work/error")
    [[ $code == 2 ]] || fail "run $* ended with $code, not 2"
    [[ -z $output ]] || fail "run $* wrote to the standard output: $output"
    [[ $lines == 1 ]] || fail "run $* wrote $lines lines to the standard error"
    grep -qF -- "$text" "$work/error" || fail "run $* did not name $text: $(cat "$work/error")"
}

refuses '"nonsense"' nonsense
refuses '"nonsense"' test nonsense
refuses '"--chekc"' format --chekc
refuses '"--tyr"' package --tyr
refuses '"--pgaes"' test-windows --pgaes
refuses '"slink"' bare slink ./run test
refuses 'a command' bare sid
refuses 'a folder' install
refuses '"--opne"' docs --opne
refuses '"soon"' fuzz soon

"$run" help >"$work/help" || fail "run help failed"
for command in gallery photodesk test install bench check-windows check-mac test-windows bare matrix package docs \
    pictures format fuzz; do
    grep -q "^\./run $command" "$work/help" || fail "run help does not name $command"
done

# On a system of other packages: only what the script needs to get that far is on the path.
mkdir "$work/bin"
for tool in bash dirname nproc; do
    ln -s "$(command -v $tool)" "$work/bin/"
done
path=$work/bin
refuses 'libbenchmark-dev' bench

exit $((failures != 0))
