#!/usr/bin/env bash
# Runs a command in a copy of this project inside a Debian that has nothing installed but git, as a newcomer would.
#
# usage: bare.sh SUITE COMMAND...     bookworm (Qt 6.4), trixie (Qt 6.8) or sid (the newest)
#
# Needs root and mmdebstrap. Untracked files are copied too, ignored ones are not. The bare system is made once, below
# ${VTWIDGETS_CACHE:-${XDG_CACHE_HOME:-~/.cache}/vtwidgets}; the command works on a copy of it, which is removed at the
# end.
set -euo pipefail
suite=$1
shift
project=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
cache=${VTWIDGETS_CACHE:-${XDG_CACHE_HOME:-$HOME/.cache}/vtwidgets}/bare
base=$cache/$suite
mkdir -p "$cache"

if [[ ! -d $base ]]; then
    mirror=$(apt-get indextargets --format '$(REPO_URI)' 'Created-By: Packages' | grep -v security | head -n 1)
    mmdebstrap --quiet --variant=minbase --mode=root --include=ca-certificates,git \
        --aptopt='Acquire::Check-Valid-Until "false"' "$suite" "$base.new" \
        "deb [trusted=yes] ${mirror%/} $suite main"
    mv "$base.new" "$base"
fi

root=$(mktemp -d "$cache/$suite.XXXXXX")
leave() {
    umount "$root/dev" "$root/proc" 2>/dev/null || true
    # Never below a mount that could not be undone.
    if ! mountpoint -q "$root/dev" && ! mountpoint -q "$root/proc"; then
        rm -rf --one-file-system "$root"
    fi
}
trap leave EXIT
cp -a "$base/." "$root"
mount --bind /proc "$root/proc"
mount --bind /dev "$root/dev"
cp -L /etc/resolv.conf "$root/etc/" 2>/dev/null || true
mkdir "$root/project"
git -C "$project" ls-files -z --cached --others --exclude-standard |
    tar -C "$project" --null -T - --ignore-failed-read -c | tar -C "$root/project" -x

chroot "$root" env -i PATH=/usr/sbin:/usr/bin:/sbin:/bin HOME=/root ${http_proxy:+http_proxy="$http_proxy"} \
    ${https_proxy:+https_proxy="$https_proxy"} bash -c 'cd /project && exec "$@"' bare "$@"
