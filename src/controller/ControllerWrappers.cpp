#include "controller/FsaifCall.h"
#include "controller/FsaifWrappers.h"

namespace vex::cim::fwf {

namespace {

uint32_t adapterOf(int controller) { return static_cast<uint32_t>(controller); }

}  // namespace

unsigned int fsaifSetAutomaticFailOver(int controller, bool enable, storlib::Ret& ret) {
    return fsaifCall("fsaifSetAutomaticFailOver", ret,
                     [&](storlib::StorLib& lib) { return lib.setAutomaticFailover(adapterOf(controller), enable); });
}

unsigned int fsaifSetPMStayAwakePeriod(int controller, bool mainEnabled, unsigned int startHour,
                                       unsigned int stopHour, unsigned int days, storlib::Ret& ret) {
    return fsaifCall("fsaifSetPMStayAwakePeriod", ret, [&](storlib::StorLib& lib) {
        return lib.setStayAwakePeriod(adapterOf(controller), mainEnabled, startHour, stopHour, days);
    });
}

unsigned int fsaifSetCopyBack(int controller, bool enable, storlib::Ret& ret) {
    return fsaifCall("fsaifSetCopyBack", ret,
                     [&](storlib::StorLib& lib) { return lib.setCopyBack(adapterOf(controller), enable); });
}

unsigned int fsaifSetPerformanceMode(int controller, unsigned int mode, storlib::Ret& ret) {
    return fsaifCall("fsaifSetPerformanceMode", ret, [&](storlib::StorLib& lib) {
        return lib.setPerformanceMode(adapterOf(controller), static_cast<storlib::PerformanceMode>(mode));
    });
}

unsigned int fsaifSetSataNCQ(int controller, bool enable, storlib::Ret& ret) {
    return fsaifCall("fsaifSetSataNCQ", ret,
                     [&](storlib::StorLib& lib) { return lib.setNCQ(adapterOf(controller), enable); });
}

unsigned int fsaifBgConsistencyCheck(int controller, bool enable, storlib::Ret& ret) {
    return fsaifCall("fsaifBgConsistencyCheck", ret, [&](storlib::StorLib& lib) {
        return lib.setBackgroundConsistencyCheck(adapterOf(controller), enable);
    });
}

unsigned int fsaifBgConsistencyCheckRate(int controller, unsigned int days, storlib::Ret& ret) {
    return fsaifCall("fsaifBgConsistencyCheckRate", ret, [&](storlib::StorLib& lib) {
        return lib.setBackgroundConsistencyCheckPeriod(adapterOf(controller), days);
    });
}

unsigned int fsaifSetPMSpinUpLimits(int controller, unsigned int internalLimit, unsigned int externalLimit,
                                    storlib::Ret& ret) {
    return fsaifCall("fsaifSetPMSpinUpLimits", ret, [&](storlib::StorLib& lib) {
        return lib.setSpinUpLimits(adapterOf(controller), internalLimit, externalLimit);
    });
}

unsigned int fsaifSetGlobalPhysicalDevicesWriteCachePolicy(int controller, unsigned int policy, storlib::Ret& ret) {
    return fsaifCall("fsaifSetGlobalPhysicalDevicesWriteCachePolicy", ret, [&](storlib::StorLib& lib) {
        return lib.setGlobalPhysicalDevicesWriteCachePolicy(adapterOf(controller),
                                                            static_cast<storlib::DriveWriteCachePolicy>(policy));
    });
}

unsigned int fsaifSetGlobalMaxSASPhyLinkRate(int controller, unsigned int rate, storlib::Ret& ret) {
    return fsaifCall("fsaifSetGlobalMaxSASPhyLinkRate", ret, [&](storlib::StorLib& lib) {
        return lib.setGlobalMaxSASPhyLinkRate(adapterOf(controller), static_cast<storlib::LinkRate>(rate));
    });
}

}  // namespace vex::cim::fwf
