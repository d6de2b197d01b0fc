#include "controller/routines/ReferenceArgs.h"

#include "platform/Tkz.h"

namespace vex::cim::fwf::routine {

std::optional<std::vector<CIMObjectPath>> referencesOf(const CIMMethodParam& in, const char* name) {
    const CIMProperty* arg = argument(in, name);
    if (arg == nullptr) {
        return std::nullopt;
    }
    if (arg->getType() != CIM_REFERENCE && arg->getType() != CIM_REFERENCE_ARRAY) {
        TkzLogMsg(TKZ_LOG_ERROR, "User passed \"%s\" is Invalid data type.Reference is expected", name);
        return std::nullopt;
    }
    return references(*arg);
}

std::optional<_pdiskIdf> extentDrive(const CIMObjectPath& extent) {
    static const std::string kSpareSuffix = "_Spare";  // a spare drive as a concrete extent
    for (const char* key : {"DeviceID", "DDDeviceID", "SEDeviceID"}) {
        if (std::optional<std::string> id = keyText(extent, key)) {
            if (id->size() > kSpareSuffix.size() &&
                id->compare(id->size() - kSpareSuffix.size(), kSpareSuffix.size(), kSpareSuffix) == 0) {
                id->resize(id->size() - kSpareSuffix.size());
            }
            if (const std::optional<_pdiskIdf> drive = parseDrive(*id)) {
                return drive;
            }
        }
    }
    TkzLogMsg(TKZ_LOG_ERROR, "Invalid Inextent Passed, No DeviceID");
    return std::nullopt;
}

std::optional<_vdiskIdf> poolOf(const CIMObjectPath& pool, const char* routine) {
    for (const char* key : {"InstanceID", "DeviceID", "SPInstanceID"}) {
        if (const std::optional<std::string> id = keyText(pool, key)) {
            if (const std::optional<_vdiskIdf> ld = parseLogicalDrive(*id)) {
                return ld;
            }
        }
    }
    TkzLogMsg(TKZ_LOG_ERROR, "%s :: ObjectPath passed does not contain key %s", routine, "InstanceID");
    return std::nullopt;
}

}  // namespace vex::cim::fwf::routine
