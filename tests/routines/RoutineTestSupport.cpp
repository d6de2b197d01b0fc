#include "RoutineTestSupport.h"

namespace vex::cim::fwf::test {

namespace {

CIMProperty routineKey(const std::string& name, const std::string& value) {
    return CIMProperty(name, CIMValue<std::string>(value), true, CIM_STRING, false);
}

}  // namespace

std::string RoutineTest::systemJson() const {
    std::string drives;
    for (int d = 0; d < 12; ++d) {
        drives += std::string(d ? "," : "") + R"({"channel": 0, "device": )" + std::to_string(d) +
                  R"(, "sizeMB": 100000)" + (d == 11 ? R"(, "state": "raw")" : "") + "}";
    }
    return R"({"controllers": [{"drives": [)" + drives +
           R"(], "logicalDrives": [{"id": 0, "name": "Data", "raidLevel": "RAID5", "members": ["0:0", "0:1", "0:2"]}]}]})";
}

void RoutineTest::SetUp() {
    FsaTest::SetUp();
    const std::string system = writeSystem(systemJson());
    simulatorOn(system);
    ASSERT_EQ(start(system), 0u);
    clearLog();
}

unsigned int RoutineTest::call(const std::string& routine, const CIMMethodParam& in) {
    return callOn(routine, {{"CreationClassName", "VEX_ControllerComputerSystem"}, {"Name", "vexController_0"}}, in);
}

unsigned int RoutineTest::callOn(const std::string& routine,
                                 const std::vector<std::pair<std::string, std::string>>& keys,
                                 const CIMMethodParam& in) {
    std::vector<CIMProperty> bindings;
    for (const auto& [name, value] : keys) {
        bindings.push_back(routineKey(name, value));
    }
    out.clearArgument();
    m_config.reset();
    return fsa->execute(CIMObjectPath("", "root/tkz/vex/smi_15", "VEX_ControllerComputerSystem", bindings), routine,
                        in, out);
}

const storlib::HardDrive* RoutineTest::drive(uint32_t channel, uint32_t device) {
    m_config = library().getSystemConfig();
    const storlib::RaidObject* o = m_config->getObject(storlib::Addr::device(0, channel, device));
    return o != nullptr ? o->as<storlib::HardDrive>() : nullptr;
}

const storlib::LogicalDrive* RoutineTest::logicalDrive(uint32_t id) {
    m_config = library().getSystemConfig();
    const storlib::RaidObject* o = m_config->getObject(storlib::Addr::logicalDrive(0, id));
    return o != nullptr ? o->as<storlib::LogicalDrive>() : nullptr;
}

std::size_t RoutineTest::logicalDriveCount() {
    m_config = library().getSystemConfig();
    return storlib::FilterCollection(*m_config->getAdapter(0), storlib::LogicalDrive::kClassName).size();
}

bool RoutineTest::logged(const std::string& part) {
    for (const LoggedLine& line : loggedLines()) {
        if (line.text.find(part) != std::string::npos) {
            return true;
        }
    }
    return false;
}

CIMMethodParam args() { return CIMMethodParam(); }

CIMMethodParam& withText(CIMMethodParam& in, const char* name, const std::string& value) {
    in.addArgument(CIMProperty(name, CIMValue<std::string>(value), false, CIM_STRING, false));
    return in;
}

CIMMethodParam& withTexts(CIMMethodParam& in, const char* name, const std::vector<std::string>& values) {
    in.addArgument(CIMProperty(name, CIMValue<std::string>(values, false, false), false, CIM_STRING_ARRAY, false));
    return in;
}

CIMMethodParam& withNumber(CIMMethodParam& in, const char* name, unsigned int value) {
    in.addArgument(CIMProperty(name, CIMValue<unsigned int>(value), false, CIM_UINT32, false));
    return in;
}

CIMMethodParam& withFlag(CIMMethodParam& in, const char* name, bool value) {
    in.addArgument(CIMProperty(name, CIMValue<bool>(value), false, CIM_BOOLEAN, false));
    return in;
}

CIMMethodParam& withRefs(CIMMethodParam& in, const char* name, const std::vector<CIMObjectPath>& refs) {
    in.addArgument(CIMProperty(name, CIMValue<CIMObjectPath>(refs, false, false), false, CIM_REFERENCE_ARRAY, false));
    return in;
}

CIMObjectPath extentRef(const std::string& deviceId) {
    return CIMObjectPath("", "root/tkz/vex/smi_15", "VEX_PrimordialStorageExtent",
                         {routineKey("SystemName", "vexController_0"), routineKey("DeviceID", deviceId)});
}

CIMObjectPath poolRef(const std::string& instanceId) {
    return CIMObjectPath("", "root/tkz/vex/smi_15", "VEX_ConcreteStoragePool", {routineKey("InstanceID", instanceId)});
}

}  // namespace vex::cim::fwf::test
