#!/usr/bin/env bash
# Installs the Debian package on this machine and uses it as a user would: the installed program
# starts offscreen with a fresh HOME, makes its per-user folder and paints the console; then
# `apt-get remove` must leave nothing of it under /usr. Needs root (or sudo); not part of CI.
#   scripts/package-test.sh [path/to/quellio_*.deb]
set -euo pipefail
cd "$(dirname "$0")/.."

sudo=""
[ "$(id -u)" -ne 0 ] && sudo="sudo"
fail() { echo "package-test: FAIL: $*" >&2; exit 1; }

deb=${1:-$(bash scripts/package.sh | tail -n 1)}
[ -f "$deb" ] || fail "no package at $deb"
echo "== package: $deb"
dpkg-deb --field "$deb" Package Version Architecture Depends
dpkg-deb --contents "$deb" | awk '{print $6}' | grep -E '^\./usr/(bin|share/(applications|metainfo|icons))/' || true

echo "== install"
$sudo env DEBIAN_FRONTEND=noninteractive apt-get install -y -qq "$(realpath "$deb")" >/dev/null
files=$(dpkg -L quellio)
appstreamcli validate --no-net /usr/share/metainfo/io.github.quellio.Quellio.metainfo.xml

echo "== quellio --version"
version=$(env -u DISPLAY quellio --version)
echo "$version"
[[ $version == quellio\ * ]] || fail "unexpected version text"
env -u DISPLAY quellio --help | head -n 3
if command -v quellio-verify >/dev/null; then
  echo "== quellio-verify --help"
  quellio-verify --help | head -n 5
fi

echo "== first start with a fresh HOME"
home=$(mktemp -d)
shot=${QUELLIO_PACKAGE_SHOT:-$home/console.png}
data="$home/.local/share/quellio/quellio"
# Under a virtual screen the program runs until killed: long enough to make its per-user folder
# and paint its console, which `import` (ImageMagick, when present) takes a picture of.
HOME="$home" XDG_DATA_HOME="" QT_QUICK_BACKEND=software \
  xvfb-run -a -s "-screen 0 1280x800x24" bash -c '
    quellio >"$1/out.log" 2>&1 &
    pid=$!
    for _ in $(seq 1 150); do [ -f "$2/quellio.lock" ] && break; sleep 0.1; done
    sleep 4
    if command -v import >/dev/null; then import -window root "$3"; fi
    kill -0 "$pid" || { echo "the program ended early" >>"$1/out.log"; exit 1; }
    kill "$pid"; wait "$pid" || true' _ "$home" "$data" "$shot" || {
  cat "$home/out.log"
  fail "the program did not keep running"
}
[ -f "$data/config.ini" ] || { cat "$home/out.log"; fail "no per-user folder at $data"; }
[ -f "$data/quellio.db" ] || fail "no data store in $data"
[ -f "$data/sys/stage.qml" ] || fail "no stage movies in $data"
echo "per-user folder: $(find "$data" -type f | wc -l) files in $data"
[ -f "$shot" ] && echo "console picture: $shot"
if grep -iE 'error|cannot|failed' "$home/out.log"; then fail "the program reported errors"; fi

echo "== remove"
$sudo env DEBIAN_FRONTEND=noninteractive apt-get remove -y -qq quellio >/dev/null
left=""
while read -r path; do
  case "$path" in /usr/*) ;; *) continue ;; esac
  [ -e "$path" ] && [ ! -d "$path" ] && left+="$path"$'\n'
done <<<"$files"
[ -d /usr/share/quellio ] && left+="/usr/share/quellio"$'\n'
[ -z "$left" ] || fail "left behind: $left"
echo "package-test: OK"
