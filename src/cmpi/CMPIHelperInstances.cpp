// Instances in both directions. Going out, the instance is filtered by the
// request's property list here: not every object manager filters what a
// provider returns.
#include <string>
#include <vector>

#include "cmpi/CMPIHelper.h"
#include "cmpi/CMPIValueIn.h"
#include "cmpi/CMPIValueOut.h"
#include "cmpi/CmpiCalls.h"
#include "framework/CIMException.h"
#include "framework/CommonFunctions.h"

namespace vex::cim::adap::cmpi {

using fwf::CIMException;

namespace {

constexpr const char* kToCmpi = "FrameworkInstanceToCMPIInstance";

[[noreturn]] void failed() { throw CIMException(fwf::CIM_ERR_FAILED, " :: Operation Failed"); }

// True when the list is null (all properties) or names the property. CIM
// property names are compared ignoring case.
bool isSelected(const std::string& name, const char* const* properties) {
    if (properties == nullptr) {
        return true;
    }
    for (const char* const* p = properties; *p != nullptr; ++p) {
        if (fwf::CommonFunctions::equalsIgnoreCase(name, *p)) {
            return true;
        }
    }
    return false;
}

void writeProperty(const fwf::CIMProperty& property, CMPIInstance* ci, const CMPIBroker* broker) {
    if (!isWritablePropertyType(property.getType())) {
        throw CIMException(fwf::CIM_ERR_NOT_SUPPORTED, " :: Not supported");
    }
    const char* name = property.getName().c_str();
    writeValue(property, broker, kToCmpi, [ci, name](const CMPIValue* value, CMPIType type) {
        return ci->ft->setProperty != nullptr &&
               calls::ok(ci->ft->setProperty(ci, name, value, type));
    });
}

// True when the instance holds this string key with this value already: a
// broker that sets the key properties from the instance's path has done so,
// and writing the same text again would cost it a string replacement.
bool keyAlreadyHeld(const fwf::CIMProperty& property, const CMPIInstance* ci) {
    if (!property.isKey() || property.getType() != fwf::CIM_STRING || ci->ft->getProperty == nullptr) {
        return false;
    }
    CMPIStatus rc = calls::status(CMPI_RC_OK);
    CMPIData held = ci->ft->getProperty(ci, property.getName().c_str(), &rc);
    if (!calls::ok(rc) || (held.state & (CMPI_nullValue | CMPI_notFound)) != 0) {
        return false;
    }
    const char* text = held.type == CMPI_string  ? calls::chars(held.value.string)
                       : held.type == CMPI_chars ? held.value.chars
                                                 : nullptr;
    if (text == nullptr) {
        return false;
    }
    const std::vector<std::string> values = property.getStringValue().getValues();
    return values.size() == 1 && values.front() == text;
}

void writeProperties(const fwf::CIMInstance& inst, CMPIInstance* ci, const CMPIBroker* broker,
                     const char* const* properties) {
    for (const fwf::CIMProperty& property : inst.getPropertyList()) {
        if (isSelected(property.getName(), properties) && !keyAlreadyHeld(property, ci)) {
            writeProperty(property, ci, broker);
        }
    }
}

}  // namespace

void CMPIHelper::CMPIInstanceToFrameworkInstance(const CMPIInstance* ci, CIMObjectPath& path,
                                                 CIMInstance& inst) {
    if (ci == nullptr || ci->ft == nullptr || ci->ft->getObjectPath == nullptr) {
        failed();
    }
    CMPIStatus rc = calls::status(CMPI_RC_OK);
    CMPIObjectPath* op = ci->ft->getObjectPath(ci, &rc);
    if (!calls::ok(rc) || op == nullptr) {
        failed();
    }
    CMPIObjectPathToFrameworkObjectPath(op, true, path);
    inst.setPath(path);
    setProps(ci, inst);
}

void CMPIHelper::setProps(const CMPIInstance* ci, CIMInstance& inst) {
    if (ci == nullptr || ci->ft == nullptr || ci->ft->getPropertyCount == nullptr ||
        ci->ft->getPropertyAt == nullptr) {
        failed();
    }
    CMPIStatus rc = calls::status(CMPI_RC_OK);
    CMPICount count = ci->ft->getPropertyCount(ci, &rc);
    if (!calls::ok(rc)) {
        failed();
    }
    for (CMPICount i = 0; i < count; ++i) {
        CMPIString* name = nullptr;
        CMPIData data = ci->ft->getPropertyAt(ci, i, &name, &rc);
        const char* text = calls::chars(name);
        if (!calls::ok(rc) || text == nullptr) {
            failed();
        }
        inst.addProperty(dataToProperty(text, data));
    }
}

CMPIInstance* CMPIHelper::FrameworkInstanceToCMPIInstance(const CIMInstance& inst,
                                                          const CMPIBroker* broker,
                                                          const char* const* properties) {
    CMPIObjectPath* op = FrameworkObjectPathToCMPIObjectPath(inst.getPath(), broker);
    if (op == nullptr) {
        return nullptr;
    }
    CMPIInstance* ci = calls::newInstance(broker, op);
    if (ci == nullptr || ci->ft == nullptr) {
        return nullptr;
    }
    writeProperties(inst, ci, broker, properties);
    return ci;
}

InstanceHandle CMPIHelper::FrameworkInstanceToCMPIInstance(const CIMInstance& inst,
                                                           const CMPIBroker* broker,
                                                           const char* const* properties,
                                                           InstanceFactory& factory) {
    CMPIObjectPath* op = FrameworkObjectPathToCMPIObjectPath(inst.getPath(), broker);
    if (op == nullptr) {
        return {};
    }
    InstanceHandle ci = factory.make(op, inst.getPath().getNameSpace(), inst.getPath().getClassName());
    if (!ci || ci.get()->ft == nullptr) {
        return {};
    }
    writeProperties(inst, ci.get(), broker, properties);
    return ci;
}

}  // namespace vex::cim::adap::cmpi
