#include "events/EventSettings.h"

#include "monitor/MonitorFiles.h"
#include "monitor/VEXRaidEventMonitor.h"

namespace vex::cim::fwf::events {

bool lifecycleIndicationsEnabled() {
    monitor::VEXRaidEventMonitor* raidMonitor = monitor::VEXRaidEventMonitor::getInstance();
    if (raidMonitor != nullptr) {
        if (std::shared_ptr<monitor::FsaRaidMonitor> current = raidMonitor->getMonitor()) {
            return current->settings().lifecycleIndications;
        }
    }
    return monitor::readSettings(monitor::monitorDirectory() + "NRMConfig.conf").lifecycleIndications;
}

}  // namespace vex::cim::fwf::events
