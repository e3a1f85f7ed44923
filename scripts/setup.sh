#!/usr/bin/env bash
# Installs the Debian packages NUMBROOK needs to build and test, if any are missing.
# As root it uses apt-get; otherwise sudo; otherwise it lists what to install and stops.
set -euo pipefail

packages=(
  g++ cmake ninja-build pkg-config
  qt6-base-dev qt6-base-dev-tools qt6-svg-dev libqt6svg6 libgl-dev
  libgtest-dev libbenchmark-dev
  fonts-comic-neue
)

missing=()
for p in "${packages[@]}"; do
  if ! dpkg-query -W -f='${Status}' "$p" 2>/dev/null | grep -q "install ok installed"; then
    missing+=("$p")
  fi
done

if [ ${#missing[@]} -eq 0 ]; then
  exit 0
fi

echo "Installing: ${missing[*]}"
if [ "$(id -u)" -eq 0 ]; then
  apt_get=(apt-get)
elif command -v sudo >/dev/null 2>&1; then
  apt_get=(sudo apt-get)
else
  echo "These Debian packages are needed and could not be installed (not root, no sudo):" >&2
  echo "  ${missing[*]}" >&2
  echo "Ask an administrator to run: apt-get install ${missing[*]}" >&2
  exit 1
fi

export DEBIAN_FRONTEND=noninteractive
if ! "${apt_get[@]}" update -qq || ! "${apt_get[@]}" install -y -qq --no-install-recommends "${missing[@]}"; then
  echo "Installing failed. Needed Debian packages: ${missing[*]}" >&2
  exit 1
fi
