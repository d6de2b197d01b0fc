#!/usr/bin/env bash
# The provider inside a real object manager: installs the built provider with
# the project's install rules, sets it up in SBLIM sfcb 1.4.10 or OpenPegasus
# 2.14.4 as README.md's guide for that object manager says, and runs the
# conformance checks (scripts/cimom_checks.py) with wbemcli against it and,
# for the same requests, against vexraid. Then stops the object manager and
# fails when it reports a crash.
#
# usage: scripts/cimom-test.sh sfcb|pegasus|all [BUILD_DIR]       (as root)
#   all: sfcb, then OpenPegasus (one object manager at a time).
#
# The prebuilt object managers come from the shared directory beside the
# repository (../shared/cimom, ../shared/pegasus; VEX_SHARED_DIR overrides).
# Without them the run is skipped (exit 0) with one line saying so. Only
# loopback addresses are used; every client call has a timeout.
set -euo pipefail

cimom=${1:?usage: cimom-test.sh sfcb|pegasus|all [BUILD_DIR]}
repo=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
build=$(cd "${2:-$repo/build}" && pwd)
say() { echo "cimom-test[$cimom]: $*" >&2; }

# The shared directory: beside the repository, or beside the main checkout of
# a git worktree.
source "$repo/scripts/shared-dir.sh"
shared=$(shared_dir "$repo" cimom pegasus || true)
if [[ -z $shared ]]; then
    echo "cimom-test: SKIPPED: no prebuilt object managers (../shared/cimom and ../shared/pegasus beside the repository)"
    exit 0
fi
if [[ $(id -u) != 0 ]]; then
    echo "cimom-test: SKIPPED: the object manager tests run as root (they start sfcb and OpenPegasus and add test users)"
    exit 0
fi
if [[ $cimom == all ]]; then
    rc=0
    "${BASH_SOURCE[0]}" sfcb "$build" || rc=1
    "${BASH_SOURCE[0]}" pegasus "$build" || rc=1
    exit $rc
fi
case $cimom in
    sfcb) up=$shared/cimom/sfcb-up; down=$shared/cimom/sfcb-down; port=${VEX_SFCB_PORT:-5988} ;;
    pegasus) up=$shared/pegasus/pegasus-up; down=$shared/pegasus/pegasus-down; port=${VEX_PEGASUS_PORT:-5990} ;;
    *) echo "usage: cimom-test.sh sfcb|pegasus|all [BUILD_DIR]" >&2; exit 64 ;;
esac
for tool in wbemcli python3; do
    command -v "$tool" > /dev/null || "$repo/scripts/install-deps.sh"
done
vexraid=$build/tools/vexraid/vexraid
[[ -x $vexraid && -f $build/src/libvexRAIDProvider15.so ]] || { say "build vexRAIDProvider15 and vexraid first ($build)"; exit 1; }

work=${VEX_CIMOM_WORK:-/tmp/vex-cimom-test}/$cimom
rm -rf "$work"; mkdir -p "$work"
instance=$work/instance
log=$work/checks.log
say "working in $work"

# 1. Install the provider as README.md says, into a prefix of its own.
prefix=$work/prefix
cmake --install "$build" --component provider --prefix "$prefix" > "$work/install.log"
provider_dir=$(dirname "$(find "$prefix" -name libvexRAIDProvider15.so | head -1)")
d=$prefix/share/vexRAIDProvider15

# 2. Two users with passwords: one whose primary group is 0 (may run methods)
#    and one whose is not. They exist only for the run.
admin=vexcimadm user=vexcimusr password=Vex-cimom-1
remove_users() { userdel "$admin" > /dev/null 2>&1 || true; userdel "$user" > /dev/null 2>&1 || true; }
trap remove_users EXIT
id "$admin" > /dev/null 2>&1 || useradd -M -N -g 0 -s /usr/sbin/nologin "$admin"
id "$user" > /dev/null 2>&1 || useradd -M -N -g users -s /usr/sbin/nologin "$user"
printf '%s:%s\n%s:%s\n' "$admin" "$password" "$user" "$password" | chpasswd

# 3. The simulated controllers: the built-in demo system, a fresh state, the
#    controller clock standing still (vexraid gets the same with its options).
export STORVEX_STATE_DIR=$work/simulator-state STORVEX_TIME_SCALE=0
unset STORVEX_SYSTEM
mkdir -p "$STORVEX_STATE_DIR"

