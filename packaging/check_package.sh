#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Installs the package on a clean system, uses it, removes it and looks for what is left. Needs root and mmdebstrap.
#   packaging/check_package.sh PACKAGE.deb [SUITE [MIRROR]]
set -euo pipefail
package=$(realpath "$1")
suite=${2:-$(. /etc/os-release && echo "$VERSION_CODENAME")}
here=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
system=$(mktemp -d)
trap 'rm -rf --one-file-system "$system"' EXIT
mmdebstrap --quiet --variant=minbase --include=bash-completion,ca-certificates,man-db "$suite" "$system" ${3:+"$3"}
cp "$package" "$system/root/tolvo.deb"
cp "$here"/use_*.sh "$system/root/"
# What is mounted goes with the namespace.
unshare --mount --pid --fork sh -c '
    mount --bind /dev "$1/dev" && mount -t proc proc "$1/proc" &&
    exec chroot "$1" /usr/bin/env -i PATH=/usr/sbin:/usr/bin:/sbin:/bin LC_ALL=C.UTF-8 DEBIAN_FRONTEND=noninteractive \
        bash /root/use_package.sh /root/tolvo.deb' check "$system"
