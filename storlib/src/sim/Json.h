// Reading and writing records as JSON, with the path of every field in
// error messages ("controllers[0].drives[3].sizeMB: expected ...").
#pragma once
#include "sim/Visit.h"

#include <storlib/Names.h>

#include <nlohmann/json.hpp>

#include <optional>
#include <set>
#include <stdexcept>
#include <string>
#include <type_traits>
#include <vector>
#include <deque>

namespace storlib::sim {

using nlohmann::json;

// A field of a description or state file that cannot be taken.
class FieldError : public std::runtime_error {
public:
    FieldError(const std::string& path, const std::string& what)
        : std::runtime_error(path + ": " + what) {}
};

void readValue(const json& j, bool& v, const std::string& path);
void readValue(const json& j, uint32_t& v, const std::string& path);
void readValue(const json& j, int32_t& v, const std::string& path);
void readValue(const json& j, uint64_t& v, const std::string& path);
void readValue(const json& j, int64_t& v, const std::string& path);
void readValue(const json& j, double& v, const std::string& path);
void readValue(const json& j, std::string& v, const std::string& path);

json writeValue(bool v);
json writeValue(uint32_t v);
json writeValue(int32_t v);
json writeValue(uint64_t v);
json writeValue(int64_t v);
json writeValue(double v);
json writeValue(const std::string& v);

template <class T> using IsEnum = std::enable_if_t<std::is_enum_v<T>, int>;
template <class T, class = void> struct HasVisit : std::false_type {};
struct NullVisitor { template <class V> void operator()(const char*, V&) const {} };
template <class T>
struct HasVisit<T, std::void_t<decltype(visitFields(std::declval<T&>(), std::declval<NullVisitor&>()))>>
    : std::true_type {};

template <class E, IsEnum<E> = 0> void readValue(const json& j, E& v, const std::string& path) {
    if (j.is_string()) {
        auto parsed = fromString<E>(j.get<std::string>());
        if (!parsed) throw FieldError(path, "unknown value \"" + j.get<std::string>() + "\"");
        v = *parsed;
        return;
    }
    if (!j.is_number_unsigned()) throw FieldError(path, "expected a name or a number");
    v = static_cast<E>(j.get<uint32_t>());
    if (std::string(toString(v)) == "?") throw FieldError(path, "unknown value " + j.dump());
}
template <class E, IsEnum<E> = 0> json writeValue(E v) { return toString(v); }

template <class T> void readValue(const json& j, std::vector<T>& v, const std::string& path);
template <class T> void readValue(const json& j, std::deque<T>& v, const std::string& path);
template <class T> void readValue(const json& j, std::optional<T>& v, const std::string& path);
template <class T, std::enable_if_t<HasVisit<T>::value, int> = 0>
void readValue(const json& j, T& v, const std::string& path);
template <class T> json writeValue(const std::vector<T>& v);
template <class T> json writeValue(const std::deque<T>& v);
template <class T> json writeValue(const std::optional<T>& v);
template <class T, std::enable_if_t<HasVisit<T>::value, int> = 0> json writeValue(const T& v);

template <class T> void readValue(const json& j, std::vector<T>& v, const std::string& path) {
    if (!j.is_array()) throw FieldError(path, "expected a list");
    v.assign(j.size(), T{});
    for (size_t i = 0; i < j.size(); ++i) readValue(j[i], v[i], path + "[" + std::to_string(i) + "]");
}
template <class T> void readValue(const json& j, std::deque<T>& v, const std::string& path) {
    std::vector<T> tmp;
    readValue(j, tmp, path);
    v.assign(tmp.begin(), tmp.end());
}
template <class T> void readValue(const json& j, std::optional<T>& v, const std::string& path) {
    if (j.is_null()) { v.reset(); return; }
    T tmp{};
    readValue(j, tmp, path);
    v = std::move(tmp);
}
template <class T, std::enable_if_t<HasVisit<T>::value, int>>
void readValue(const json& j, T& v, const std::string& path) {
    if (!j.is_object()) throw FieldError(path, "expected an object");
    std::set<std::string> known;
    visitFields(v, [&](const char* name, auto& field) {
        known.insert(name);
        auto it = j.find(name);
        if (it != j.end()) readValue(*it, field, path + "." + name);
    });
    for (auto it = j.begin(); it != j.end(); ++it)
        if (!known.count(it.key())) throw FieldError(path + "." + it.key(), "unknown field");
}

template <class T> json writeValue(const std::vector<T>& v) {
    json a = json::array();
    for (const auto& e : v) a.push_back(writeValue(e));
    return a;
}
template <class T> json writeValue(const std::deque<T>& v) {
    json a = json::array();
    for (const auto& e : v) a.push_back(writeValue(e));
    return a;
}
template <class T> json writeValue(const std::optional<T>& v) {
    return v ? writeValue(*v) : json(nullptr);
}
template <class T, std::enable_if_t<HasVisit<T>::value, int>> json writeValue(const T& v) {
    json o = json::object();
    visitFields(v, [&](const char* name, const auto& field) { o[name] = writeValue(field); });
    return o;
}

}  // namespace storlib::sim
