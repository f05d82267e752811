#!/usr/bin/env bash
# Installs the Debian 12 packages that building, running and testing Tessarine need, if any is missing.
set -euo pipefail
packages=(
  cmake ninja-build g++ pkg-config sqlite3 dpkg-dev file desktop-file-utils appstream
  libsqlite3-dev libfontconfig-dev libgtest-dev libgmock-dev libbenchmark-dev
  qt6-base-dev qt6-declarative-dev qt6-tools-dev
  qml6-module-qtquick qml6-module-qtquick-controls qml6-module-qtquick-layouts
  qml6-module-qtquick-window qml6-module-qtquick-templates qml6-module-qtqml-workerscript
  qml6-module-qttest qml6-module-qtquick-shapes
  fonts-dejavu-core fonts-noto-color-emoji
  python3-pil
)
missing=()
for p in "${packages[@]}"; do
  dpkg-query -W -f='${Status}' "$p" 2>/dev/null | grep -q "install ok installed" || missing+=("$p")
done
if ((${#missing[@]})); then
  sudo=""
  [ "$(id -u)" -eq 0 ] || sudo="sudo"
  $sudo apt-get update -qq
  DEBIAN_FRONTEND=noninteractive $sudo apt-get install -y -qq --no-install-recommends "${missing[@]}"
fi
