#!/usr/bin/env bash
# Tries what the README promises a newcomer, in a bare Debian: the gallery, the part "Use it" and the tests. Before each
# of them the packages that the one before has installed are removed, so that each proves that it installs its own.
# The last line is a summary. Meant for "./run bare", as it removes packages.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
export VTWIDGETS_WERROR=ON

packages() {
    dpkg-query -W -f '${Package}:${Architecture}\n' | sort
}

packages >/tmp/packages
bare_again() {
    local added
    added=$(packages | comm -13 /tmp/packages -)
    [[ -z $added ]] || xargs apt-get purge -y -qq <<<"$added" >/dev/null 2>&1
}

./run gallery
pages=$(find gallery-pages -name '*.png' | wc -l)
bare_again
bash Tests/Package/follow_readme.sh
bare_again
./run test | tee /tmp/tests
tests=$(sed -n 's/^.*% tests passed, \([0-9]*\) tests failed out of \([0-9]*\).*/\1 of \2 tests failed/p' /tmp/tests)
echo "Qt $(dpkg-query -W -f '${Version}' qt6-base-dev), $pages pages of the gallery, \"Use it\" works, $tests"
