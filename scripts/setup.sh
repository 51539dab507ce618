#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 DataManager contributors
# SPDX-License-Identifier: BSD-3-Clause
#
# Installs what building and testing needs, on Debian 12 and 13, as root or with sudo; does nothing when all is there.
#   scripts/setup.sh [--print-onnxruntime-root | --with-clang]
# ONNX Runtime has no package in Debian 12, and Debian 13's registers its operators twice and prints more than a thousand
# lines at each start. So on both its headers come from Debian 13's development package and the shared library from the
# npm package that carries it, both pinned by checksum, into a private prefix below
# ${DATAMANAGER_DEPS_DIR:-${XDG_CACHE_HOME:-$HOME/.cache}/datamanager}. Set ONNXRUNTIME_ROOT to use another install,
# for example /usr for a system package.
set -euo pipefail

packages=(build-essential cmake ninja-build git ca-certificates clang-format
  doxygen qtbase5-dev qttools5-dev qttools5-dev-tools libvtk9-dev libvtk9-qt-dev libquazip1-qt5-dev
  libssl-dev libfast-float-dev libbenchmark-dev gmsh xvfb x11-utils
  strace attr e2fsprogs mandoc pkg-config)
headers_version=1.21.0
headers_sha256=14f7d959d5deacbcf1504830d4189f91fc67382b399ed9ae9d3aa9c4050ced08
runtime_version=1.30.0
runtime_sha256=6e3390d6b783e7be946fad629292799da28d0b42f84856e50d2c1b0383291e75

say() { printf 'setup: %s\n' "$*" >&2; }
fail() { say "$*"; exit 1; }

debian_release() {
  # shellcheck disable=SC1091
  [ -r /etc/os-release ] && . /etc/os-release
  if [ "${ID:-}" = debian ]; then printf '%s\n' "${VERSION_ID:-}"; fi
}

missing_packages() {
  local package
  for package in "$@"; do
    dpkg-query -W -f='${db:Status-Status}\n' "$package" 2>/dev/null | grep -qx installed || printf '%s\n' "$package"
  done
}

as_root() {
  if [ "$(id -u)" -eq 0 ]; then "$@"
  elif command -v sudo >/dev/null 2>&1; then sudo "$@"
  else fail "root or sudo is needed to install packages: $*"
  fi
}

install_packages() {
  local missing
  mapfile -t missing < <(missing_packages "$@")
  [ "${#missing[@]}" -gt 0 ] || return 0
  say "installing ${missing[*]}"
  as_root apt-get update -qq
  as_root env DEBIAN_FRONTEND=noninteractive apt-get install -y -qq --no-install-recommends "${missing[@]}" >&2
}

verify() { # FILE SHA256
  printf '%s  %s\n' "$2" "$1" | sha256sum --check --status || fail "checksum of $(basename "$1") differs from the pinned one"
}

# Debian 13's own package, fetched through the archive that this machine already uses.
fetch_headers() { # DIRECTORY
  local archive options
  archive=$(apt-get indextargets --format '$(REPO_URI)' | grep -E '/debian/?$' | head -n 1)
  [ -n "$archive" ] || fail "no Debian archive in the apt configuration"
  mkdir -p "$1/lists/partial" "$1/cache/archives/partial"
  printf 'deb %s trixie main\n' "$archive" > "$1/sources.list"
  options=(-o "Dir::Etc::SourceList=$1/sources.list" -o Dir::Etc::SourceParts=/dev/null
    -o "Dir::State::Lists=$1/lists" -o "Dir::Cache=$1/cache" -o APT::Sandbox::User=root)
  apt-get "${options[@]}" update -qq >&2
  (cd "$1" && apt-get "${options[@]}" download -qq "libonnxruntime-dev=$headers_version*" >&2)
  mv "$1"/libonnxruntime-dev_*.deb "$1/headers.deb"
  verify "$1/headers.deb" "$headers_sha256"
  dpkg-deb -x "$1/headers.deb" "$1/headers"
}

fetch_runtime() { # DIRECTORY
  command -v npm >/dev/null 2>&1 || install_packages npm
  (cd "$1" && npm pack --silent "onnxruntime-node@$runtime_version" >/dev/null)
  verify "$1/onnxruntime-node-$runtime_version.tgz" "$runtime_sha256"
  tar -xzf "$1/onnxruntime-node-$runtime_version.tgz" -C "$1" \
    package/bin/napi-v6/linux/x64/libonnxruntime.so.1 package/package.json
}

# Builds PREFIX from both parts in a temporary folder and moves it into place as a whole.
make_private_prefix() { # PREFIX
  [ "$(uname -m)" = x86_64 ] || fail "no prebuilt ONNX Runtime for $(uname -m): install one and set ONNXRUNTIME_ROOT"
  local work
  say "fetching ONNX Runtime into $1"
  mkdir -p "$(dirname "$1")"
  work=$(mktemp -d "$1.XXXXXX")
  # shellcheck disable=SC2064
  trap "rm -rf '$work'" EXIT
  fetch_headers "$work"
  fetch_runtime "$work"
  mkdir -p "$work/prefix/include" "$work/prefix/lib" "$work/prefix/share/doc/onnxruntime"
  cp -r "$work/headers/usr/include/onnxruntime" "$work/prefix/include/"
  cp "$work/headers/usr/share/doc/libonnxruntime-dev/copyright" "$work/prefix/share/doc/onnxruntime/"
  cp "$work/package/bin/napi-v6/linux/x64/libonnxruntime.so.1" "$work/prefix/lib/"
  ln -s libonnxruntime.so.1 "$work/prefix/lib/libonnxruntime.so"
  rm -rf "$1"
  mv "$work/prefix" "$1"
}

release=$(debian_release)
case "$release" in
  12|13) ;;
  *) fail "this script knows Debian 12 and 13 only. Install by hand: a C and C++17 compiler, CMake >= 3.20, Ninja, Qt 5.15" \
       "(Core, Gui, Test, Widgets, LinguistTools), VTK >= 9.1 with headers, OpenSSL 3, fast_float, Google Benchmark and" \
       "ONNX Runtime >= 1.20; then configure with 'cmake --preset release -DONNXRUNTIME_ROOT=DIR'." ;;
esac

install_packages "${packages[@]}"
# For fuzzing alone.
if [ "${1:-}" = --with-clang ]; then install_packages clang libclang-rt-dev; fi

root=${ONNXRUNTIME_ROOT:-}
if [ -z "$root" ]; then
  root="${DATAMANAGER_DEPS_DIR:-${XDG_CACHE_HOME:-$HOME/.cache}/datamanager}/onnxruntime-$headers_version-$runtime_version"
  [ -e "$root/lib/libonnxruntime.so.1" ] && [ -d "$root/include/onnxruntime" ] || make_private_prefix "$root"
fi
if [ "${1:-}" = --print-onnxruntime-root ]; then printf '%s\n' "$root"; fi
