#!/usr/bin/env bash
# Installs the Debian 12 packages the fuzzers need (clang-14 and libFuzzer),
# only those that are missing. make test runs the fuzzers' smoke test, so
# make deps installs these too.
set -euo pipefail

packages=(clang-14 libclang-rt-14-dev libfuzzer-14-dev)

exec "$(dirname "$0")/apt-install-missing.sh" "${packages[@]}"
