#include "DeviceModelFixture.h"

namespace vex::devicemodel {

std::vector<ObjectPath> DeviceModelTest::names(const std::string& className) {
    cmpihost::Response r = cimom().enumerateInstanceNames({kImplNs, className});
    EXPECT_TRUE(r.ok()) << className << ": " << r.status.toString();
    return r.paths;
}

std::vector<ObjectPath> DeviceModelTest::linked(const ObjectPath& source, const std::string& assocClass) {
    cmpihost::Response r = cimom().associatorNames(source, assocClass, {}, {}, {});
    EXPECT_TRUE(r.ok()) << assocClass << " from " << source.toString() << ": " << r.status.toString();
    return r.paths;
}

Instance DeviceModelTest::find(const std::string& className, const std::string& name, const std::string& value) {
    for (const Instance& instance : enumerate(className)) {
        if (text(instance.properties, name) == value) {
            return instance;
        }
    }
    ADD_FAILURE() << "no " << className << " with " << name << " " << value;
    return Instance();
}

std::string text(const cmpihost::NamedValues& values, const std::string& name) {
    const cmpihost::Value* value = cmpihost::findNamed(values, name);
    return value != nullptr && value->type() == CMPI_string ? value->asString() : std::string();
}

long long number(const Instance& instance, const std::string& name) {
    const cmpihost::Value* value = instance.property(name);
    if (value == nullptr || value->isNull()) {
        return -1;
    }
    if (value->isArray()) {
        return value->elements().empty() ? -1 : static_cast<long long>(value->elements().front().asUnsigned());
    }
    return static_cast<long long>(value->asUnsigned());
}

}  // namespace vex::devicemodel
