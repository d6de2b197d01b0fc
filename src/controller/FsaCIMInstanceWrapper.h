// fsaCIMInstanceWrapper: the instance the property mapping fills, a
// CIMInstance with typed adds. A key-flagged property goes in as a key
// binding as well, so the stored instance names its keys in its path.
#ifndef VEX_CONTROLLER_FSACIMINSTANCEWRAPPER_H
#define VEX_CONTROLLER_FSACIMINSTANCEWRAPPER_H

#include <cstddef>
#include <string>
#include <vector>

#include "controller/PropertyTable.h"
#include "framework/CIMInstance.h"
#include "framework/CIMValue.h"
#include "framework/DateAndTime.h"

namespace vex::cim::fwf {

class fsaCIMInstanceWrapper;

namespace fsamap {

template <typename T>
struct CimTypeOf;
template <> struct CimTypeOf<bool> { static constexpr Primitive_DataType value = CIM_BOOLEAN; };
template <> struct CimTypeOf<unsigned char> { static constexpr Primitive_DataType value = CIM_UINT8; };
template <> struct CimTypeOf<short> { static constexpr Primitive_DataType value = CIM_SINT16; };
template <> struct CimTypeOf<unsigned short> { static constexpr Primitive_DataType value = CIM_UINT16; };
template <> struct CimTypeOf<unsigned int> { static constexpr Primitive_DataType value = CIM_UINT32; };
template <> struct CimTypeOf<unsigned long long> { static constexpr Primitive_DataType value = CIM_UINT64; };
template <> struct CimTypeOf<std::string> { static constexpr Primitive_DataType value = CIM_STRING; };
template <typename T>
struct CimTypeOf<std::vector<T>> {
    static constexpr Primitive_DataType value =
        static_cast<Primitive_DataType>(CimTypeOf<T>::value | 1u);
};

}  // namespace fsamap

class fsaCIMInstanceWrapper : public CIMInstance {
public:
    // Adds one property of the type of value: bool, unsigned char, short,
    // unsigned short, unsigned int, unsigned long long, string, a vector of
    // unsigned short, unsigned int, unsigned long long or string.
    template <typename T>
    void fsaAddProp(const std::string& name, const T& value, bool key = false,
                    bool viewKey = false) {
        add(CIMProperty(name, valueOf(value), key, fsamap::CimTypeOf<T>::value, viewKey));
    }
    void fsaAddProp(const std::string& name, const DateAndTime& value, bool key = false,
                    bool viewKey = false);
    // An embedded instance.
    void fsaAddProp(const std::string& name, const fsaCIMInstanceWrapper& value, bool key = false,
                    bool viewKey = false);

    // Appends one element (unsigned char, unsigned int or string) to the
    // array property of that name, which is created when absent.
    template <typename T>
    void fsaPushBack(const std::string& name, const T& value) {
        CIMProperty* existing = getPropertyByName(name);
        if (existing == nullptr) {
            fsaAddProp(name, std::vector<T>(1, value));
            return;
        }
        CIMValue<T> values = existing->getValueAs<T>();
        values.addValue(value);
        *existing = CIMProperty(name, std::move(values), existing->isKey(), existing->getType(),
                                existing->isViewKey());
    }

    // One property per row whose getter reads a value.
    template <typename Context, std::size_t N>
    void addRows(const fsamap::PropertyRow<Context> (&rows)[N], const Context& context) {
        for (const auto& row : rows) {
            CIMProperty property;
            if (fsamap::makeProperty(row.name, row.type, row.flags, row.get(context), property)) {
                add(std::move(property));
            }
        }
    }

    // Parallel arrays: one array property per row, one element per context.
    template <typename Context, std::size_t N>
    void addColumns(const fsamap::PropertyRow<Context> (&rows)[N],
                    const std::vector<Context>& elements) {
        for (const auto& row : rows) {
            std::vector<fsamap::RawValue> column;
            column.reserve(elements.size());
            for (const Context& element : elements) {
                column.push_back(row.get(element));
            }
            add(fsamap::makeColumn(row.name, row.type, row.flags, column));
        }
    }

    // Adds a finished property (as a key binding too when it is key-flagged).
    void add(CIMProperty property);

private:
    template <typename T>
    static CIMValue<T> valueOf(const T& value) {
        return CIMValue<T>(value);
    }
    template <typename T>
    static CIMValue<T> valueOf(const std::vector<T>& values) {
        return CIMValue<T>(values, false, false);
    }
};

}  // namespace vex::cim::fwf

#endif
