// The identifiers that name the target of a controller operation: a drive
// ("DDDeviceID" "c_ch_dev"), a logical drive ("SPInstanceID" "c_ld") and a
// controller ("CSName" "vexController_c"). Any text decodes or is refused;
// what decodes formats back to text that decodes to the same numbers.
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>

#include "controller/CimNames.h"

using namespace vex::cim::fwf::fsamap;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string text(reinterpret_cast<const char*>(data), size);
    int c = 0, ch = 0, dev = 0, ld = 0;
    if (parseDriveDeviceId(text, c, ch, dev)) {
        int c2 = -1, ch2 = -1, dev2 = -1;
        if (!parseDriveDeviceId(driveDeviceId(c, ch, dev), c2, ch2, dev2) || c2 != c || ch2 != ch || dev2 != dev) std::abort();
    }
    if (parseLogicalDriveId(text, c, ld)) {
        int c2 = -1, ld2 = -1;
        if (!parseLogicalDriveId(logicalDriveId(c, ld), c2, ld2) || c2 != c || ld2 != ld) std::abort();
    }
    if (parseControllerSystemName(text, c)) {
        int c2 = -1;
        if (!parseControllerSystemName(controllerSystemName(c), c2) || c2 != c) std::abort();
    }
    return 0;
}
