// Simulator: fault injection and clock control of the simulated controllers.
// Not part of a hardware installation; used by storvex-sim and by tests.
#pragma once
#include <storlib/StorLib.h>

namespace storlib {

class STORLIB_API Simulator {
public:
    explicit Simulator(StorLib& lib) : lib_(lib) {}

    Ret failDrive(const Addr& drive);
    Ret pullDrive(const Addr& drive);
    // Puts a pulled drive back; with asNewDrive a blank drive of the same
    // model (new serial number) goes into its place instead.
    Ret insertDrive(const Addr& drive, bool asNewDrive = false);
    Ret setSmartError(const Addr& drive, bool tripped);
    Ret setFanFailed(const Addr& enclosure, uint32_t index, bool failed);
    Ret setPowerSupplyFailed(const Addr& enclosure, uint32_t index, bool failed);
    Ret setTemperature(const Addr& enclosure, uint32_t sensor, int32_t celsius);
    Ret setControllerTemperature(uint32_t adapter, int32_t celsius);
    Ret setBatteryFailed(uint32_t adapter, bool failed);
    Ret setControllerStatus(uint32_t adapter, uint32_t status);
    Ret removeController(uint32_t adapter);
    Ret addController();      // puts back the first removed controller
    Ret advanceTime(double seconds);
    Ret setTimeScale(double scale);
    Ret getTime(double& now, double& scale);
    Ret finishTask(const Addr& task);
    Ret finishAllTasks();
    // Back to the system description: configuration, clock and events.
    Ret reset();
    std::string statePath() const;

private:
    StorLib& lib_;
};

}  // namespace storlib
