#!/usr/bin/env bash
# Collects what a release hands out: release.sh FOLDER. Refuses a tree with changes, a version without its entry in the
# change log, and a red test.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
files=$1

refuse() { echo "No release: $*" >&2; exit 1; }

changed=$(git status --porcelain | head -n 5)
[ -z "$changed" ] || refuse $'these files are not committed:\n'"$changed"
version=$(sed -n 's/^project(Tolvo VERSION \([0-9.]*\).*/\1/p' CMakeLists.txt)
grep -q "^## \[${version//./\\.}\] - [0-9]" CHANGELOG.md || refuse "CHANGELOG.md has no entry for $version"
! git rev-parse -q --verify "refs/tags/v$version" >/dev/null ||
    [ "$(git rev-parse "v$version^{commit}")" = "$(git rev-parse HEAD)" ] || refuse "v$version is another commit already"
./dev test || refuse "a test failed"
./dev package

rm -rf "$files"
mkdir -p "$files"
git archive --prefix="tolvo-$version/" HEAD | xz -9 >"$files/tolvo-$version.tar.xz"
cp build/package/tolvo_*.deb "$files"
(cd "$files" && sha256sum -- * >SHA256SUMS)
echo "Release $version, to be tagged v$version:"
cat "$files/SHA256SUMS"
