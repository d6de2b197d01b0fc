#include "CacheExactEquality.h"

#include <sstream>
#include <type_traits>

namespace vex::cim::fwf::test {

namespace {

void render(std::ostream& out, const std::vector<CIMProperty>& properties);

void renderElement(std::ostream& out, const CIMObjectPath& path) {
    out << "(" << path.getHostName() << "/" << path.getNameSpace() << ":" << path.getClassName();
    render(out, path.getKeyBindings());
    out << ")";
}

void renderElement(std::ostream& out, const CIMInstance& instance) { out << "(" << exactly(instance) << ")"; }

template <typename T>
void renderElement(std::ostream& out, const T& value) {
    if constexpr (std::is_floating_point_v<T>) {
        out << std::hexfloat << value << std::defaultfloat;  // -0.0 is not 0.0
    } else if constexpr (std::is_integral_v<T>) {
        out << static_cast<long long>(value);
    } else {
        out << '"' << value << '"';
    }
}

template <typename T>
void renderSlot(std::ostream& out, const CIMProperty& property, int slot) {
    const CIMValue<T> value = property.getValueAs<T>();
    if (value.isEmpty() && !value.getFirstFlag() && !value.getSecondFlag()) {
        return;
    }
    out << " slot" << slot << (value.getFirstFlag() ? "F" : "") << (value.getSecondFlag() ? "S" : "") << "[";
    for (const T& element : value.getValues()) {
        renderElement(out, element);
        out << ",";
    }
    out << "]";
}

void render(std::ostream& out, const std::vector<CIMProperty>& properties) {
    for (const CIMProperty& p : properties) {
        out << "\n  " << p.getName() << " type " << p.getType() << (p.isKey() ? " key" : "")
            << (p.isViewKey() ? " viewkey" : "");
        int slot = 0;
        renderSlot<bool>(out, p, slot++);
        renderSlot<signed char>(out, p, slot++);
        renderSlot<unsigned char>(out, p, slot++);
        renderSlot<short>(out, p, slot++);
        renderSlot<unsigned short>(out, p, slot++);
        renderSlot<int>(out, p, slot++);
        renderSlot<unsigned int>(out, p, slot++);
        renderSlot<long long>(out, p, slot++);
        renderSlot<unsigned long long>(out, p, slot++);
        renderSlot<float>(out, p, slot++);
        renderSlot<double>(out, p, slot++);
        renderSlot<std::string>(out, p, slot++);
        renderSlot<CIMObjectPath>(out, p, slot++);
        renderSlot<CIMInstance>(out, p, slot++);
    }
}

}  // namespace

std::string exactly(const CIMInstance& instance) {
    std::ostringstream out;
    out << instance.getHostName() << "/" << instance.getNameSpace() << ":" << instance.getClassName();
    render(out, instance.getPropertyList());
    out << "\n keys:";
    render(out, instance.getKeyPropertyList());
    return out.str();
}

std::string exactly(const std::vector<CIMInstance>& list) {
    std::string text;
    for (const CIMInstance& instance : list) {
        text += exactly(instance) + "\n";
    }
    return text;
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
