// Extrinsic method arguments: CMPI input to framework parameters, framework
// output parameters to CMPI out arguments.
#include <string>

#include "cmpi/CMPIHelper.h"
#include "cmpi/CMPIValueIn.h"
#include "cmpi/CMPIValueOut.h"
#include "cmpi/CmpiCalls.h"
#include "framework/CIMException.h"
#include "platform/Tkz.h"

namespace vex::cim::adap::cmpi {

using fwf::CIMException;

namespace {

constexpr const char* kToCmpi = "FrameworkArgumentsToCMPIArguments";

[[noreturn]] void failed() { throw CIMException(fwf::CIM_ERR_FAILED, " :: Operation Failed"); }

// The debug lines that mark the compound output types.
void logOutputKind(fwf::Primitive_DataType type) {
    switch (type) {
        case fwf::CIM_UINT32_ARRAY: TkzLogMsg(TKZ_LOG_DEBUG, "Uint32Array received"); break;
        case fwf::CIM_STRING_ARRAY: TkzLogMsg(TKZ_LOG_DEBUG, "UintStringArray received"); break;
        case fwf::CIM_INSTANCE: TkzLogMsg(TKZ_LOG_DEBUG, "Converting instance "); break;
        case fwf::CIM_INSTANCE_ARRAY: TkzLogMsg(TKZ_LOG_DEBUG, "Instance array"); break;
        default: break;
    }
}

void addOutput(const fwf::CIMProperty& param, CMPIArgs* out, const CMPIBroker* broker) {
    const char* name = param.getName().c_str();
    writeValue(param, broker, kToCmpi, [out, name](const CMPIValue* value, CMPIType type) {
        return calls::ok(out->ft->addArg(out, name, value, type));
    });
    if (param.getType() == fwf::CIM_INSTANCE) {
        TkzLogMsg(TKZ_LOG_DEBUG, "Instance ");
    }
}

}  // namespace

void CMPIHelper::CMPIArgsToFrameWorkMethodParam(const CMPIArgs* in, CIMMethodParam& params) {
    if (in == nullptr || in->ft == nullptr || in->ft->getArgCount == nullptr ||
        in->ft->getArgAt == nullptr) {
        failed();
    }
    CMPIStatus rc = calls::status(CMPI_RC_OK);
    CMPICount count = in->ft->getArgCount(in, &rc);
    if (!calls::ok(rc)) {
        failed();
    }
    for (CMPICount i = 0; i < count; ++i) {
        CMPIString* name = nullptr;
        CMPIData data = in->ft->getArgAt(in, i, &name, &rc);
        const char* text = calls::chars(name);
        if (!calls::ok(rc) || text == nullptr) {
            failed();
        }
        params.addArgument(argumentToProperty(text, data));
    }
}

bool CMPIHelper::FrameworkArgumentsToCMPIArguments(const CIMMethodParam& params, CMPIArgs* out,
                                                   const CMPIBroker* broker) {
    if (out == nullptr || out->ft == nullptr || out->ft->addArg == nullptr) {
        return false;
    }
    for (unsigned int i = 0; i < params.getArgumentCount(); ++i) {
        fwf::CIMProperty param = params.getArgument(i);
        auto type = param.getType();
        TkzLogMsg(TKZ_LOG_DEBUG, "Prop type %d", static_cast<int>(type));
        if (!isWritableArgumentType(type)) {
            TkzLogMsg(TKZ_LOG_WARN, "Unknown datattyppe %d", static_cast<int>(type));
            continue;
        }
        logOutputKind(type);
        addOutput(param, out, broker);
    }
    return true;
}

}  // namespace vex::cim::adap::cmpi
