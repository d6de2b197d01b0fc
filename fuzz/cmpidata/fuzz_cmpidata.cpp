// CMPI data as an object manager hands it to the provider - object paths,
// instances and method arguments of every CMPI type, arrays, references,
// embedded instances, nulls and values flagged bad or of a type the
// conversions do not take - made by a cmpihost broker and read by the
// adapter's conversions. Every failure must be a CIMException: nothing else
// may reach the object manager.
#include <fuzzer/FuzzedDataProvider.h>

#include <cmpihost/Host.h>

#include <cmpift.h>

#include <cstddef>
#include <cstdint>
#include <string>

#include "cmpi/CMPIHelper.h"
#include "cmpi/CMPIValueIn.h"
#include "framework/CIMException.h"

namespace {

using cmpihost::Instance;
using cmpihost::NamedValues;
using cmpihost::ObjectPath;
using cmpihost::Value;
using vex::cim::adap::cmpi::CMPIHelper;
namespace fwf = vex::cim::fwf;

const CMPIType kScalars[] = {CMPI_boolean, CMPI_char16, CMPI_uint8,  CMPI_uint16, CMPI_uint32, CMPI_uint64,
                             CMPI_sint8,   CMPI_sint16, CMPI_sint32, CMPI_sint64, CMPI_real32, CMPI_real64,
                             CMPI_string,  CMPI_dateTime, CMPI_ref,  CMPI_instance};

ObjectPath pathOf(FuzzedDataProvider& in, int depth);
Instance instanceOf(FuzzedDataProvider& in, int depth);

std::string text(FuzzedDataProvider& in) { return in.ConsumeRandomLengthString(24); }

Value scalarOf(FuzzedDataProvider& in, CMPIType type, int depth) {
    switch (type) {
    case CMPI_boolean: return Value::boolean(in.ConsumeBool());
    case CMPI_char16: return Value::char16(in.ConsumeIntegral<CMPIChar16>());
    case CMPI_uint8: return Value::uint8(in.ConsumeIntegral<CMPIUint8>());
    case CMPI_uint16: return Value::uint16(in.ConsumeIntegral<CMPIUint16>());
    case CMPI_uint32: return Value::uint32(in.ConsumeIntegral<CMPIUint32>());
    case CMPI_uint64: return Value::uint64(in.ConsumeIntegral<CMPIUint64>());
    case CMPI_sint8: return Value::sint8(in.ConsumeIntegral<CMPISint8>());
    case CMPI_sint16: return Value::sint16(in.ConsumeIntegral<CMPISint16>());
    case CMPI_sint32: return Value::sint32(in.ConsumeIntegral<CMPISint32>());
    case CMPI_sint64: return Value::sint64(in.ConsumeIntegral<CMPISint64>());
    case CMPI_real32: return Value::real32(in.ConsumeFloatingPoint<CMPIReal32>());
    case CMPI_real64: return Value::real64(in.ConsumeFloatingPoint<CMPIReal64>());
    case CMPI_dateTime: {
        auto when = cmpihost::DateTime::fromText(in.ConsumeBool() ? "20240102030405.000006+000" : "00000001020304.000005:000");
        return Value::dateTime(*when);
    }
    case CMPI_ref: return depth > 0 ? Value::ref(pathOf(in, depth - 1)) : Value::null(CMPI_ref);
    case CMPI_instance: return depth > 0 ? Value::instance(instanceOf(in, depth - 1)) : Value::null(CMPI_instance);
    default: return Value::string(text(in));
    }
}

Value valueOf(FuzzedDataProvider& in, int depth) {
    const CMPIType type = in.PickValueInArray(kScalars);
    const int shape = in.ConsumeIntegralInRange(0, 5);
    if (shape == 0) return Value::null(type);
    if (shape == 1) return Value::null(static_cast<CMPIType>(type | CMPI_ARRAY));
    if (shape == 2) {
        Value::Array elements;
        const int n = in.ConsumeIntegralInRange(0, 4);
        for (int i = 0; i < n; ++i) elements.push_back(in.ConsumeBool() ? scalarOf(in, type, depth) : Value::null(type));
        return Value::array(type, elements);
    }
    return scalarOf(in, type, depth);
}

NamedValues namedValuesOf(FuzzedDataProvider& in, int depth) {
    NamedValues values;
    const int n = in.ConsumeIntegralInRange(0, 5);
    for (int i = 0; i < n; ++i) values.push_back({text(in), valueOf(in, depth)});
    return values;
}

ObjectPath pathOf(FuzzedDataProvider& in, int depth) {
    const std::string ns = in.ConsumeBool() ? std::string("root/tkz/vex/smi_15") : text(in);
    const std::string cls = in.ConsumeBool() ? std::string("VEX_DiskDrive") : text(in);
    return ObjectPath(ns, cls, namedValuesOf(in, depth));
}

Instance instanceOf(FuzzedDataProvider& in, int depth) { return Instance(pathOf(in, depth), namedValuesOf(in, depth)); }

// A value as the object manager might flag it: null, bad, or (for values
// that hold no pointer) read as another type.
CMPIData disturbed(FuzzedDataProvider& in, CMPIData data) {
    switch (in.ConsumeIntegralInRange(0, 3)) {
    case 0: data.state |= CMPI_nullValue; break;
    case 1: data.state |= CMPI_badValue; break;
    case 2:
        if ((data.type & (CMPI_ARRAY | CMPI_ENC)) == 0 && data.type != CMPI_dateTime) {
            data.type = in.PickValueInArray({CMPI_boolean, CMPI_char16, CMPI_uint8, CMPI_uint16, CMPI_uint32, CMPI_uint64,
                                             CMPI_sint8, CMPI_sint16, CMPI_sint32, CMPI_sint64, CMPI_real32, CMPI_real64,
                                             CMPI_null});
        }
        break;
    default: break;
    }
    return data;
}

template <typename Call>
void guarded(Call call) {
    try {
        call();
    } catch (const fwf::CIMException&) {
    }
}

cmpihost::Host& host() {
    static cmpihost::Host* h = new cmpihost::Host(cmpihost::HostConfig::pegasus214());
    return *h;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    FuzzedDataProvider in(data, size);
    const Instance instance = instanceOf(in, 2);
    const NamedValues args = namedValuesOf(in, 2);
    host().runInRequest([&](const CMPIBroker* broker, const CMPIContext*) {
        CMPIObjectPath* op = host().makePath(instance.path);
        fwf::CIMObjectPath path;
        guarded([&] { CMPIHelper::CMPIObjectPathToFrameworkObjectPath(op, true, path); });
        guarded([&] { CMPIHelper::setKeys(op, path); });
        CMPIInstance* ci = host().makeInstance(instance);
        fwf::CIMObjectPath instancePath;
        fwf::CIMInstance inst;
        guarded([&] {
            CMPIHelper::CMPIInstanceToFrameworkInstance(ci, instancePath, inst);
            CMPIHelper::FrameworkInstanceToCMPIInstance(inst, broker, nullptr);
        });
        CMPIArgs* ca = host().makeArgs(args);
        fwf::CIMMethodParam params;
        guarded([&] { CMPIHelper::CMPIArgsToFrameWorkMethodParam(ca, params); });
        for (const auto& arg : args) {
            const CMPIData raw = CMGetArg(ca, arg.name.c_str(), nullptr);
            const CMPIData value = disturbed(in, raw);
            guarded([&] { vex::cim::adap::cmpi::keyToProperty(arg.name, value); });
            guarded([&] { vex::cim::adap::cmpi::dataToProperty(arg.name, value); });
            guarded([&] { vex::cim::adap::cmpi::argumentToProperty(arg.name, value); });
        }
    });
    return 0;
}
