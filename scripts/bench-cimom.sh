#!/usr/bin/env bash
# The provider against sfcb's own repository (scripts/bench_cimom.py): starts
# sfcb from the shared bundle with the built provider and a scratch namespace
# of twin classes, once on the demo system and once on a generated system of
# 8 controllers x 256 drives x 256 volumes, and prints min and median per
# operation with the provider/repository ratio.
#
# usage: scripts/bench-cimom.sh [BUILD_DIR]       (as root)
#   BENCH_ROUNDS (7) rounds per operation; BENCH_SYSTEMS ("demo 8x256").
# Skipped with one line when ../shared/cimom is not there.
set -euo pipefail

repo=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
build=$(cd "${1:-$repo/build}" && pwd)
say() { echo "bench-cimom: $*" >&2; }

source "$repo/scripts/shared-dir.sh"
shared=$(shared_dir "$repo" cimom || true)
if [[ -z $shared ]]; then
    echo "bench-cimom: SKIPPED: no prebuilt sfcb (../shared/cimom beside the repository)"
    exit 0
fi
if [[ $(id -u) != 0 ]]; then
    echo "bench-cimom: SKIPPED: sfcb is started as root"
    exit 0
fi
up=$shared/cimom/sfcb-up down=$shared/cimom/sfcb-down port=${VEX_SFCB_PORT:-5988}
mof=$build/mof/mof
[[ -f $build/src/libvexRAIDProvider15.so && -f $mof/vexRAIDProvider15.mof ]] || { say "build the provider first ($build)"; exit 1; }

work=${VEX_BENCH_WORK:-/tmp/vex-bench-cimom}
rm -rf "$work"; mkdir -p "$work"
python3 "$repo/scripts/bench_cimom.py" twins "$mof/vexRAIDProvider15.mof" "$work/twins.mof"
export STORVEX_TIME_SCALE=0 VEX_NRM_DIR=$work/nrm
mkdir -p "$VEX_NRM_DIR"

instance=$work/instance started=0
stop() { ((started)) || return 0; started=0; "$down" "$instance" > /dev/null 2>&1 || say "sfcb did not stop cleanly"; }
trap stop EXIT

for system in ${BENCH_SYSTEMS:-demo 8x256}; do
    export STORVEX_STATE_DIR=$work/state-$system
    mkdir -p "$STORVEX_STATE_DIR"
    if [[ $system == demo ]]; then
        unset STORVEX_SYSTEM
    else
        "$build/tools/storvex-sim/storvex-sim" generate --controllers "${system%x*}" --drives "${system#*x}" \
            --volumes "${system#*x}" -o "$work/$system.json"
        export STORVEX_SYSTEM=$work/$system.json
    fi
    # A new repository each time (the stage options rebuild it): only this
    # system's instances in the scratch namespace.
    "$up" --port "$port" --provider-dir "$build/src" --max-msg-len 200000000 \
        --stage root/tkz/vex/smi_15 "$mof/vexRAIDProvider15.mof" \
        --stage root/interop "$mof/vexRAIDProvider15-interop.mof" \
        --stage root/vexbench "$work/twins.mof" \
        --reg "$build/mof/sfcb/vexRAIDProvider15.reg" "$instance" > "$work/pid" 2> "$work/up.log" \
        || { cat "$work/up.log" >&2; exit 1; }
    started=1
    timeout 3600 python3 "$repo/scripts/bench_cimom.py" run --url "http://127.0.0.1:$port" --label "$system" \
        --rounds "${BENCH_ROUNDS:-7}"
    stop
done
