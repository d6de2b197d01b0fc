#!/usr/bin/env bash
# Installs the Debian 12 packages the build needs, only those that are missing.
set -euo pipefail

packages=(
  build-essential cmake ninja-build ccache pkg-config
  libgtest-dev libgmock-dev libbenchmark-dev
  nlohmann-json3-dev libcli11-dev
  libpam0g-dev
  python3-prometheus-client
  sblim-wbemcli python3
)

missing=()
for p in "${packages[@]}"; do
  dpkg-query -W -f='${Status}' "$p" 2>/dev/null | grep -q 'install ok installed' || missing+=("$p")
done
[ ${#missing[@]} -eq 0 ] && exit 0

echo "Installing: ${missing[*]}"
sudo=""
if [ "$(id -u)" -ne 0 ]; then
  command -v sudo >/dev/null || { echo "Run as root or install: ${missing[*]}" >&2; exit 1; }
  sudo=sudo
fi
export DEBIAN_FRONTEND=noninteractive
$sudo apt-get update -qq
$sudo apt-get install -y -qq --no-install-recommends "${missing[@]}"
