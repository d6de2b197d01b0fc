// Battery: the cache backup unit of a controller, a battery or a super-capacitor.
#pragma once
#include <storlib/Properties.h>
#include <storlib/RaidObject.h>
#include <storlib/Types.h>

namespace storlib {

#define STORLIB_BATTERY_PROPERTIES(X)                                                      \
    X(bool, isSuperCap, isSuperCap, false)                                                 \
    X(BatteryStatus, status, getStatus, BatteryStatus::Ok)                                 \
    X(int32_t, temperatureC, getTemperature, 30)                                           \
    X(bool, temperatureWarning, isTemperatureWarning, false)                               \
    X(uint32_t, blbuStatus, getBlbuStatus, 0)                                              \
    X(bool, blbuPresent, isBlbuPresent, true)                                              \
    X(bool, reconditionRequired, isReconditionRequired, false)                             \
    X(uint32_t, fullCapacityMAh, getFullCapacity, 0)                                       \
    X(uint32_t, remainingCapacityPct, getRemainingCapacity, 100)                           \
    X(int32_t, currentDrawMA, getCurrentDraw, 0)                                           \
    X(uint32_t, superCapStatus, getSuperCapStatus, 0)                                      \
    X(uint32_t, superCapStorageStatus, getSuperCapStorageStatus, 0)                        \
    X(uint32_t, superCapFuelStatus, getSuperCapFuelStatus, 0)                              \
    X(int32_t, superCapTemperatureC, getSuperCapTemperature, 0)                            \
    X(bool, superCapTempThresholdExceeded, isSuperCapTempThresholdExceeded, false)         \
    X(uint32_t, superCapVoltageMV, getSuperCapVoltage, 0)                                  \
    X(int32_t, superCapLifetimeMaxTempC, getSuperCapLifetimeMaxTemperature, 0)             \
    X(int32_t, superCapLifetimeMinTempC, getSuperCapLifetimeMinTemperature, 0)             \
    X(uint32_t, superCapMaxVoltageMV, getSuperCapMaxVoltage, 0)                            \
    X(uint32_t, superCapLifetimeMaxVoltageMV, getSuperCapLifetimeMaxVoltage, 0)            \
    X(uint32_t, superCapMaxCurrentDrawMA, getSuperCapMaxCurrentDraw, 0)                    \
    X(uint32_t, superCapCurrentDrawMA, getSuperCapCurrentDraw, 0)                          \
    X(uint32_t, superCapHealthPct, getSuperCapHealth, 0)                                   \
    X(uint32_t, superCapErrorCode, getSuperCapErrorCode, 0)                                \
    X(uint32_t, superCapChargeLevelPct, getSuperCapChargeLevel, 0)                         \
    X(uint32_t, superCapLifetimeEstimateDays, getSuperCapLifetimeEstimate, 0)              \
    X(int32_t, superCapTempThresholdC, getSuperCapTempThreshold, 0)

struct BatteryData {
    STORLIB_BATTERY_PROPERTIES(STORLIB_PROPERTY_MEMBER)
};

// Address: controller, extended component 0. A controller without a backup
// unit has no "Battery" child.
class STORLIB_API Battery : public RaidObject {
    STORLIB_OBJECT_CLASS(Battery, RaidObject)
public:
    Battery(const Addr& addr, BatteryData data) : RaidObject(addr), data_(data) {}
    ~Battery() override;
    STORLIB_BATTERY_PROPERTIES(STORLIB_PROPERTY_GETTER)
private:
    BatteryData data_;
};

}  // namespace storlib
