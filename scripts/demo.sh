#!/usr/bin/env bash
# The demo: the simulated demo system as a storage administrator first sees
# it, through the provider loaded by vexraid exactly as a CIM object manager
# loads it. A fresh simulator state each time, with the controller clock
# standing still, so every run shows the same.
set -euo pipefail
build=${1:-build}
vexraid="$build/tools/vexraid/vexraid"
state=$(mktemp -d)
trap 'rm -rf "$state"' EXIT

# The command as one would type it: arguments with quotes in single quotes.
shown() {
    local line="\$ vexraid" arg
    for arg in "$@"; do
        if [[ $arg =~ [^A-Za-z0-9_./:,=-] ]]; then line+=" '$arg'"; else line+=" $arg"; fi
    done
    echo "$line"
}

run() {
    shown "$@"
    local status=0
    "$vexraid" --state-dir "$state" --time-scale 0 "$@" 2>&1 || status=$?
    echo
    return $status
}

controller='VEX_ControllerComputerSystem.CreationClassName="VEX_ControllerComputerSystem",Name="vexController_0"'
run summary
run ein CIM_ComputerSystem
run ei VEX_Battery -p DeviceID,BatteryStatus,isSuperCap
# Associations by DMTF names, as SMI-S clients ask.
run ain "${controller/vexController_0/vexController_1}" -a CIM_SystemDevice -r CIM_DiskDrive
run health
# Methods and modifications need a member of the root group.
run --user nobody cm "$controller" Rescan || true
