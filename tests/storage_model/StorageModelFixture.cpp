#include "storage_model/StorageModelFixture.h"

namespace vex::storagemodel {

std::uint64_t StorageModelTest::number(const Instance& instance, const std::string& name) {
    const cmpihost::Value* value = instance.property(name);
    return value == nullptr || value->isNull() ? 0 : value->asUnsigned();
}

std::string StorageModelTest::text(const Instance& instance, const std::string& name) {
    const cmpihost::Value* value = instance.property(name);
    return value == nullptr || value->isNull() ? std::string() : value->asString();
}

std::string StorageModelTest::text(const ObjectPath& path, const std::string& key) {
    const cmpihost::Value* value = path.key(key);
    return value == nullptr ? std::string() : value->asString();
}

ObjectPath StorageModelTest::end(const Instance& association, const std::string& role) {
    const cmpihost::Value* value = association.property(role);
    return value == nullptr ? ObjectPath() : value->asRef();
}

std::vector<ObjectPath> StorageModelTest::associatorNames(const ObjectPath& from, const std::string& assocClass,
                                                          const std::string& role) {
    const Response r = cimom().associatorNames(from, assocClass, std::nullopt,
                                               role.empty() ? cmpihost::OptString() : role, std::nullopt);
    EXPECT_TRUE(r.ok()) << assocClass << " from " << from.toString() << ": " << r.status.toString();
    return r.paths;
}

}  // namespace vex::storagemodel
