// CIMProperty: a named, typed CIM value with a key flag and a view-key flag.
//
// A property has one value slot per element type (see CIMValue.h). Only the
// slot chosen by the type tag is meaningful; the getters never look at the
// tag, so the getter of any other slot returns an empty value. Callers detect a
// missing value by an empty element sequence and read a scalar as element 0.
//
// Plain value type: copies are deep (a reference value copies the whole
// object path). Storage is compact: see PropertySlots.h.
#ifndef VEX_FRAMEWORK_CIMPROPERTY_H
#define VEX_FRAMEWORK_CIMPROPERTY_H

#include <string>
#include <type_traits>

#include "framework/CIMValue.h"
#include "framework/PrimitiveDataType.h"
#include "framework/PropertySlots.h"

namespace vex::cim::fwf {

class CIMObjectPath;
class CIMInstance;

class CIMProperty {
public:
    // Empty name, type 0 (boolean), both flags clear, every slot empty.
    CIMProperty();

    // Stores the name, the elements of value in the slot of T together with
    // the value's second flag, the type tag and both flags. The tag is not
    // checked against T: an array value is given an array tag by the caller.
    template <typename T, typename = std::enable_if_t<detail::kIsSlotType<T>>>
    CIMProperty(std::string name, CIMValue<T> value, bool isKey, Primitive_DataType type,
                bool isViewKey);

    CIMProperty(const CIMProperty& other);
    // A copy of other under another name.
    CIMProperty(const CIMProperty& other, std::string name);
    CIMProperty(CIMProperty&& other) noexcept;
    CIMProperty& operator=(const CIMProperty& other);
    CIMProperty& operator=(CIMProperty&& other) noexcept;
    ~CIMProperty();

    const std::string& getName() const { return m_name; }
    void setName(std::string name) { m_name = std::move(name); }
    Primitive_DataType getType() const { return m_type; }
    void setType(Primitive_DataType type) { m_type = type; }

    // Key of its class: goes into the object path.
    bool isKey() const { return m_isKey; }
    void setKey(bool isKey) { m_isKey = isKey; }
    // Key of a view class stored under a prefix in another class's instance.
    bool isViewKey() const { return m_isViewKey; }
    void setViewKey(bool isViewKey) { m_isViewKey = isViewKey; }

    // A copy of the slot of T (elements and flags); empty when never filled.
    template <typename T, typename = std::enable_if_t<detail::kIsSlotType<T>>>
    CIMValue<T> getValueAs() const;

    // The elements of the slot of T read in place: their number (0 when the
    // slot was never filled), and element i for i below that number.
    template <typename T, typename = std::enable_if_t<detail::kIsSlotType<T>>>
    std::size_t elementCount() const { return detail::elementCount<T>(slotOf<T>()); }
    template <typename T, typename = std::enable_if_t<detail::kIsSlotType<T>>>
    decltype(auto) elementAt(std::size_t i) const { return detail::elementAt<T>(slotOf<T>()->data(), i); }

    CIMValue<bool> getBoolValue() const;
    CIMValue<signed char> getSint8Value() const;
    CIMValue<unsigned char> getUint8Value() const;
    CIMValue<short> getSint16Value() const;
    CIMValue<unsigned short> getUint16Value() const;
    CIMValue<int> getSint32Value() const;
    CIMValue<unsigned int> getUint32Value() const;
    CIMValue<long long> getSint64Value() const;
    CIMValue<unsigned long long> getUint64Value() const;
    CIMValue<float> getReal32Value() const;
    CIMValue<double> getReal64Value() const;
    CIMValue<std::string> getStringValue() const;  // strings and datetimes
    CIMValue<CIMObjectPath> getObjectPathValue() const;
    CIMValue<CIMInstance> getInstanceValue() const;

    // Copies the element sequence of the slot selected by type from source;
    // the flags of this property's slot stay as they are. An unknown tag
    // (char16 or past the table) is logged and leaves the property unchanged.
    void setPropValue(Primitive_DataType type, const CIMProperty& source);

    // Same name, same type and equal elements in the slot of this type.
    bool equals(const CIMProperty& other) const;

    // Same type and equal elements in the slot of this type, names ignored:
    // a view-class key ("Name") is matched against the key stored under the
    // view's prefix in the viewed class ("CSName").
    bool subclassEqualsViewclass(const CIMProperty& other) const;

private:
    template <typename T>
    const detail::Slot* slotOf() const { return m_slots.find<T>(); }

    bool sameValueAs(const CIMProperty& other) const;

    std::string m_name;
    Primitive_DataType m_type = CIM_BOOLEAN;
    bool m_isKey = false;
    bool m_isViewKey = false;
    detail::SlotSet m_slots;
};

}  // namespace vex::cim::fwf

#endif
