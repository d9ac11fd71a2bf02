#!/usr/bin/env bash
# Installs the Debian packages Quellio needs to build, test and run. Safe to run again: when
# everything is present it only checks and returns.
set -euo pipefail

packages=(
  build-essential cmake ninja-build clang-format pkg-config
  qt6-base-dev qt6-base-dev-tools libqt6sql6-sqlite qt6-qpa-plugins
  qt6-declarative-dev qt6-declarative-dev-tools qml6-module-qtqml qml6-module-qtquick
  qml6-module-qtquick-window qml6-module-qtquick-controls qml6-module-qtquick-layouts
  qml6-module-qtquick-templates qml6-module-qtqml-workerscript
  qml6-module-qtquick-shapes qml6-module-qt5compat-graphicaleffects qml6-module-qtquick-particles
  qt6-multimedia-dev qml6-module-qtmultimedia libqt6multimediawidgets6
  qt6-svg-dev qt6-image-formats-plugins
  libsqlite3-dev libfreexl-dev libzip-dev libssl-dev
  fonts-noto-cjk xvfb xauth sqlite3
  qt6-tools-dev qt6-l10n-tools qt6-translations-l10n appstream dpkg-dev file
)

# One query for all of them: starting dpkg-query once per package is most of the time taken.
declare -A installed=()
while read -r status name; do
  [ "$status" = "ii" ] && installed[$name]=1
done < <(dpkg-query -W -f='${db:Status-Abbrev} ${Package}\n' "${packages[@]}" 2>/dev/null || true)
missing=()
for p in "${packages[@]}"; do
  [ -n "${installed[$p]:-}" ] || missing+=("$p")
done
[ ${#missing[@]} -eq 0 ] && exit 0

sudo=""
[ "$(id -u)" -ne 0 ] && sudo="sudo"
echo "Installing: ${missing[*]}"
export DEBIAN_FRONTEND=noninteractive
$sudo apt-get update -qq
$sudo apt-get install -y -qq --no-install-recommends "${missing[@]}"
