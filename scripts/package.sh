#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 DataManager contributors
# SPDX-License-Identifier: BSD-3-Clause
#
# Builds the Debian packages into build-package/packages. Needs what ./run.sh needs, and dpkg-dev.
#   scripts/package.sh
set -euo pipefail
cd "$(dirname "$0")/.."
command -v dpkg-buildflags >/dev/null 2>&1 || { echo "package: install dpkg-dev first" >&2; exit 1; }

# Hardened as Debian's own packages, without names of this machine's directories in the files.
flags() { DEB_BUILD_MAINT_OPTIONS=hardening=+all dpkg-buildflags --get "$1"; }
CFLAGS="$(flags CFLAGS) $(flags CPPFLAGS) -g0"
CXXFLAGS="$(flags CXXFLAGS) $(flags CPPFLAGS) -g0"
LDFLAGS=$(flags LDFLAGS)
export CFLAGS CXXFLAGS LDFLAGS

scripts/build.sh package build-package
rm -rf build-package/packages
log=$(mktemp)
trap 'rm -f "$log"' EXIT
(cd build-package && umask 022 && cpack -G DEB) >"$log" 2>&1 || { cat "$log" >&2; exit 1; }
rm -rf build-package/packages/_CPack_Packages
ls build-package/packages
