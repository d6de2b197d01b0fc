#include "cmpi/CMPIValueIn.h"

#include <cmpift.h>

#include <vector>

#include "cmpi/CMPIHelper.h"
#include "cmpi/CmpiCalls.h"
#include "framework/CIMException.h"

namespace vex::cim::adap::cmpi {

using fwf::CIMException;
using fwf::CIMProperty;
using fwf::CIMValue;
using fwf::Primitive_DataType;

namespace {

[[noreturn]] void unreadable() { throw CIMException(fwf::CIM_ERR_FAILED, " :: Operation Failed"); }

bool isNull(const CMPIData& data) { return (data.state & CMPI_nullValue) != 0; }
bool isArray(CMPIType type) { return (type & CMPI_ARRAY) != 0; }
CMPIType elementType(CMPIType type) { return static_cast<CMPIType>(type & ~CMPI_ARRAY); }

bool isInteger(CMPIType type) {
    switch (type) {
        case CMPI_uint8:
        case CMPI_uint16:
        case CMPI_uint32:
        case CMPI_uint64:
        case CMPI_sint8:
        case CMPI_sint16:
        case CMPI_sint32:
        case CMPI_sint64: return true;
        default: return false;
    }
}

// ---- scalar getters, one per framework element type -------------------------

bool getBool(const CMPIData& d) { return d.value.boolean != 0; }
unsigned char getUint8(const CMPIData& d) { return d.value.uint8; }
unsigned short getUint16(const CMPIData& d) { return d.value.uint16; }
unsigned int getUint32(const CMPIData& d) { return d.value.uint32; }
unsigned long long getUint64(const CMPIData& d) { return d.value.uint64; }
signed char getSint8(const CMPIData& d) { return d.value.sint8; }
short getSint16(const CMPIData& d) { return d.value.sint16; }
int getSint32(const CMPIData& d) { return d.value.sint32; }
long long getSint64(const CMPIData& d) { return d.value.sint64; }
float getReal32(const CMPIData& d) { return d.value.real32; }
double getReal64(const CMPIData& d) { return d.value.real64; }

// Any integer type widened to the key integer (signed 64-bit).
long long getAnyInteger(const CMPIData& d) {
    switch (d.type) {
        case CMPI_uint8: return d.value.uint8;
        case CMPI_uint16: return d.value.uint16;
        case CMPI_uint32: return d.value.uint32;
        case CMPI_uint64: return static_cast<long long>(d.value.uint64);
        case CMPI_sint8: return d.value.sint8;
        case CMPI_sint16: return d.value.sint16;
        case CMPI_sint32: return d.value.sint32;
        default: return d.value.sint64;
    }
}

// CMPI_string objects and CMPI_chars pointers; no characters read as "".
std::string getString(const CMPIData& d) {
    if (d.type == CMPI_chars) {
        return d.value.chars != nullptr ? std::string(d.value.chars) : std::string();
    }
    bool usable = false;
    const char* text = calls::chars(d.value.string, &usable);
    if (!usable) {
        unreadable();
    }
    return text != nullptr ? std::string(text) : std::string();
}

// A datetime is carried in its CIM string form.
std::string getDateTime(const CMPIData& d) {
    const CMPIDateTime* value = d.value.dateTime;
    if (value == nullptr || value->ft == nullptr || value->ft->getStringFormat == nullptr) {
        unreadable();
    }
    CMPIStatus rc = calls::status(CMPI_RC_OK);
    CMPIString* text = value->ft->getStringFormat(value, &rc);
    bool usable = false;
    const char* chars = calls::chars(text, &usable);
    if (!calls::ok(rc) || !usable || chars == nullptr) {
        unreadable();
    }
    return chars;
}

fwf::CIMObjectPath getReference(const CMPIData& d) {
    if (d.value.ref == nullptr) {
        unreadable();
    }
    fwf::CIMObjectPath path;
    CMPIHelper::CMPIObjectPathToFrameworkObjectPath(d.value.ref, true, path);
    return path;
}

fwf::CIMInstance getInstance(const CMPIData& d) {
    if (d.value.inst == nullptr) {
        unreadable();
    }
    fwf::CIMObjectPath path;
    fwf::CIMInstance instance;
    CMPIHelper::CMPIInstanceToFrameworkInstance(d.value.inst, path, instance);
    return instance;
}

// ---- building the property --------------------------------------------------

// The elements of a CMPI array, null elements left out.
std::vector<CMPIData> arrayElements(const CMPIArray* array) {
    if (array == nullptr || array->ft == nullptr || array->ft->getSize == nullptr ||
        array->ft->getElementAt == nullptr) {
        unreadable();
    }
    CMPIStatus rc = calls::status(CMPI_RC_OK);
    CMPICount size = array->ft->getSize(array, &rc);
    if (!calls::ok(rc)) {
        unreadable();
    }
    std::vector<CMPIData> elements;
    for (CMPICount i = 0; i < size; ++i) {
        CMPIData element = array->ft->getElementAt(array, i, &rc);
        if (!calls::ok(rc)) {
            unreadable();
        }
        if (!isNull(element)) {
            elements.push_back(element);
        }
    }
    return elements;
}

template <typename T>
CIMProperty build(const std::string& name, const CMPIData& data, Primitive_DataType scalarTag,
                  T (*get)(const CMPIData&), bool isKey) {
    CIMValue<T> value(std::vector<T>(), false, false);
    if (!isNull(data) && isArray(data.type)) {
        for (const CMPIData& element : arrayElements(data.value.array)) {
            value.addValue(get(element));
        }
    } else if (!isNull(data)) {
        value.addValue(get(data));
    }
    auto tag = static_cast<Primitive_DataType>(isArray(data.type) ? (scalarTag | 1u) : scalarTag);
    return CIMProperty(name, value, isKey, tag, false);
}

}  // namespace

CIMProperty keyToProperty(const std::string& name, const CMPIData& data) {
    CMPIType type = data.type;
    if (isArray(type) || isNull(data)) {
        unreadable();
    }
    if (type == CMPI_string || type == CMPI_chars) {
        return build<std::string>(name, data, fwf::CIM_STRING, getString, true);
    }
    if (isInteger(type)) {
        return build<long long>(name, data, fwf::CIM_SINT64, getAnyInteger, true);
    }
    if (type == CMPI_boolean) {
        return build<bool>(name, data, fwf::CIM_BOOLEAN, getBool, true);
    }
    if (type == CMPI_ref) {
        return build<fwf::CIMObjectPath>(name, data, fwf::CIM_REFERENCE, getReference, true);
    }
    if (type == CMPI_dateTime) {
        return build<std::string>(name, data, fwf::CIM_DATETIME, getDateTime, true);
    }
    unreadable();
}

CIMProperty dataToProperty(const std::string& name, const CMPIData& data) {
    switch (elementType(data.type)) {
        case CMPI_boolean: return build<bool>(name, data, fwf::CIM_BOOLEAN, getBool, false);
        case CMPI_uint8: return build<unsigned char>(name, data, fwf::CIM_UINT8, getUint8, false);
        case CMPI_uint16:
            return build<unsigned short>(name, data, fwf::CIM_UINT16, getUint16, false);
        case CMPI_uint32: return build<unsigned int>(name, data, fwf::CIM_UINT32, getUint32, false);
        case CMPI_uint64:
            return build<unsigned long long>(name, data, fwf::CIM_UINT64, getUint64, false);
        case CMPI_sint8: return build<signed char>(name, data, fwf::CIM_SINT8, getSint8, false);
        case CMPI_sint16: return build<short>(name, data, fwf::CIM_SINT16, getSint16, false);
        case CMPI_sint32: return build<int>(name, data, fwf::CIM_SINT32, getSint32, false);
        case CMPI_sint64: return build<long long>(name, data, fwf::CIM_SINT64, getSint64, false);
        case CMPI_real32: return build<float>(name, data, fwf::CIM_REAL32, getReal32, false);
        case CMPI_real64: return build<double>(name, data, fwf::CIM_REAL64, getReal64, false);
        case CMPI_string:
        case CMPI_chars: return build<std::string>(name, data, fwf::CIM_STRING, getString, false);
        case CMPI_dateTime:
            return build<std::string>(name, data, fwf::CIM_DATETIME, getDateTime, false);
        case CMPI_ref:
            return build<fwf::CIMObjectPath>(name, data, fwf::CIM_REFERENCE, getReference, false);
        case CMPI_instance:
            return build<fwf::CIMInstance>(name, data, fwf::CIM_INSTANCE, getInstance, false);
        default: unreadable();
    }
}

bool isAcceptedArgumentType(CMPIType type) {
    switch (type) {
        case CMPI_boolean:
        case CMPI_uint16:
        case CMPI_uint32:
        case CMPI_uint64:
        case CMPI_string:
        case CMPI_chars:
        case CMPI_dateTime:
        case CMPI_ref:
        case CMPI_booleanA:
        case CMPI_uint8A:
        case CMPI_uint16A:
        case CMPI_uint32A:
        case CMPI_uint64A:
        case CMPI_sint8A:
        case CMPI_stringA:
        case CMPI_dateTimeA:
        case CMPI_refA: return true;
        default: return false;
    }
}

CIMProperty argumentToProperty(const std::string& name, const CMPIData& data) {
    if (!isAcceptedArgumentType(data.type)) {
        throw CIMException(fwf::CIM_ERR_NOT_SUPPORTED, " :: Not supported");
    }
    return dataToProperty(name, data);
}

}  // namespace vex::cim::adap::cmpi
