#!/usr/bin/env bash
# Installs what building Quillora Pro needs on Debian 12, when it is missing. Safe to run again.
set -euo pipefail
packages=(cmake ninja-build g++ ccache qt6-base-dev libqt6gui6 qt6-qpa-plugins libgl-dev
          libgtest-dev libbenchmark-dev fonts-liberation2 xvfb xauth)
# The install test's validators of the menu entry and the metainfo; what the Debian package needs.
packages+=(desktop-file-utils appstream-util dpkg-dev file)
missing=()
for p in "${packages[@]}"; do
  dpkg-query -W -f='${Status}' "$p" 2>/dev/null | grep -q "install ok installed" || missing+=("$p")
done
if [ ${#missing[@]} -gt 0 ]; then
  echo "Installing: ${missing[*]}"
  sudo=""
  if [ "$(id -u)" -ne 0 ]; then sudo="sudo"; fi
  $sudo apt-get update -qq
  DEBIAN_FRONTEND=noninteractive $sudo apt-get install -y -qq --no-install-recommends "${missing[@]}"
fi
