// VexFSAInterface::updateAdapterinfo: what is read from one controller, in order.
#include <storlib/StorLib.h>

#include "controller/ControllerMapping.h"
#include "controller/DeviceMapping.h"
#include "controller/FsaCacheBuild.h"
#include "controller/JobMapping.h"
#include "controller/PoolMapping.h"

namespace vex::cim::fwf {

namespace {

const storlib::Adapter* adapterAt(const storlib::SystemConfig* snapshot, int index) {
    if (snapshot == nullptr) {
        return nullptr;
    }
    const storlib::RaidObject* object = snapshot->getObject(storlib::Addr(static_cast<uint32_t>(index)));
    return object != nullptr ? object->as<storlib::Adapter>() : nullptr;
}

void readControllerDetails(const fsamap::ControllerContext& controller, fsaCIMInstanceWrapper& instance) {
    fsamap::updatePortControllerDetails(controller, instance);
    fsamap::readFsaGeneralInfo(controller, instance);
    fsamap::updateAlarmDetails(controller, instance);
    fsamap::readAdapterOptions(controller, instance);
    fsamap::updateVersionInfo(controller, instance);
    fsamap::updateBatteryProperties(controller, instance);
    fsamap::readHostBusInfo(controller, instance);
    fsamap::addReadyDriveCount(controller, instance);
}

}  // namespace

void VexFSAInterface::updateAdapterinfo(int index, fsaCIMInstanceWrapper& instance, bool rebuild,
                                        bool partial, CacheBuild& build) {
    const fsamap::ControllerContext controller{index, adapterAt(build.snapshot.get(), index)};
    if (!partial) {
        fsamap::setInfoFromFsaEnum(controller, instance);
    }
    requireLibraryHandle(getStorLib());
    if (controller.adapter == nullptr || controller.adapter->getAdapterStatus() != 0) {
        return;
    }
    if (!partial) {
        readControllerDetails(controller, instance);
        if (!rebuild) {
            fsamap::updateAssociatedStorageSettings(controller, build.batch);
        }
        fsamap::updatePhysicalDevice(controller, build.batch);
        fsamap::updateVirtualDisk(controller, build.batch);
    }
    fsamap::updateLrcInformation(controller, build.snapshot->getTime(), build.batch);
}

}  // namespace vex::cim::fwf
