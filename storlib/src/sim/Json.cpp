// Scalar fields of description and state files.
#include "sim/Json.h"

#include <limits>

namespace storlib::sim {
namespace {

template <class T> T readInteger(const json& j, const std::string& path) {
    if (!j.is_number_integer())
        throw FieldError(path, "expected an integer, got " + std::string(j.type_name()));
    if (j.is_number_unsigned()) {
        auto u = j.get<uint64_t>();
        if (u > static_cast<uint64_t>(std::numeric_limits<T>::max()))
            throw FieldError(path, "value " + j.dump() + " is out of range");
        return static_cast<T>(u);
    }
    auto s = j.get<int64_t>();
    if (s < static_cast<int64_t>(std::numeric_limits<T>::min()) ||
        (s > 0 && static_cast<uint64_t>(s) > static_cast<uint64_t>(std::numeric_limits<T>::max())))
        throw FieldError(path, "value " + j.dump() + " is out of range");
    return static_cast<T>(s);
}

}  // namespace

void readValue(const json& j, bool& v, const std::string& path) {
    if (!j.is_boolean()) throw FieldError(path, "expected true or false, got " + std::string(j.type_name()));
    v = j.get<bool>();
}
void readValue(const json& j, uint32_t& v, const std::string& path) { v = readInteger<uint32_t>(j, path); }
void readValue(const json& j, int32_t& v, const std::string& path) { v = readInteger<int32_t>(j, path); }
void readValue(const json& j, uint64_t& v, const std::string& path) { v = readInteger<uint64_t>(j, path); }
void readValue(const json& j, int64_t& v, const std::string& path) { v = readInteger<int64_t>(j, path); }
void readValue(const json& j, double& v, const std::string& path) {
    if (!j.is_number()) throw FieldError(path, "expected a number, got " + std::string(j.type_name()));
    v = j.get<double>();
}
void readValue(const json& j, std::string& v, const std::string& path) {
    if (!j.is_string()) throw FieldError(path, "expected a string, got " + std::string(j.type_name()));
    v = j.get<std::string>();
}

json writeValue(bool v) { return v; }
json writeValue(uint32_t v) { return v; }
json writeValue(int32_t v) { return v; }
json writeValue(uint64_t v) { return v; }
json writeValue(int64_t v) { return v; }
json writeValue(double v) { return v; }
json writeValue(const std::string& v) { return v; }

}  // namespace storlib::sim
