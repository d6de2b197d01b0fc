#include "framework/CIMProperty.h"

#include "framework/CIMInstance.h"
#include "framework/CIMObjectPath.h"
#include "platform/Tkz.h"

namespace vex::cim::fwf {

namespace {

// Copies the T elements of one slot set into another; the target keeps its
// flags. A source without that slot counts as an empty sequence.
template <typename T>
void copyElements(detail::SlotSet& to, const detail::SlotSet& from) {
    const detail::Slot* source = from.find<T>();
    if (source) {
        to.obtain<T>().data() = source->data();
    } else if (to.find<T>()) {
        detail::storeElements<T>(to.obtain<T>().data(), std::vector<T>());
    }
}

}  // namespace

CIMProperty::CIMProperty() = default;

template <typename T, typename>
CIMProperty::CIMProperty(std::string name, CIMValue<T> value, bool isKey, Primitive_DataType type,
                         bool isViewKey)
    : m_name(std::move(name)), m_type(type), m_isKey(isKey), m_isViewKey(isViewKey) {
    detail::Slot& slot = m_slots.obtain<T>();
    detail::storeElements<T>(slot.data(), std::move(value.getValues()));
    slot.secondFlag = value.getSecondFlag();
}

CIMProperty::CIMProperty(const CIMProperty& other) = default;
CIMProperty::CIMProperty(const CIMProperty& other, std::string name)
    : m_name(std::move(name)), m_type(other.m_type), m_isKey(other.m_isKey),
      m_isViewKey(other.m_isViewKey), m_slots(other.m_slots) {}
CIMProperty::CIMProperty(CIMProperty&& other) noexcept = default;
CIMProperty& CIMProperty::operator=(const CIMProperty& other) = default;
CIMProperty& CIMProperty::operator=(CIMProperty&& other) noexcept = default;
CIMProperty::~CIMProperty() = default;

template <typename T, typename>
CIMValue<T> CIMProperty::getValueAs() const {
    const detail::Slot* slot = slotOf<T>();
    if (!slot) {
        return CIMValue<T>();
    }
    return CIMValue<T>(detail::elementsOf<T>(slot->data()), slot->firstFlag, slot->secondFlag);
}

CIMValue<bool> CIMProperty::getBoolValue() const { return getValueAs<bool>(); }
CIMValue<signed char> CIMProperty::getSint8Value() const { return getValueAs<signed char>(); }
CIMValue<unsigned char> CIMProperty::getUint8Value() const { return getValueAs<unsigned char>(); }
CIMValue<short> CIMProperty::getSint16Value() const { return getValueAs<short>(); }
CIMValue<unsigned short> CIMProperty::getUint16Value() const {
    return getValueAs<unsigned short>();
}
CIMValue<int> CIMProperty::getSint32Value() const { return getValueAs<int>(); }
CIMValue<unsigned int> CIMProperty::getUint32Value() const { return getValueAs<unsigned int>(); }
CIMValue<long long> CIMProperty::getSint64Value() const { return getValueAs<long long>(); }
CIMValue<unsigned long long> CIMProperty::getUint64Value() const {
    return getValueAs<unsigned long long>();
}
CIMValue<float> CIMProperty::getReal32Value() const { return getValueAs<float>(); }
CIMValue<double> CIMProperty::getReal64Value() const { return getValueAs<double>(); }
CIMValue<std::string> CIMProperty::getStringValue() const { return getValueAs<std::string>(); }
CIMValue<CIMObjectPath> CIMProperty::getObjectPathValue() const {
    return getValueAs<CIMObjectPath>();
}
CIMValue<CIMInstance> CIMProperty::getInstanceValue() const { return getValueAs<CIMInstance>(); }

void CIMProperty::setPropValue(Primitive_DataType type, const CIMProperty& source) {
    const bool known = detail::withElementType(type, [&](auto* tag) {
        using T = std::remove_pointer_t<decltype(tag)>;
        copyElements<T>(m_slots, source.m_slots);
    });
    if (!known) {
        TkzLogMsg(TKZ_LOG_ERROR, "%s :: %s.", "setPropValue", " :: Operation Failed");
    }
}

bool CIMProperty::sameValueAs(const CIMProperty& other) const {
    bool same = true;  // a tag without a slot has nothing to compare
    detail::withElementType(m_type, [&](auto* tag) {
        using T = std::remove_pointer_t<decltype(tag)>;
        same = detail::sameElements<T>(slotOf<T>(), other.slotOf<T>());
    });
    return same;
}

bool CIMProperty::equals(const CIMProperty& other) const {
    return m_name == other.m_name && m_type == other.m_type && sameValueAs(other);
}

bool CIMProperty::subclassEqualsViewclass(const CIMProperty& other) const {
    return m_type == other.m_type && sameValueAs(other);
}

#define VEX_PROPERTY_SLOT_TYPE(T)                                                            \
    template CIMProperty::CIMProperty(std::string, CIMValue<T>, bool, Primitive_DataType, bool); \
    template CIMValue<T> CIMProperty::getValueAs<T>() const;

VEX_PROPERTY_SLOT_TYPE(bool)
VEX_PROPERTY_SLOT_TYPE(signed char)
VEX_PROPERTY_SLOT_TYPE(unsigned char)
VEX_PROPERTY_SLOT_TYPE(short)
VEX_PROPERTY_SLOT_TYPE(unsigned short)
VEX_PROPERTY_SLOT_TYPE(int)
VEX_PROPERTY_SLOT_TYPE(unsigned int)
VEX_PROPERTY_SLOT_TYPE(long long)
VEX_PROPERTY_SLOT_TYPE(unsigned long long)
VEX_PROPERTY_SLOT_TYPE(float)
VEX_PROPERTY_SLOT_TYPE(double)
VEX_PROPERTY_SLOT_TYPE(std::string)
VEX_PROPERTY_SLOT_TYPE(CIMObjectPath)
VEX_PROPERTY_SLOT_TYPE(CIMInstance)

#undef VEX_PROPERTY_SLOT_TYPE

}  // namespace vex::cim::fwf
