#!/usr/bin/env bash
# Installs the Debian 12 packages the fuzzers need (clang-14 and libFuzzer),
# only those that are missing. make test runs the fuzzers' smoke test, so
# make deps installs these too.
set -euo pipefail

packages=(clang-14 libclang-rt-14-dev libfuzzer-14-dev)

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
