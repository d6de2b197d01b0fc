// Fault injection and clock control.
#include <storlib/Simulator.h>

#include "core/Core.h"
#include "sim/Ops.h"

namespace storlib {
namespace ops = sim::ops;

#define STORLIB_SIM(call) return lib_.core()->write([&](sim::Model& m) { return call; })

Ret Simulator::failDrive(const Addr& d) { STORLIB_SIM(ops::failDrive(m, d)); }
Ret Simulator::pullDrive(const Addr& d) { STORLIB_SIM(ops::pullDrive(m, d)); }
Ret Simulator::insertDrive(const Addr& d, bool asNew) { STORLIB_SIM(ops::insertDrive(m, d, asNew)); }
Ret Simulator::setSmartError(const Addr& d, bool t) { STORLIB_SIM(ops::setSmartError(m, d, t)); }
Ret Simulator::setFanFailed(const Addr& e, uint32_t i, bool f) {
    STORLIB_SIM(ops::setElementFailed(m, e, SESElementType::Cooling, i, f));
}
Ret Simulator::setPowerSupplyFailed(const Addr& e, uint32_t i, bool f) {
    STORLIB_SIM(ops::setElementFailed(m, e, SESElementType::PowerSupply, i, f));
}
Ret Simulator::setTemperature(const Addr& e, uint32_t s, int32_t c) { STORLIB_SIM(ops::setSensorTemperature(m, e, s, c)); }
Ret Simulator::setControllerTemperature(uint32_t a, int32_t c) { STORLIB_SIM(ops::setControllerTemperature(m, a, c)); }
Ret Simulator::setBatteryFailed(uint32_t a, bool f) { STORLIB_SIM(ops::setBatteryFailed(m, a, f)); }
Ret Simulator::setControllerStatus(uint32_t a, uint32_t s) { STORLIB_SIM(ops::setControllerStatus(m, a, s)); }
Ret Simulator::removeController(uint32_t a) { STORLIB_SIM(ops::removeController(m, a)); }
Ret Simulator::addController() { STORLIB_SIM(ops::addController(m)); }
Ret Simulator::finishTask(const Addr& t) { STORLIB_SIM(ops::finishTask(m, t)); }
Ret Simulator::finishAllTasks() { STORLIB_SIM(ops::finishAllTasks(m)); }
Ret Simulator::advanceTime(double s) { return lib_.core()->advanceTime(s); }
Ret Simulator::setTimeScale(double s) { return lib_.core()->setTimeScale(s); }
Ret Simulator::getTime(double& now, double& scale) { return lib_.core()->getTime(now, scale); }
Ret Simulator::reset() { return lib_.core()->reset(); }
std::string Simulator::statePath() const { return lib_.core()->statePath(); }

}  // namespace storlib
