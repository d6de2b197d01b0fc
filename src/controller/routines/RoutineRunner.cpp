#include "controller/routines/RoutineRunner.h"

#include "platform/Tkz.h"

namespace vex::cim::fwf::routine {

namespace {

// Reads value `spec` into slot i; false when a mandatory one is missing or any is out of range.
bool readValue(const ValueSpec& spec, const CIMMethodParam& in, Values& values, int i) {
    if (spec.kind == ValueKind::Absent) {
        return true;
    }
    bool present = false;
    bool inRange = true;
    if (spec.kind == ValueKind::Text) {
        const std::optional<std::string> t = routine::text(in, spec.name);
        present = t.has_value();
        values.text[i] = t.value_or("");
    } else {
        std::optional<unsigned long long> n;
        if (spec.kind == ValueKind::Flag) {
            if (const std::optional<bool> f = routine::flag(in, spec.name)) {
                n = *f ? 1 : 0;
            }
        } else {
            n = routine::number(in, spec.name);
        }
        present = n.has_value();
        values.number[i] = n.value_or(spec.fallback);
        inRange = !present || (*n <= spec.max && *n >= spec.min);
        // An argument that is there but cannot be read as its kind is as good as missing.
        if (!present && in.getArgumentByName(spec.name) != nullptr && spec.missing == nullptr) {
            inRange = false;
        }
    }
    if ((!present && spec.missing != nullptr) || !inRange) {
        TkzLogMsg(TKZ_LOG_ERROR, "%s", spec.missing != nullptr ? spec.missing : "No valid data for an argument");
        return false;
    }
    return true;
}

void logTarget(const RoutineSpec& spec, const Target& t) {
    switch (spec.target) {
    case TargetKind::Drive:
        TkzLogMsg(TKZ_LOG_INFO, " %s for PD - %d_%d_%d", spec.name, t.drive.controller, t.drive.channel,
                  t.drive.device);
        break;
    case TargetKind::LogicalDrive:
        TkzLogMsg(TKZ_LOG_INFO, " %s for LD - %d_%d", spec.name, t.logicalDrive.controller, t.logicalDrive.logicalDrive);
        break;
    case TargetKind::Controller:
        TkzLogMsg(TKZ_LOG_INFO, "%s for CtrlrID - %d", spec.name, t.controller);
        break;
    case TargetKind::None:
        break;
    }
}

}  // namespace

bool decodeTarget(TargetKind kind, const CIMObjectPath& path, const CIMMethodParam& in, Target& target) {
    switch (kind) {
    case TargetKind::Drive: {
        const std::optional<std::string> id = targetText(path, in, "DDDeviceID");
        const std::optional<_pdiskIdf> drive = id ? parseDrive(*id) : std::nullopt;
        if (!drive) {
            return false;
        }
        target.drive = *drive;
        target.controller = drive->controller;
        return true;
    }
    case TargetKind::LogicalDrive: {
        const std::optional<std::string> id = targetText(path, in, "SPInstanceID");
        const std::optional<_vdiskIdf> ld = id ? parseLogicalDrive(*id) : std::nullopt;
        if (!ld) {
            return false;
        }
        target.logicalDrive = *ld;
        target.controller = ld->controller;
        return true;
    }
    case TargetKind::Controller: {
        const std::optional<int> controller = targetController(path, in);
        if (!controller) {
            return false;
        }
        target.controller = *controller;
        return true;
    }
    case TargetKind::None:
        return true;
    }
    return false;
}

unsigned int runRoutine(const RoutineSpec& spec, const CIMObjectPath& path, const CIMMethodParam& in,
                        CIMMethodParam& out) {
    TkzLogMsg(TKZ_LOG_INFO, "%s Enter", spec.name);
    Target target;
    if (!decodeTarget(spec.target, path, in, target)) {
        TkzLogMsg(TKZ_LOG_ERROR, "%s exits with without calling FSA Func", spec.name);
        return FSAIF_INVALID_PARAM;
    }
    logTarget(spec, target);
    Values values;
    for (int i = 0; i < 3; ++i) {
        if (!readValue(spec.values[i], in, values, i)) {
            return FSAIF_INVALID_PARAM;
        }
    }
    storlib::Ret ret;
    const unsigned int result = spec.action(target, values, ret, out);
    if (result == 0) {
        if (spec.success != nullptr) {
            TkzLogMsg(TKZ_LOG_INFO, "%s", spec.success);
        } else {
            TkzLogMsg(TKZ_LOG_INFO, "Returning success form %s", spec.name);
        }
    } else {
        if (spec.failure != nullptr) {
            TkzLogMsg(TKZ_LOG_ERROR, "%s", spec.failure);
        }
        if (!ret.ok()) {
            TkzLogMsg(TKZ_LOG_ERROR, "%s: the controller refused: %s", spec.name, ret.getReason().c_str());
        }
    }
    return result;
}

}  // namespace vex::cim::fwf::routine
