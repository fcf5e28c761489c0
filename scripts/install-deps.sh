#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# install-deps.sh [bench] [fuzz] [lint] [coverage]
#
# Installs the Debian 12 packages that building, running and testing need, and those of the groups
# named. Silent when all is there. Exit status 1, with what is missing, when it may not install.
set -euo pipefail

base=(
  # compiler, build, command line
  g++ cmake ninja-build pkg-config ccache libcli11-dev
  # windows, scripts, plots
  qt6-base-dev qt6-base-dev-tools qt6-declarative-dev qt6-svg-dev libqcustomplot-dev
  # what a window needs at run time: display servers, fonts, picture format of the icons
  qt6-qpa-plugins qt6-wayland libqt6svg6 fonts-dejavu-core
  # XML, compression, encryption
  libxml2-dev libxslt1-dev zlib1g-dev libsodium-dev
  # tests, and the XML tools that they compare with
  libgtest-dev libgmock-dev xsltproc libxml2-utils
)
bench=(libbenchmark-dev libcereal-dev libpugixml-dev)
fuzz=(clang libclang-rt-14-dev)
lint=(clang-format clang-tidy)
coverage=(gcovr)

say() { printf 'install-deps: %s\n' "$*" >&2; }

wanted=("${base[@]}")
for group in "$@"; do
  case $group in
    bench) wanted+=("${bench[@]}") ;;
    fuzz) wanted+=("${fuzz[@]}") ;;
    lint) wanted+=("${lint[@]}") ;;
    coverage) wanted+=("${coverage[@]}") ;;
    *) say "no such group: $group"; exit 2 ;;
  esac
done

if ! command -v dpkg-query >/dev/null; then
  say "not a Debian system; going on with what is installed. Needed, by Debian's names: ${wanted[*]}"
  exit 0
fi

is_installed() {
  [ "$(dpkg-query --show --showformat='${db:Status-Status}' "$1" 2>/dev/null)" = installed ]
}

missing=()
for package in "${wanted[@]}"; do
  is_installed "$package" || missing+=("$package")
done
[ ${#missing[@]} -gt 0 ] || exit 0

refuse() {
  say "$1; missing: ${missing[*]}"
  say "as root: apt-get install --no-install-recommends ${missing[*]}"
  exit 1
}

# A password can only be asked where someone can type it.
as_root=()
if [ "$(id -u)" -ne 0 ]; then
  command -v sudo >/dev/null || refuse "may not install (neither root nor sudo)"
  as_root=(sudo)
  [ -t 0 ] || sudo -n true 2>/dev/null || refuse "may not install (sudo asks for a password)"
fi

apt() {
  "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive \
    apt-get -qq -o DPkg::Lock::Timeout=300 "$@" </dev/null
}

say "installing ${missing[*]}"
apt update && apt install -y --no-install-recommends "${missing[@]}" || refuse "could not install"
