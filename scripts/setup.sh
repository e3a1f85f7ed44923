#!/usr/bin/env bash
# Installs the Debian packages NUMBROOK needs to build and test, if any are missing.
# As root it uses apt-get; otherwise sudo; otherwise it lists what to install and stops.
set -euo pipefail

packages=(
  g++ cmake ninja-build pkg-config
  qt6-base-dev qt6-base-dev-tools qt6-svg-dev libqt6svg6 qt6-multimedia-dev libgl-dev
  libgtest-dev libbenchmark-dev
  fonts-comic-neue
  appstream desktop-file-utils dpkg-dev file
  locales
)

missing=()
for p in "${packages[@]}"; do
  if ! dpkg-query -W -f='${Status}' "$p" 2>/dev/null | grep -q "install ok installed"; then
    missing+=("$p")
  fi
done

as_root=()
if [ "$(id -u)" -ne 0 ] && command -v sudo >/dev/null 2>&1; then
  as_root=(sudo)
fi

# The tests check that numbers ignore a comma locale, so one must be there to switch to.
comma_locale() {
  if ! locale -a 2>/dev/null | grep -qi '^de_DE\.utf-\?8$'; then
    if [ "$(id -u)" -eq 0 ] || [ ${#as_root[@]} -gt 0 ]; then
      "${as_root[@]}" localedef -i de_DE -c -f UTF-8 de_DE.UTF-8 || echo "Could not make the de_DE.UTF-8 locale" >&2
    fi
  fi
}

if [ ${#missing[@]} -eq 0 ]; then
  comma_locale
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
comma_locale
