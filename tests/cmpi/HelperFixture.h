// In-process tests of the CMPI conversions: a cmpihost broker (no provider
// loaded) makes and reads the CMPI objects.
#ifndef VEX_TESTS_CMPI_HELPERFIXTURE_H
#define VEX_TESTS_CMPI_HELPERFIXTURE_H

#include <gtest/gtest.h>

#include <cmpihost/Host.h>

#include <optional>
#include <string>
#include <vector>

#include "LogCapture.h"
#include "framework/CIMException.h"
#include "framework/CIMInstance.h"
#include "framework/CIMObjectPath.h"
#include "framework/CIMProperty.h"

namespace vex::cmpitest {

namespace fwf = vex::cim::fwf;

class HelperTest : public ::testing::Test {
protected:
    explicit HelperTest(cmpihost::HostConfig config = cmpihost::HostConfig::pegasus214())
        : host(std::move(config)) {}

    void SetUp() override { clearLog(); }

    // Runs body(broker) inside a request of the host.
    template <typename Body>
    void inRequest(Body body) {
        host.runInRequest([&](const CMPIBroker* broker, const CMPIContext*) { body(broker); });
    }

    cmpihost::Host host;
};

// The CIMException `call` throws, if any.
template <typename Call>
std::optional<fwf::CIMException> thrownBy(Call call) {
    try {
        call();
    } catch (const fwf::CIMException& e) {
        return e;
    }
    return std::nullopt;
}

// Framework properties made short.
template <typename T>
fwf::CIMProperty prop(const std::string& name, T value, fwf::Primitive_DataType type,
                      bool key = false) {
    return fwf::CIMProperty(name, fwf::CIMValue<T>(value), key, type, false);
}

template <typename T>
fwf::CIMProperty arrayProp(const std::string& name, std::vector<T> values,
                           fwf::Primitive_DataType type) {
    return fwf::CIMProperty(name, fwf::CIMValue<T>(std::move(values), false, false), false, type,
                            false);
}

inline fwf::CIMProperty text(const std::string& name, const std::string& value, bool key = false) {
    return prop<std::string>(name, value, fwf::CIM_STRING, key);
}

// The local host name as the conversions read it.
std::string localHostName();

}  // namespace vex::cmpitest

#endif
