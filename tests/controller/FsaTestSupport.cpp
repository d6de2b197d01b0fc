#include "FsaTestSupport.h"

#include <cstdlib>
#include <filesystem>
#include <fstream>

#include "framework/LogCapture.h"

namespace vex::cim::fwf::test {

std::string shippedSystem(const std::string& name) {
    return std::string(VEX_SOURCE_DIR) + "/storlib/systems/" + name;
}

void FsaTest::SetUp() {
    char pattern[] = "/tmp/fsa-test-XXXXXX";
    ASSERT_NE(mkdtemp(pattern), nullptr);
    dir = pattern;
    setenv("STORVEX_STATE_DIR", dir.c_str(), 1);
    setenv("STORVEX_TIME_SCALE", "0", 1);
    VexCacheManagerTestAccess::reset();
    fsa = VexFSAInterface::getInstance();
    ASSERT_NE(fsa, nullptr);
    fsa->terminate();
    fsa->setEventLink(FsaEventLink{});
    clearLog();
}

void FsaTest::TearDown() {
    fsa->terminate();
    m_simulator.reset();
    m_library.reset();
    std::filesystem::remove_all(dir);
}

std::string FsaTest::writeSystem(const std::string& json) {
    const std::string path = dir + "/system.json";
    std::ofstream(path) << json;
    return path;
}

unsigned int FsaTest::start(const std::string& systemFile) {
    setenv("STORVEX_SYSTEM", systemFile.c_str(), 1);
    VexCacheManagerTestAccess::reset();
    fsa->terminate();
    return fsa->initialize(true, true, false, false);
}

unsigned int FsaTest::refresh(bool partial) {
    VexCacheManager::initCacheUpdate();
    const unsigned int result = fsa->initialize(false, false, true, partial);
    VexCacheManager::exitCacheUpdate();
    return result;
}

std::vector<CIMInstance> FsaTest::served(_eVEXObjectType type, const std::string& prefix) const {
    std::vector<CIMInstance> out;
    VexCacheManager::getInstance(true)->getRepositoryObject(type, prefix, {}, false, out);
    return out;
}

std::vector<CIMInstance> FsaTest::names(_eVEXObjectType type, const std::string& prefix) const {
    std::vector<CIMInstance> out;
    VexCacheManager::getInstance(true)->getRepositoryObject(type, prefix, {}, true, out);
    return out;
}

unsigned int FsaTest::readCode(_eVEXObjectType type) const {
    std::vector<CIMInstance> out;
    return VexCacheManager::getInstance(true)->getRepositoryObject(type, "", {}, false, out);
}

void FsaTest::simulatorOn(const std::string& systemFile) {
    setenv("STORVEX_SYSTEM", systemFile.c_str(), 1);
    library();
}

storlib::StorLib& FsaTest::library() {
    if (!m_library) {
        m_library = std::make_unique<storlib::StorLib>();
        EXPECT_TRUE(m_library->open().ok());
        m_simulator = std::make_unique<storlib::Simulator>(*m_library);
    }
    return *m_library;
}

storlib::Simulator& FsaTest::simulator() {
    library();
    return *m_simulator;
}

const CIMProperty& property(const CIMInstance& instance, const std::string& name) {
    static const CIMProperty kMissing;
    const CIMProperty* found = instance.getPropertyByName(name);
    EXPECT_NE(found, nullptr) << "no property " << name;
    return found != nullptr ? *found : kMissing;
}

std::string text(const CIMInstance& instance, const std::string& name) {
    const CIMValue<std::string> value = property(instance, name).getStringValue();
    return value.isEmpty() ? std::string("<none>") : value.getValues()[0];
}

const CIMInstance& withValue(const std::vector<CIMInstance>& list, const std::string& name,
                             const std::string& value) {
    for (const CIMInstance& instance : list) {
        const CIMProperty* found = instance.getPropertyByName(name);
        if (found != nullptr && !found->getStringValue().isEmpty() && found->getStringValue().getValues()[0] == value) {
            return instance;
        }
    }
    ADD_FAILURE() << "no instance with " << name << " = " << value;
    static const CIMInstance kNone;
    return kNone;
}

std::vector<std::string> propertyNames(const CIMInstance& instance) {
    std::vector<std::string> names;
    for (const CIMProperty& p : instance.getPropertyList()) {
        names.push_back(p.getName());
    }
    return names;
}

}  // namespace vex::cim::fwf::test