# Whatever happens, a started object manager is stopped again.
started=0
stop() {
    ((started)) || return 0
    started=0
    "$down" "$instance"
}
trap 'stop > /dev/null 2>&1 || true; remove_users' EXIT

# 4. The object manager, set up as the guide in README.md says; each step of
#    the guide is logged in guide.log.
guide() {
    echo "\$ $*" >> "$work/guide.log"
    timeout 600 "$@" >> "$work/guide.log" 2>&1 && return 0
    say "guide step failed: $*"; tail -5 "$work/guide.log" >&2; return 1
}
if [[ $cimom == sfcb ]]; then
    # Prepare the instance (its own copy of the staging area), then the guide:
    # sfcbstage into both namespaces (the interop one in lower case) and
    # sfcbrepos, here with the instance's staging and repository directories;
    # providerDirs, basic authentication and maxMsgLen go into its sfcb.cfg.
    "$up" --no-start "$instance" > /dev/null 2> "$work/up.log" || { cat "$work/up.log" >&2; exit 1; }
    export PATH=/opt/sfcb/bin:$PATH
    guide sfcbstage -s "$instance/stage" -n root/tkz/vex/smi_15 -r "$d/sfcb/vexRAIDProvider15.reg" \
        "$d/mof/vexRAIDProvider15.mof" || exit 1
    guide sfcbstage -s "$instance/stage" -n root/interop "$d/mof/vexRAIDProvider15-interop.mof" || exit 1
    guide sfcbrepos -f -s "$instance/stage" -r "$instance/registration" || exit 1
    "$up" --port "$port" --auth --cred "$admin:$password" --provider-dir "$provider_dir" \
        --max-msg-len 100000000 "$instance" > "$work/pid" 2>> "$work/up.log" \
        || { cat "$work/up.log" >&2; exit 1; }
    started=1
else
    export PEGASUS_HOME=$instance PATH=/opt/pegasus/bin:$PATH
    # Prepare the instance (its own copy of the repository), then the guide:
    # the DMTF schema into the provider namespace with the server stopped...
    "$up" --no-start "$instance" > /dev/null 2> "$work/up.log" || { cat "$work/up.log" >&2; exit 1; }
    schema=/opt/pegasus/share/pegasus/CIM241
    (cd "$schema" && guide cimmofl -R "$PEGASUS_HOME" -M BIN -n root/tkz/vex/smi_15 CIM_Schema.mof) || exit 1
    "$up" --port "$port" --auth --cred "$admin:$password" "$instance" > "$work/pid" 2>> "$work/up.log" \
        || { cat "$work/up.log" >&2; exit 1; }
    started=1
    # ...and with it running: the schema into root/PG_InterOp, the classes of
    # both namespaces, the registration, the provider directory (at once).
    ok=1
    (cd "$schema" && guide cimmof -n root/PG_InterOp CIM_Schema.mof) || ok=0
    ((ok)) && { guide cimmof -n root/tkz/vex/smi_15 "$d/mof/vexRAIDProvider15.mof" || ok=0; }
    ((ok)) && { guide cimmof -n root/PG_InterOp "$d/mof/vexRAIDProvider15-interop.mof" || ok=0; }
    ((ok)) && { guide cimmof -n root/PG_InterOp "$d/pegasus/vexRAIDProvider15-registration.mof" || ok=0; }
    if ((ok)); then
        current=$(cimconfig -g providerDir | sed -n 's/^ *Current value: *//p')
        guide cimconfig -s "providerDir=$current:$provider_dir" || ok=0
    fi
    ((ok)) || { stop || true; exit 1; }
fi
say "$(basename "$up") started pid $(cat "$work/pid") on 127.0.0.1:$port"

# 5. The checks, then a clean stop.
rc=0
python3 "$repo/scripts/cimom_checks.py" --cimom "$cimom" --url "http://127.0.0.1:$port" \
    --admin "$admin:$password" --user "$user:$password" --vexraid "$vexraid" \
    --state-dir "$work/vexraid-state" --log "$log" || rc=1
down_rc=0
stop 2> "$work/down.log" || down_rc=$?
cat "$work/down.log" >&2
if ((down_rc != 0)); then
    say "FAIL: the object manager did not stop cleanly (status $down_rc)"
    rc=1
fi
((rc == 0)) && say "PASSED" || say "FAILED (requests and answers in $log)"
exit $rc
