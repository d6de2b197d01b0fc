// What the controller interface tests share: a simulated system in a private
// state directory (clock stopped), the interface opened on it and the cache
// it built, read the way the cached plug-ins read it.
#ifndef VEX_TESTS_CONTROLLER_FSATESTSUPPORT_H
#define VEX_TESTS_CONTROLLER_FSATESTSUPPORT_H

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

#include <storlib/Simulator.h>
#include <storlib/StorLib.h>

#include "CacheTestSupport.h"
#include "controller/VexCacheManager.h"
#include "controller/VexFSAInterface.h"

namespace vex::cim::fwf::test {

// A system description shipped with the simulator ("demo.json", "none.json").
std::string shippedSystem(const std::string& name);

class FsaTest : public ::testing::Test {
public:
    // What readers are served: the whole entries (prefix "") or one view.
    std::vector<CIMInstance> served(_eVEXObjectType type, const std::string& prefix = "") const;
    // The names enumeration of a class: keys only.
    std::vector<CIMInstance> names(_eVEXObjectType type, const std::string& prefix) const;
    // The result code of a read of a whole type.
    unsigned int readCode(_eVEXObjectType type) const;

protected:
    void SetUp() override;
    void TearDown() override;

    // Writes a description into the test directory; returns its path.
    std::string writeSystem(const std::string& json);
    // A provider start on the description: the cache as at load, a freshly
    // taken library handle and initialize (true, true, false, false).
    unsigned int start(const std::string& systemFile);
    // A cache-update cycle as the refresh thread runs it.
    unsigned int refresh(bool partial);


    // Opens the second library handle on a description before the interface starts.
    void simulatorOn(const std::string& systemFile);
    // A second library handle on the same state, to read back and to inject faults.
    storlib::StorLib& library();
    storlib::Simulator& simulator();

    VexFSAInterface* fsa = nullptr;
    std::string dir;

private:
    std::unique_ptr<storlib::StorLib> m_library;
    std::unique_ptr<storlib::Simulator> m_simulator;
};

// The named property of an instance; fails the test when it is missing.
const CIMProperty& property(const CIMInstance& instance, const std::string& name);
std::string text(const CIMInstance& instance, const std::string& name);
// The instance whose string property `name` is `value`; fails when there is none.
const CIMInstance& withValue(const std::vector<CIMInstance>& list, const std::string& name,
                             const std::string& value);
// The names of all properties of an instance.
std::vector<std::string> propertyNames(const CIMInstance& instance);

}  // namespace vex::cim::fwf::test

#endif
