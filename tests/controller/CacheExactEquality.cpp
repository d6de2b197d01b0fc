#include "CacheExactEquality.h"

#include <cstring>
#include <type_traits>

namespace vex::cim::fwf::test {

namespace {

std::string differenceOf(const CIMObjectPath& expected, const CIMObjectPath& actual);
std::string differenceOf(const CIMProperty& expected, const CIMProperty& actual);

template <typename T>
bool sameElement(const T& a, const T& b) {
    if constexpr (std::is_floating_point_v<T>) {
        return std::memcmp(&a, &b, sizeof a) == 0;  // tells -0.0 from 0.0
    } else if constexpr (std::is_same_v<T, CIMObjectPath>) {
        return differenceOf(a, b).empty();
    } else if constexpr (std::is_same_v<T, CIMInstance>) {
        return test::differenceOf(a, b).empty();
    } else {
        return a == b;
    }
}

template <typename T>
std::string slotDifference(const CIMProperty& expected, const CIMProperty& actual, const char* slot) {
    const CIMValue<T> a = expected.getValueAs<T>();
    const CIMValue<T> b = actual.getValueAs<T>();
    bool same = a.getFirstFlag() == b.getFirstFlag() && a.getSecondFlag() == b.getSecondFlag() &&
                a.size() == b.size();
    for (std::size_t i = 0; same && i < a.size(); ++i) {
        same = sameElement<T>(a.getValues()[i], b.getValues()[i]);
    }
    return same ? "" : std::string(" slot ") + slot;
}

std::string differenceOf(const CIMProperty& expected, const CIMProperty& actual) {
    if (expected.getName() != actual.getName() || expected.getType() != actual.getType() ||
        expected.isKey() != actual.isKey() || expected.isViewKey() != actual.isViewKey()) {
        return "property " + expected.getName() + " vs " + actual.getName() + " (name, type or flags)";
    }
    std::string slots = slotDifference<bool>(expected, actual, "bool") +
                        slotDifference<signed char>(expected, actual, "sint8") +
                        slotDifference<unsigned char>(expected, actual, "uint8") +
                        slotDifference<short>(expected, actual, "sint16") +
                        slotDifference<unsigned short>(expected, actual, "uint16") +
                        slotDifference<int>(expected, actual, "sint32") +
                        slotDifference<unsigned int>(expected, actual, "uint32") +
                        slotDifference<long long>(expected, actual, "sint64") +
                        slotDifference<unsigned long long>(expected, actual, "uint64") +
                        slotDifference<float>(expected, actual, "real32") +
                        slotDifference<double>(expected, actual, "real64") +
                        slotDifference<std::string>(expected, actual, "string") +
                        slotDifference<CIMObjectPath>(expected, actual, "reference") +
                        slotDifference<CIMInstance>(expected, actual, "instance");
    return slots.empty() ? "" : "property " + expected.getName() + ":" + slots;
}

std::string listDifference(const std::vector<CIMProperty>& expected,
                           const std::vector<CIMProperty>& actual, const char* what) {
    if (expected.size() != actual.size()) {
        return std::string(what) + " count " + std::to_string(expected.size()) + " vs " +
               std::to_string(actual.size());
    }
    for (std::size_t i = 0; i < expected.size(); ++i) {
        const std::string difference = differenceOf(expected[i], actual[i]);
        if (!difference.empty()) {
            return std::string(what) + " " + std::to_string(i) + ": " + difference;
        }
    }
    return "";
}

std::string differenceOf(const CIMObjectPath& expected, const CIMObjectPath& actual) {
    if (expected.getHostName() != actual.getHostName() ||
        expected.getNameSpace() != actual.getNameSpace() ||
        expected.getClassName() != actual.getClassName()) {
        return "path address";
    }
    return listDifference(expected.getKeyBindings(), actual.getKeyBindings(), "path key");
}

}  // namespace

std::string differenceOf(const CIMInstance& expected, const CIMInstance& actual) {
    if (expected.getHostName() != actual.getHostName() ||
        expected.getNameSpace() != actual.getNameSpace() ||
        expected.getClassName() != actual.getClassName()) {
        return "address of " + expected.getClassName();
    }
    const std::string properties =
        listDifference(expected.getPropertyList(), actual.getPropertyList(), "property");
    return properties.empty()
               ? listDifference(expected.getKeyPropertyList(), actual.getKeyPropertyList(), "key")
               : properties;
}

std::string differenceOf(const std::vector<CIMInstance>& expected,
                         const std::vector<CIMInstance>& actual) {
    if (expected.size() != actual.size()) {
        return "instance count " + std::to_string(expected.size()) + " vs " +
               std::to_string(actual.size());
    }
    for (std::size_t i = 0; i < expected.size(); ++i) {
        const std::string difference = differenceOf(expected[i], actual[i]);
        if (!difference.empty()) {
            return "instance " + std::to_string(i) + ": " + difference;
        }
    }
    return "";
}

bool referenceView(const CIMInstance& stored, const std::string& prefix, bool keysOnly,
                   CIMInstance& view) {
    bool seen = false;
    for (CIMProperty property : stored.getPropertyList()) {
        if (property.getName().rfind(prefix, 0) != 0) {
            continue;
        }
        seen = true;
        if (keysOnly && !property.isViewKey()) {
            continue;
        }
        property.setName(property.getName().substr(prefix.size()));
        if (property.isViewKey()) {
            view.addCimKeyBinding(property);
        } else {
            view.addProperty(property);
        }
    }
    return seen;
}

}  // namespace vex::cim::fwf::test
