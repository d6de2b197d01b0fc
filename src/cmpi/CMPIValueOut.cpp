#include "cmpi/CMPIValueOut.h"

#include <string>
#include <type_traits>
#include <vector>

#include "cmpi/CMPIHelper.h"
#include "cmpi/CmpiCalls.h"
#include "framework/CIMException.h"
#include "platform/Tkz.h"

namespace vex::cim::adap::cmpi {

using fwf::CIMProperty;
using fwf::Primitive_DataType;

namespace {

[[noreturn]] void failed() { throw fwf::CIMException(fwf::CIM_ERR_FAILED, " :: Operation Failed"); }

[[noreturn]] void mismatch(const char* function, const CIMProperty& property) {
    TkzLogMsg(TKZ_LOG_ERROR, "%s:Exception for the attribure %s due to Type MisMatch ->%d.",
              function, property.getName().c_str(), static_cast<int>(property.getType()));
    failed();
}

// One encoded element: the CMPI value and its (element) type.
struct Encoded {
    CMPIValue value;
    CMPIType type;
};

Encoded encoded(CMPIType type) {
    Encoded e{};
    e.type = type;
    return e;
}

// ---- element encoders ----------------------------------------------------------

Encoded encode(bool v, const CMPIBroker*) {
    Encoded e = encoded(CMPI_boolean);
    e.value.boolean = v ? 1 : 0;
    return e;
}
#define VEX_CMPI_ENCODE_NUMBER(T, member, cmpiType) \
    Encoded encode(T v, const CMPIBroker*) {         \
        Encoded e = encoded(cmpiType);               \
        e.value.member = v;                          \
        return e;                                    \
    }
VEX_CMPI_ENCODE_NUMBER(unsigned char, uint8, CMPI_uint8)
VEX_CMPI_ENCODE_NUMBER(unsigned short, uint16, CMPI_uint16)
VEX_CMPI_ENCODE_NUMBER(unsigned int, uint32, CMPI_uint32)
VEX_CMPI_ENCODE_NUMBER(unsigned long long, uint64, CMPI_uint64)
VEX_CMPI_ENCODE_NUMBER(signed char, sint8, CMPI_sint8)
VEX_CMPI_ENCODE_NUMBER(short, sint16, CMPI_sint16)
VEX_CMPI_ENCODE_NUMBER(int, sint32, CMPI_sint32)
VEX_CMPI_ENCODE_NUMBER(long long, sint64, CMPI_sint64)
#undef VEX_CMPI_ENCODE_NUMBER

Encoded encode(const std::string& v, const CMPIBroker* broker) {
    Encoded e = encoded(CMPI_string);
    e.value.string = calls::newString(broker, v.c_str());
    if (e.value.string == nullptr) {
        failed();
    }
    return e;
}

Encoded encode(const fwf::CIMObjectPath& v, const CMPIBroker* broker) {
    Encoded e = encoded(CMPI_ref);
    e.value.ref = CMPIHelper::FrameworkObjectPathToCMPIObjectPath(v, broker);
    if (e.value.ref == nullptr) {
        failed();
    }
    return e;
}

Encoded encode(const fwf::CIMInstance& v, const CMPIBroker* broker) {
    Encoded e = encoded(CMPI_instance);
    e.value.inst = CMPIHelper::FrameworkInstanceToCMPIInstance(v, broker, nullptr);
    if (e.value.inst == nullptr) {
        failed();
    }
    return e;
}

// A datetime as CMPI_dateTime, or null when the broker cannot make one.
CMPIDateTime* toDateTime(const std::string& text, const CMPIBroker* broker) {
    return calls::newDateTimeFromChars(broker, text.c_str());
}

// ---- scalars and arrays -----------------------------------------------------------

void send(const ValueSink& sink, const CMPIValue* value, CMPIType type) {
    if (!sink(value, type)) {
        failed();
    }
}

void sendArray(const std::vector<Encoded>& elements, CMPIType elementType,
               const CMPIBroker* broker, const ValueSink& sink) {
    CMPIArray* array = calls::newArray(broker, static_cast<CMPICount>(elements.size()), elementType);
    if (array == nullptr || array->ft == nullptr || array->ft->setElementAt == nullptr) {
        failed();
    }
    for (CMPICount i = 0; i < elements.size(); ++i) {
        if (!calls::ok(array->ft->setElementAt(array, i, &elements[i].value, elementType))) {
            failed();
        }
    }
    CMPIValue value{};
    value.array = array;
    send(sink, &value, static_cast<CMPIType>(elementType | CMPI_ARRAY));
}

// A scalar string goes as CMPI_chars: the broker copies the characters, and
// no CMPI string object is made for them. For CMPI_chars the value pointer
// is the pointer to the characters themselves.
bool sendText(const std::string& text, const ValueSink& sink) {
    return sink(reinterpret_cast<const CMPIValue*>(text.c_str()), CMPI_chars);
}

template <typename T>
void writeAs(const CIMProperty& property, const CMPIBroker* broker, const char* function,
             const ValueSink& sink, CMPIType elementType, Text text = Text::Objects) {
    const std::size_t count = property.elementCount<T>();
    if (!fwf::isArrayType(property.getType())) {
        if (count == 0) {
            mismatch(function, property);
        }
        if constexpr (std::is_same_v<T, std::string>) {
            if (text == Text::Chars) {
                if (!sendText(property.elementAt<T>(0), sink)) {
                    failed();
                }
                return;
            }
        }
        Encoded e = encode(property.elementAt<T>(0), broker);
        send(sink, &e.value, e.type);
        return;
    }
    std::vector<Encoded> elements;
    elements.reserve(count);
    for (std::size_t i = 0; i < count; ++i) {
        elements.push_back(encode(property.elementAt<T>(i), broker));
    }
    sendArray(elements, elementType, broker, sink);
}

void writeDateTime(const CIMProperty& property, const CMPIBroker* broker, const char* function,
                   const ValueSink& sink, Text text) {
    const std::vector<std::string> values = property.getStringValue().getValues();
    bool array = fwf::isArrayType(property.getType());
    if (!array && values.empty()) {
        mismatch(function, property);
    }
    std::vector<Encoded> elements;
    for (const std::string& value : values) {
        Encoded e = encoded(CMPI_dateTime);
        e.value.dateTime = toDateTime(value, broker);
        if (e.value.dateTime == nullptr) {
            // Not a datetime the broker accepts: send the text as it is.
            writeAs<std::string>(property, broker, function, sink, CMPI_string, text);
            return;
        }
        elements.push_back(e);
    }
    if (array) {
        sendArray(elements, CMPI_dateTime, broker, sink);
    } else {
        send(sink, &elements.front().value, CMPI_dateTime);
    }
}

Primitive_DataType scalarOf(Primitive_DataType type) {
    return static_cast<Primitive_DataType>(type & ~1u);
}

}  // namespace

bool isWritablePropertyType(Primitive_DataType type) {
    switch (scalarOf(type)) {
        case fwf::CIM_BOOLEAN:
        case fwf::CIM_DATETIME:
        case fwf::CIM_SINT16:
        case fwf::CIM_SINT32:
        case fwf::CIM_SINT64:
        case fwf::CIM_SINT8:
        case fwf::CIM_STRING:
        case fwf::CIM_UINT16:
        case fwf::CIM_UINT32:
        case fwf::CIM_UINT64:
        case fwf::CIM_UINT8:
        case fwf::CIM_REFERENCE: return true;
        default: return false;
    }
}

bool isWritableArgumentType(Primitive_DataType type) {
    switch (type) {
        case fwf::CIM_UINT32:
        case fwf::CIM_UINT64:
        case fwf::CIM_STRING:
        case fwf::CIM_REFERENCE:
        case fwf::CIM_INSTANCE:
        case fwf::CIM_UINT32_ARRAY:
        case fwf::CIM_STRING_ARRAY:
        case fwf::CIM_REFERENCE_ARRAY:
        case fwf::CIM_INSTANCE_ARRAY: return true;
        default: return false;
    }
}

void writeValue(const CIMProperty& p, const CMPIBroker* b, const char* f, const ValueSink& s, Text t) {
    switch (scalarOf(p.getType())) {
        case fwf::CIM_BOOLEAN: return writeAs<bool>(p, b, f, s, CMPI_boolean);
        case fwf::CIM_UINT8: return writeAs<unsigned char>(p, b, f, s, CMPI_uint8);
        case fwf::CIM_UINT16: return writeAs<unsigned short>(p, b, f, s, CMPI_uint16);
        case fwf::CIM_UINT32: return writeAs<unsigned int>(p, b, f, s, CMPI_uint32);
        case fwf::CIM_UINT64: return writeAs<unsigned long long>(p, b, f, s, CMPI_uint64);
        case fwf::CIM_SINT8: return writeAs<signed char>(p, b, f, s, CMPI_sint8);
        case fwf::CIM_SINT16: return writeAs<short>(p, b, f, s, CMPI_sint16);
        case fwf::CIM_SINT32: return writeAs<int>(p, b, f, s, CMPI_sint32);
        case fwf::CIM_SINT64: return writeAs<long long>(p, b, f, s, CMPI_sint64);
        case fwf::CIM_STRING: return writeAs<std::string>(p, b, f, s, CMPI_string, t);
        case fwf::CIM_DATETIME: return writeDateTime(p, b, f, s, t);
        case fwf::CIM_REFERENCE: return writeAs<fwf::CIMObjectPath>(p, b, f, s, CMPI_ref);
        case fwf::CIM_INSTANCE: return writeAs<fwf::CIMInstance>(p, b, f, s, CMPI_instance);
        default: throw fwf::CIMException(fwf::CIM_ERR_NOT_SUPPORTED, " :: Not supported");
    }
}

}  // namespace vex::cim::adap::cmpi
