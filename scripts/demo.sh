#!/usr/bin/env bash
# The demo: what the provider library exports to a CIMOM.
set -euo pipefail
build=${1:-build}
lib="$build/src/libvexRAIDProvider15.so"
echo "== $lib exports:"
nm -D --defined-only "$lib" | awk '{print "  " $3}' | sort
