#!/usr/bin/env bash
# Installs every Debian package the project needs. Safe to run again: apt-get
# skips what is already there, and the package list is refreshed only when
# something is missing.
set -euo pipefail

packages=(
  g++ cmake ninja-build make pkg-config
  qt6-base-dev qt6-qpa-plugins libqt6sql6-ibase libgl-dev qt6-translations-l10n
  qt6-charts-dev
  firebird3.0-server-core firebird3.0-utils firebird-dev firebird3.0-server
  googletest libgtest-dev libbenchmark-dev
  poppler-utils qpdf zlib1g-dev  # PDF files joined from parts: checked by qpdf, read in tests
  libxml2-dev libxml2-utils  # e-invoices checked against their schema; xmllint in tests
  dpkg-dev file  # the package: dpkg-shlibdeps names the libraries' packages
  fonts-dejavu-core fonts-wine
)

missing=()
for p in "${packages[@]}"; do
  dpkg-query -W -f='${Status}' "$p" 2>/dev/null | grep -q 'install ok installed' || missing+=("$p")
done

if [ ${#missing[@]} -eq 0 ]; then
  exit 0
fi

sudo_cmd=()
[ "$(id -u)" -eq 0 ] || sudo_cmd=(sudo)
export DEBIAN_FRONTEND=noninteractive
"${sudo_cmd[@]}" apt-get update -qq
"${sudo_cmd[@]}" apt-get install -y -qq "${missing[@]}"
