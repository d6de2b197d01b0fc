// Routines over several drives (protect, drive firmware, uninitialise a set),
// the controller firmware, the saved configuration of every controller and
// the scheduling question.
#include "controller/routines/ControllerSnapshot.h"
#include "controller/routines/OperationWrappers.h"
#include "controller/routines/RoutineRunner.h"
#include "controller/routines/Routines.h"
#include "controller/routines/SafePath.h"
#include "controller/VexFSAInterface.h"
#include "platform/Tkz.h"

namespace vex::cim::fwf {

namespace {

using namespace routine;

// Drives of one controller from a list of "DDDeviceID" texts; empty when a
// text is malformed or the drives are on different controllers.
std::optional<std::vector<_pdiskIdf>> drivesOf(const std::vector<std::string>& ids) {
    std::vector<_pdiskIdf> drives;
    for (const std::string& id : ids) {
        const std::optional<_pdiskIdf> drive = parseDrive(id);
        if (!drive || (!drives.empty() && drive->controller != drives.front().controller)) {
            return std::nullopt;
        }
        drives.push_back(*drive);
    }
    return drives;
}

using FlashFn = unsigned int (*)(const std::vector<_pdiskIdf>&, const std::string&, unsigned int, unsigned int,
                                 storlib::Ret&);

unsigned int flashDrives(const char* routine, FlashFn flash, const char* wrapper, const CIMMethodParam& in) {
    TkzLogMsg(TKZ_LOG_INFO, "%s Enter", routine);
    const std::optional<std::vector<std::string>> ids = texts(in, "pdiskIdentifiers");
    const std::optional<std::vector<_pdiskIdf>> drives = ids ? drivesOf(*ids) : std::nullopt;
    if (!drives) {
        TkzLogMsg(TKZ_LOG_ERROR, "No valid data for pdiskIdentifiers");
        return FSAIF_INVALID_PARAM;
    }
    const std::optional<std::string> image = text(in, "fwFilePath");
    if (!image || !isReadableAbsoluteFile(*image)) {
        TkzLogMsg(TKZ_LOG_ERROR, "No valid data for fwFilePath");
        return FSAIF_INVALID_PARAM;
    }
    const unsigned long long packetSize = number(in, "packetSize").value_or(0);
    const unsigned long long mode = number(in, "mode").value_or(0);
    if (packetSize > 0xffffffffull || mode > 0xffffffffull) {
        TkzLogMsg(TKZ_LOG_ERROR, "No valid data for packetSize or mode");
        return FSAIF_INVALID_PARAM;
    }
    storlib::Ret ret;
    const unsigned int result =
        flash(*drives, *image, static_cast<unsigned int>(packetSize), static_cast<unsigned int>(mode), ret);
    TkzLogMsg(result == 0 ? TKZ_LOG_INFO : TKZ_LOG_ERROR, "%s %s", wrapper, result == 0 ? "succeeded" : "failed");
    return result;
}

// Characters that cannot stand in XML text as they are.
std::string xmlEscaped(const std::string& text) {
    std::string escaped;
    escaped.reserve(text.size());
    for (char c : text) {
        switch (c) {
        case '&': escaped += "&amp;"; break;
        case '<': escaped += "&lt;"; break;
        case '>': escaped += "&gt;"; break;
        case '"': escaped += "&quot;"; break;
        default: escaped += c;
        }
    }
    return escaped;
}

}  // namespace

unsigned int FsaifExProtectHardDriveSet(const CIMObjectPath& path, const CIMMethodParam& in, CIMMethodParam&) {
    TkzLogMsg(TKZ_LOG_INFO, "%s Enter", "FsaifExProtectHardDriveSet");
    const bool allDrives = flag(in, "bAllDrives").value_or(false);
    const std::optional<bool> protect = flag(in, "bProtect");
    const std::optional<std::vector<std::string>> ids = texts(in, "pdiskIdentifiers");
    std::optional<std::vector<_pdiskIdf>> drives = ids ? drivesOf(*ids) : std::nullopt;
    if (allDrives && !ids) {
        drives = std::vector<_pdiskIdf>{};
    }
    std::optional<int> controller = targetController(path, in);
    if (drives && !drives->empty()) {
        controller = drives->front().controller;
    }
    if (!protect || !drives || !controller) {
        TkzLogMsg(TKZ_LOG_ERROR, "No valid data for pdiskIdentifiers or bProtect");
        return FSAIF_INVALID_PARAM;
    }
    storlib::Ret ret;
    return fsaifProtectHardDriveSet(*controller, *drives, allDrives, *protect, ret);
}

unsigned int FsaifExFlashSATADriveMicrocode(const CIMObjectPath&, const CIMMethodParam& in, CIMMethodParam&) {
    return flashDrives("FsaifExFlashSATADriveMicrocode", flashSATADriveMicrocode, "flashSATADriveMicrocode", in);
}

unsigned int FsaifExFlashSasHarddrive(const CIMObjectPath&, const CIMMethodParam& in, CIMMethodParam&) {
    return flashDrives("FsaifExFlashSasHarddrive", fsaifFlashSasHarddrive, "fsaifFlashSasHarddrive", in);
}

unsigned int FsaifExUninitializeHardDriveSet(const CIMObjectPath& path, const CIMMethodParam& in, CIMMethodParam&) {
    TkzLogMsg(TKZ_LOG_INFO, "%s Enter", "FsaifExUninitializeHardDriveSet");
    const std::optional<int> controller = targetController(path, in);
    const CIMProperty* refs = argument(in, "Drives");
    std::vector<_pdiskIdf> drives;
    for (const CIMObjectPath& ref : refs != nullptr ? references(*refs) : std::vector<CIMObjectPath>{}) {
        std::optional<std::string> id = keyText(ref, "DDDeviceID");
        if (!id) {
            id = keyText(ref, "DeviceID");
        }
        const std::optional<_pdiskIdf> drive = id ? parseDrive(*id) : std::nullopt;
        if (!drive || (controller && drive->controller != *controller)) {
            TkzLogMsg(TKZ_LOG_ERROR, "No valid data for Drives");
            return FSAIF_INVALID_PARAM;
        }
        drives.push_back(*drive);
    }
    if (drives.empty()) {
        TkzLogMsg(TKZ_LOG_ERROR, "No valid data for Drives");
        return FSAIF_INVALID_PARAM;
    }
    storlib::Ret ret;
    return fsaifUninitializeHardDriveSet(drives, ret);
}

unsigned int FsaifExInstallOrUpgradeFirmware(const CIMObjectPath& path, const CIMMethodParam& in, CIMMethodParam&) {
    TkzLogMsg(TKZ_LOG_INFO, "%s Enter", "FsaifExInstallOrUpgradeFirmware");
    const std::optional<std::string> image = text(in, "fwImagesAbsPath");
    if (!image) {
        TkzLogMsg(TKZ_LOG_ERROR, "AbsolutePath is empty, it is a mandatory field");
        return FSAIF_INVALID_PARAM;
    }
    const std::optional<int> controller = targetController(path, in);
    if (!controller || !isReadableAbsoluteFile(*image)) {
        TkzLogMsg(TKZ_LOG_ERROR, "No valid data for fwImagesAbsPath");
        return FSAIF_INVALID_PARAM;
    }
    storlib::Ret ret;
    return fsaifUpgradeControllerFirmware(*controller, *image, ret);
}

unsigned int FsaifExSchedule(const CIMObjectPath&, const CIMMethodParam&, CIMMethodParam& out) {
    // Tasks start when they are asked for; there is no scheduler.
    putFlag(out, "supported", false);
    return FSAIF_SUCCESS;
}

unsigned int FsaifExGetXmlConfig(const CIMObjectPath&, const CIMMethodParam&, CIMMethodParam& out) {
    const auto config = snapshot();
    if (!config) {
        return FSAIF_FAIL;
    }
    std::string xml = "<Configuration>";
    for (std::size_t i = 0; i < config->getAdapterCount(); ++i) {
        std::string saved;
        storlib::Ret ret;
        if (fsaifSaveConfig(static_cast<int>(i), saved, ret) != FSAIF_SUCCESS) {
            return FSAIF_FW_FAILURE;
        }
        xml += "<Controller index=\"" + std::to_string(i) + "\">" + xmlEscaped(saved) + "</Controller>";
    }
    xml += "</Configuration>";
    putText(out, "xmlConfig", xml);
    return FSAIF_SUCCESS;
}

}  // namespace vex::cim::fwf
