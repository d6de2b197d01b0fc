#include "framework/PropertySlots.h"

#include "framework/CIMInstance.h"
#include "framework/CIMObjectPath.h"

namespace vex::cim::fwf::detail {

SlotSet::SlotSet() = default;

SlotSet::SlotSet(const SlotSet& other)
    : m_first(other.m_first),
      m_more(other.m_more ? std::make_unique<std::vector<Slot>>(*other.m_more) : nullptr) {}

SlotSet::SlotSet(SlotSet&& other) noexcept = default;

SlotSet& SlotSet::operator=(const SlotSet& other) {
    if (this != &other) {
        SlotSet copy(other);
        *this = std::move(copy);
    }
    return *this;
}

SlotSet& SlotSet::operator=(SlotSet&& other) noexcept = default;

SlotSet::~SlotSet() = default;

Slot& SlotSet::freshSlot() {
    if (std::holds_alternative<std::monostate>(m_first.data())) {
        return m_first;
    }
    if (!m_more) {
        m_more = std::make_unique<std::vector<Slot>>();
    }
    m_more->emplace_back();
    return m_more->back();
}

bool elementEquals(const CIMObjectPath& a, const CIMObjectPath& b) {
    return a == b;
}

bool elementEquals(const CIMInstance& a, const CIMInstance& b) {
    // Rarely used (embedded instances are method output), so plain copies do.
    if (!(a.getPath() == b.getPath()) || a.getPropertyCount() != b.getPropertyCount()) {
        return false;
    }
    for (unsigned int i = 0; i < a.getPropertyCount(); ++i) {
        if (!a.getProperty(i).equals(b.getProperty(i))) {
            return false;
        }
    }
    return true;
}

}  // namespace vex::cim::fwf::detail
