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

exec "$(dirname "$0")/apt-install-missing.sh" "${packages[@]}"
