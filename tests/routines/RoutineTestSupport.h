// What the routine tests share: a simulated controller with twelve drives
// (ready drives 0:3 to 0:10, a RAID 5 "Data" on 0:0 to 0:2 as logical drive
// 0, an uninitialised drive 0:11), the controller interface started on it,
// and calls of routines by name the way a client's method arrives.
#ifndef VEX_TESTS_ROUTINES_ROUTINETESTSUPPORT_H
#define VEX_TESTS_ROUTINES_ROUTINETESTSUPPORT_H

#include <storlib/HardDrive.h>
#include <storlib/LogicalDrive.h>

#include "FsaTestSupport.h"
#include "framework/LogCapture.h"

namespace vex::cim::fwf::test {

class RoutineTest : public FsaTest {
protected:
    void SetUp() override;

    // The system description; tests that need another override it before SetUp.
    virtual std::string systemJson() const;

    // Runs a routine on the controller's path (key "Name" = "vexController_0").
    unsigned int call(const std::string& routine, const CIMMethodParam& in);
    // Runs a routine on a path with these string keys.
    unsigned int callOn(const std::string& routine, const std::vector<std::pair<std::string, std::string>>& keys,
                        const CIMMethodParam& in);

    // Current controller state, read through a second library handle.
    const storlib::HardDrive* drive(uint32_t channel, uint32_t device);
    const storlib::LogicalDrive* logicalDrive(uint32_t id);
    std::size_t logicalDriveCount();
    // True when a line containing `part` was logged.
    static bool logged(const std::string& part);

    CIMMethodParam out;

private:
    std::shared_ptr<const storlib::SystemConfig> m_config;
};

// Argument builders.
CIMMethodParam args();
CIMMethodParam& withText(CIMMethodParam& in, const char* name, const std::string& value);
CIMMethodParam& withTexts(CIMMethodParam& in, const char* name, const std::vector<std::string>& values);
CIMMethodParam& withNumber(CIMMethodParam& in, const char* name, unsigned int value);
CIMMethodParam& withFlag(CIMMethodParam& in, const char* name, bool value);
CIMMethodParam& withRefs(CIMMethodParam& in, const char* name, const std::vector<CIMObjectPath>& refs);
CIMObjectPath extentRef(const std::string& deviceId);
CIMObjectPath poolRef(const std::string& instanceId);

}  // namespace vex::cim::fwf::test

#endif
