// The provider on a simulated system, read as a storage client reads it.
#ifndef VEX_TESTS_STORAGE_MODEL_STORAGEMODELFIXTURE_H
#define VEX_TESTS_STORAGE_MODEL_STORAGEMODELFIXTURE_H

#include <cstdint>
#include <string>
#include <vector>

#include "datapath/ProviderFixture.h"

namespace vex::storagemodel {

using cmpihost::Instance;
using cmpihost::ObjectPath;
using cmpihost::Response;

class StorageModelTest : public datapath::ProviderTest {
protected:
    // A property's unsigned value, or its string value; 0 / "" when absent.
    static std::uint64_t number(const Instance& instance, const std::string& name);
    static std::string text(const Instance& instance, const std::string& name);
    static std::string text(const ObjectPath& path, const std::string& key);
    // The reference property `role` of an association instance.
    static ObjectPath end(const Instance& association, const std::string& role);

    std::vector<ObjectPath> associatorNames(const ObjectPath& from, const std::string& assocClass,
                                            const std::string& role = "");
};

}  // namespace vex::storagemodel

#endif
