// Spares, parity and rebuild: the SMI-S routines over drives as storage
// extents and logical drives as pools or volumes. The controller of every
// reference must be that of the service the method was called on, when the
// target path names one.
#include "controller/routines/OperationWrappers.h"
#include "controller/routines/ReferenceArgs.h"
#include "controller/routines/Routines.h"
#include "controller/FsaifReturn.h"
#include "platform/Tkz.h"

namespace vex::cim::fwf {

namespace {

using namespace routine;

bool sameController(const CIMObjectPath& path, const CIMMethodParam& in, int controller) {
    const std::optional<int> service = targetController(path, in);
    if (service && *service != controller) {
        TkzLogMsg(TKZ_LOG_ERROR, "Supplied Pool controllerID mismatches with StorageConfigurationService controllerID");
        return false;
    }
    return true;
}

// The drives of "InExtents", all of the service's controller.
std::optional<std::vector<_pdiskIdf>> inExtents(const CIMObjectPath& path, const CIMMethodParam& in) {
    const std::optional<std::vector<CIMObjectPath>> refs = referencesOf(in, "InExtents");
    if (!refs || refs->empty()) {
        TkzLogMsg(TKZ_LOG_ERROR, "User has to pass InExtents");
        return std::nullopt;
    }
    std::vector<_pdiskIdf> drives;
    for (const CIMObjectPath& ref : *refs) {
        const std::optional<_pdiskIdf> drive = extentDrive(ref);
        if (!drive || !sameController(path, in, drive->controller)) {
            return std::nullopt;
        }
        drives.push_back(*drive);
    }
    return drives;
}

// The logical drive named by a reference argument.
std::optional<_vdiskIdf> poolArgument(const CIMObjectPath& path, const CIMMethodParam& in, const char* name,
                                      const char* routine) {
    const std::optional<std::vector<CIMObjectPath>> refs = referencesOf(in, name);
    if (!refs || refs->size() != 1) {
        TkzLogMsg(TKZ_LOG_ERROR, "%s :: ObjectPath passed does not contain key %s", routine, name);
        return std::nullopt;
    }
    const std::optional<_vdiskIdf> ld = poolOf(refs->front(), routine);
    if (!ld || !sameController(path, in, ld->controller)) {
        return std::nullopt;
    }
    return ld;
}

unsigned int checkParity(const CIMObjectPath& path, const CIMMethodParam& in, bool repair, const char* routine) {
    TkzLogMsg(TKZ_LOG_INFO, "%s Enter", routine);
    const std::optional<_vdiskIdf> ld = poolArgument(path, in, "Element", routine);
    if (!ld) {
        return FSAIF_INVALID_PARAM;
    }
    storlib::Ret ret;
    return fsaifSynchronizeLogicalDrive(*ld, repair, ret);
}

}  // namespace

unsigned int FsaifExAssignSpare(const CIMObjectPath& path, const CIMMethodParam& in, CIMMethodParam&) {
    TkzLogMsg(TKZ_LOG_INFO, "%s Enter", "FsaifExAssignSpare");
    const std::optional<std::vector<_pdiskIdf>> drives = inExtents(path, in);
    if (!drives) {
        return FSAIF_INVALID_PARAM;
    }
    std::optional<_vdiskIdf> pool;
    if (argument(in, "Pool") != nullptr) {
        pool = poolArgument(path, in, "Pool", "FsaifExAssignSpare");
        if (!pool || pool->controller != drives->front().controller) {
            return FSAIF_INVALID_PARAM;
        }
    }
    // Drive by drive: a refusal stops at the first drive the controller refuses.
    for (const _pdiskIdf& drive : *drives) {
        storlib::Ret ret;
        const unsigned int result =
            pool ? fsaifAssignDedicatedSpare(drive, *pool, ret) : fsaifAssignGlobalSpare(drive, ret);
        if (result != FSAIF_SUCCESS) {
            TkzLogMsg(TKZ_LOG_ERROR, "FsaifExAssignSpare: %s", ret.getReason().c_str());
            return result;
        }
    }
    return FSAIF_SUCCESS;
}

unsigned int FsaifExUnassignSpare(const CIMObjectPath& path, const CIMMethodParam& in, CIMMethodParam&) {
    TkzLogMsg(TKZ_LOG_INFO, "%s Enter", "FsaifExUnassignSpare");
    const std::optional<std::vector<_pdiskIdf>> drives = inExtents(path, in);
    if (!drives) {
        return FSAIF_INVALID_PARAM;
    }
    for (const _pdiskIdf& drive : *drives) {
        storlib::Ret ret;
        const unsigned int result = fsaifUnassignSpare(drive, ret);
        if (result != FSAIF_SUCCESS) {
            TkzLogMsg(TKZ_LOG_ERROR, "FsaifExUnassignSpare: %s", ret.getReason().c_str());
            return result;
        }
    }
    return FSAIF_SUCCESS;
}

unsigned int FsaifExCheckParityConsistency(const CIMObjectPath& path, const CIMMethodParam& in, CIMMethodParam&) {
    return checkParity(path, in, false, "FsaifExCheckParityConsistency");
}

unsigned int FsaifExRepairParity(const CIMObjectPath& path, const CIMMethodParam& in, CIMMethodParam&) {
    return checkParity(path, in, true, "FsaifExRepairParity");
}

// Rebuilds the logical drive "Element" onto the drive "Target".
unsigned int FsaifExRebuildStorageExtent(const CIMObjectPath& path, const CIMMethodParam& in, CIMMethodParam&) {
    TkzLogMsg(TKZ_LOG_INFO, "%s Enter", "FsaifExRebuildStorageExtent");
    const std::optional<_vdiskIdf> ld = poolArgument(path, in, "Element", "FsaifExRebuildStorageExtent");
    const std::optional<std::vector<CIMObjectPath>> target = ld ? referencesOf(in, "Target") : std::nullopt;
    if (!target || target->size() != 1) {
        if (ld) {
            TkzLogMsg(TKZ_LOG_ERROR, "%s :: ObjectPath passed does not contain key %s", "FsaifExRebuildStorageExtent",
                      "Target");
        }
        return FSAIF_INVALID_PARAM;
    }
    const std::optional<_pdiskIdf> drive = extentDrive(target->front());
    if (!drive || drive->controller != ld->controller) {
        return FSAIF_INVALID_PARAM;
    }
    storlib::Ret ret;
    return fsaifRebuildLogicalDrive(*ld, *drive, ret);
}

}  // namespace vex::cim::fwf
