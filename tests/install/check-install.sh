#!/usr/bin/env bash
# Installs a build into a scratch DESTDIR under /usr and checks that a desktop finds everything:
# both programs, their menu entries, the icon at every size, the AppStream file and the manual
# pages, each passing the freedesktop validators. Exits 77 (skipped) only when the validators are
# missing outside CI; in CI they must be there.
#   check-install.sh BUILD-DIR VERSION
set -euo pipefail
build=$1
version=$2

fail() { echo "FAIL: $*" >&2; exit 1; }

for tool in desktop-file-validate appstreamcli; do
  if ! command -v "$tool" >/dev/null 2>&1; then
    [ -n "${CI:-}" ] && fail "$tool is missing (scripts/setup.sh installs it)"
    echo "skipped: $tool is not installed"
    exit 77
  fi
done

stage=$(mktemp -d)
trap 'rm -rf "$stage"' EXIT
DESTDIR="$stage" cmake --install "$build" --prefix /usr >/dev/null
root=$stage/usr
share=$root/share
id=org.numbrook.numbrook

for f in bin/numbrook bin/numbrook-class; do
  [ -x "$root/$f" ] || fail "$f is not installed as a program"
done

# Menu entries: valid, starting a program that is installed, with an icon that is installed.
for entry in "$id" "${id}_class"; do
  file=$share/applications/$entry.desktop
  [ -f "$file" ] || fail "no menu entry $entry.desktop"
  desktop-file-validate "$file" || fail "$entry.desktop does not validate"
  exec=$(sed -n 's/^Exec=\([^ ]*\).*/\1/p' "$file")
  [ -x "$root/bin/$exec" ] || fail "$entry.desktop starts '$exec', which is not installed"
  icon=$(sed -n 's/^Icon=//p' "$file")
  [ -f "$share/icons/hicolor/scalable/apps/$icon.svg" ] || fail "$entry.desktop: no icon $icon"
  grep -qx 'Categories=Education;Math;' "$file" || fail "$entry.desktop: not under Education and Math"
done

# The icon at every size the hicolor theme lists, each PNG exactly that many pixels square.
for size in 16 22 24 32 48 64 128 256; do
  png=$share/icons/hicolor/${size}x${size}/apps/$id.png
  [ -f "$png" ] || fail "no ${size}px icon"
  read -r w h < <(od -An -tu1 -j16 -N8 "$png" |
    awk '{print $1*16777216+$2*65536+$3*256+$4, $5*16777216+$6*65536+$7*256+$8}')
  [ "$w" = "$size" ] && [ "$h" = "$size" ] || fail "${size}px icon is ${w}x${h}"
done

meta=$share/metainfo/$id.metainfo.xml
[ -f "$meta" ] || fail "no AppStream file"
appstreamcli validate --no-net "$meta" || fail "the AppStream file does not validate"
grep -q "<launchable type=\"desktop-id\">$id.desktop</launchable>" "$meta" ||
  fail "the AppStream file does not name the menu entry"
grep -q "<release version=\"$version\"" "$meta" || fail "the AppStream file lacks release $version"
! grep -q '@[A-Z_]*@' "$meta" || fail "the AppStream file has an unfilled placeholder"

for page in numbrook numbrook-class; do
  man=$share/man/man1/$page.1
  [ -f "$man" ] || fail "no manual page $page.1"
  grep -q "$version" "$man" || fail "$page.1 does not carry version $version"
  if command -v man >/dev/null 2>&1; then
    warnings=$(MANWIDTH=80 man --warnings -l "$man" 2>&1 >/dev/null || true)
    [ -z "$warnings" ] || fail "$page.1: $warnings"
  fi
done

# Help and version print and exit without any window system.
out=$(env -u DISPLAY -u WAYLAND_DISPLAY -u QT_QPA_PLATFORM "$root/bin/numbrook" --version)
[ "$out" = "numbrook $version" ] || fail "--version printed '$out'"
out=$(env -u DISPLAY -u WAYLAND_DISPLAY -u QT_QPA_PLATFORM "$root/bin/numbrook" --help)
grep -q -- '--version' <<<"$out" || fail "--help does not list --version"
echo "installed and valid"
