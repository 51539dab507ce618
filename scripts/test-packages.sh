#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 DataManager contributors
# SPDX-License-Identifier: BSD-3-Clause
#
# Installs the packages of scripts/package.sh into the tree of a Debian system, uses them there as people would, and
# removes them again. Needs root. Without TREE, a fresh one is made by debootstrap and removed afterwards.
#   scripts/test-packages.sh [TREE]
set -euo pipefail
cd "$(dirname "$0")/.."
packages=$PWD/build-package/packages
[ "$(id -u)" -eq 0 ] || { echo "test-packages: needs root" >&2; exit 1; }
ls "$packages"/*.deb >/dev/null

tree=${1:-}
made=
if [ -z "$tree" ]; then
  # shellcheck disable=SC1091
  . /etc/os-release
  archive=$(apt-get indextargets --format '$(REPO_URI)' | grep -E '/debian/?$' | head -n 1)
  made=$(mktemp -d)
  chmod 755 "$made"
  tree=$made
  debootstrap --variant=minbase "$VERSION_CODENAME" "$tree" "$archive" >"$tree.log" 2>&1 || { cat "$tree.log"; exit 1; }
fi
mountpoint -q "$tree/proc" || mount -t proc proc "$tree/proc"
work=$(mktemp -d "$tree/tmp/packages.XXXXXX")
inside=${work#"$tree"}
clean() {
  umount "$tree/proc" || true
  rm -rf "$work"
  if [ -n "$made" ]; then rm -rf "$made" "$made.log"; fi
}
trap clean EXIT

in_tree() { chroot "$tree" /usr/bin/env -i PATH=/usr/sbin:/usr/bin:/sbin:/bin HOME="$inside" LC_ALL=C.UTF-8 \
  DEBIAN_FRONTEND=noninteractive QT_QPA_PLATFORM=offscreen "$@"; }
as_user() { in_tree setpriv --reuid 65534 --regid 65534 --clear-groups "$@"; }
fail() { echo "test-packages: failed: $*" >&2; exit 1; }
install() { in_tree apt-get install -y -qq --no-install-recommends "$@" >"$work/apt.log" 2>&1 || { cat "$work/apt.log"; fail "install $*"; }; }
exit_code() { local code=0; "$@" >"$work/output" 2>&1 || code=$?; echo "$code"; }

cp "$packages"/*.deb "$work/"
cp -r tests/consumers "$work/"
chmod 755 "$work"
mkdir -m 777 "$work/user"
in_tree apt-get update -qq
mapfile -t programs < <(cd "$work" && ls libdatamanager0_*.deb datamanager-tools_*.deb datamanager-doc_*.deb)
install "${programs[@]/#/$inside/}"
echo "installed: ${programs[*]}"

# An ordinary user measures a mesh; the figures are those of the build tree.
mesh=/usr/share/datamanager/samples/plate-with-hole.msh
as_user meshquality report "$mesh" >"$work/report"
grep -q '^  score 0\.' "$work/report" || { cat "$work/report"; fail "no score"; }
(cd samples && LC_ALL=C ../build-package/bin/meshquality report plate-with-hole.msh) | tail -n +2 >"$work/expected"
tail -n +2 "$work/report" | diff - "$work/expected" || fail "other figures than in the build tree"
[ "$(exit_code as_user meshquality check "$mesh")" -le 1 ] || fail "check"
as_user meshquality report --json "$inside/user/report.json" "$mesh" >/dev/null
grep -q tetrahedra "$work/user/report.json" || fail "no JSON report"

# Libraries: everybody reads, root changes; a project library is the user's own.
as_user materials list >"$work/list"
grep -q Copper "$work/list" || fail "no materials"
as_user materials import --library "project:$inside/user" software Copper Air >/dev/null
as_user materials list --library "project:$inside/user" >"$work/list"
grep -q Air "$work/list" || fail "no project library"
before=$(sha256sum <"$tree/etc/datamanager/MaterialLibrary.json")
in_tree materials export --output "$inside/user/all.csv"
sed -i 's/5\.8e+07/4.6e+07/' "$work/user/all.csv"
code=$(exit_code as_user materials import --update "$inside/user/all.csv")
[ "$code" -ne 0 ] || fail "an ordinary user changed the software library"
[ "$before" = "$(sha256sum <"$tree/etc/datamanager/MaterialLibrary.json")" ] || fail "the library was changed"
in_tree materials import --update "$inside/user/all.csv" >/dev/null
changed=$(sha256sum <"$tree/etc/datamanager/MaterialLibrary.json")
[ "$before" != "$changed" ] || fail "root could not change the library"
[ -L "$tree/usr/lib/datamanager/bin/ConfigFiles/MaterialLibrary.json" ] || fail "the link was replaced"

as_user materials --language Chinese --help >"$work/help"
grep -q '[^ -~]' "$work/help" || fail "no Chinese texts"

# The mesher's place, and a copy of the application that is the user's own.
[ "$(exit_code as_user meshquality predict)" -eq 3 ] || { cat "$work/output"; fail "predict without a mesh"; }
cp "$tree$mesh" "$tree/var/lib/datamanager/temp/mesh.msh"
as_user meshquality predict >"$work/history"
grep -q '0\.6227' "$work/history" || fail "predict"
as_user cp -rL /usr/lib/datamanager "$inside/user/application"
as_user cp "$mesh" "$inside/user/application/temp/mesh.msh"
as_user "$inside/user/application/bin/meshquality" predict >"$work/history"
grep -q '0\.6227' "$work/history" || fail "predict in a copy"

# A new version of the packages keeps what was saved.
in_tree dpkg -i "${programs[@]/#/$inside/}" >/dev/null 2>&1
[ "$changed" = "$(sha256sum <"$tree/etc/datamanager/MaterialLibrary.json")" ] || fail "the library was lost"

# A program built on the development package.
mapfile -t development < <(cd "$work" && ls libdatamanager-dev_*.deb)
install "${development[@]/#/$inside/}" cmake ninja-build g++ pkg-config
for consumer in installed pkgconfig; do
  in_tree cmake -G Ninja -S "$inside/consumers/$consumer" -B "$inside/build-$consumer" >"$work/log" 2>&1 &&
    in_tree cmake --build "$inside/build-$consumer" >"$work/log" 2>&1 || { cat "$work/log"; fail "building $consumer"; }
  (cd "$work" && in_tree sh -c "cd '$inside' && './build-$consumer/consumer'") >"$work/log" 2>&1 || true
  grep -q 'consumer: ok' "$work/log" || { cat "$work/log"; fail "running $consumer"; }
  echo "built on the development package: $consumer"
done

# The desktop program opens its window and stays. It lays the mesh where it is scored, in the user's own application.
mapfile -t desktop < <(cd "$work" && ls datamanager-workbench_*.deb 2>/dev/null)
if [ "${#desktop[@]}" -gt 0 ]; then
  install "${desktop[@]/#/$inside/}"
  code=$(exit_code as_user timeout 20 env XDG_DATA_HOME="$inside/user/data" workbench -platform offscreen "$mesh")
  [ "$code" -eq 124 ] || { cat "$work/output"; fail "workbench"; }
  cmp "$tree$mesh" "$work/user/data/datamanager/application/temp/mesh.msh" || { cat "$work/output"; fail "workbench's mesh"; }
fi

# Nothing stays behind.
in_tree apt-get purge -y -qq '^libdatamanager' '^datamanager-' >"$work/apt.log" 2>&1 || { cat "$work/apt.log"; fail "purge"; }
left=$(find "$tree/usr" "$tree/etc" "$tree/var" -path "$tree/usr/share/doc/*" -prune -o -iname '*datamanager*' \
  ! -path '*/apt/*' ! -path '*/log/*' -print)
[ -z "$left" ] || fail "left behind: $left"
[ -z "$(find "$tree/usr/share/doc" -name '*datamanager*')" ] || fail "documents left behind"
echo "test-packages: ok"
