// The built provider on a shipped system, as a client walks the device
// model: instance names of a class, the objects an association links to
// one object, and a property or key of what comes back as text.
#ifndef VEX_TESTS_DEVICE_MODEL_DEVICEMODELFIXTURE_H
#define VEX_TESTS_DEVICE_MODEL_DEVICEMODELFIXTURE_H

#include <string>
#include <vector>

#include "ProviderFixture.h"

namespace vex::devicemodel {

using cmpihost::Instance;
using cmpihost::ObjectPath;
using datapath::kImplNs;

class DeviceModelTest : public datapath::ProviderTest {
protected:
    std::vector<ObjectPath> names(const std::string& className);
    // associatorNames from source through assocClass; fails the test on an error.
    std::vector<ObjectPath> linked(const ObjectPath& source, const std::string& assocClass);
    // The one instance of className whose key (or property) `name` is `value`.
    Instance find(const std::string& className, const std::string& name, const std::string& value);
};

// A string key or property; "" when absent or not a string.
std::string text(const cmpihost::NamedValues& values, const std::string& name);
// An unsigned number, or the first element of an unsigned array; -1 when absent.
long long number(const Instance& instance, const std::string& name);

}  // namespace vex::devicemodel

#endif
