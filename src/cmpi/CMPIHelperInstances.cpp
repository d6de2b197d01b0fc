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
    }, Text::Chars);
}

// A string key of the instance's path with the same value as the property
// (the path's keys are written by the path itself).
bool isStringPathKey(const fwf::CIMProperty& property, const fwf::CIMInstance& inst) {
    if (!property.isKey() || property.getType() != fwf::CIM_STRING || property.elementCount<std::string>() != 1) {
        return false;
    }
    for (const fwf::CIMProperty& key : inst.keyProperties()) {
        if (key.getName() == property.getName()) {
            return key.elementCount<std::string>() == 1 &&
                   key.elementAt<std::string>(0) == property.elementAt<std::string>(0);
        }
    }
    return false;
}

enum class Held { Same, Absent, Other };

// What the instance holds already for a string key.
Held heldKey(const fwf::CIMProperty& property, const CMPIInstance* ci) {
    if (ci->ft->getProperty == nullptr) {
        return Held::Other;
    }
    CMPIStatus rc = calls::status(CMPI_RC_OK);
    CMPIData held = ci->ft->getProperty(ci, property.getName().c_str(), &rc);
    if (!calls::ok(rc) || (held.state & (CMPI_nullValue | CMPI_notFound)) != 0) {
        return Held::Absent;
    }
    const char* text = held.type == CMPI_string  ? calls::chars(held.value.string)
                       : held.type == CMPI_chars ? held.value.chars
                                                 : nullptr;
    return text != nullptr && property.elementAt<std::string>(0) == text ? Held::Same : Held::Other;
}

// True when the key need not be written: the broker set it from the path.
// Whether it does is learned from the first string key and kept in
// pathKeys; writing the same text again would cost the broker a string
// replacement.
bool keySetByPath(const fwf::CIMProperty& property, const fwf::CIMInstance& inst,
                  const CMPIInstance* ci, PathKeys& pathKeys) {
    if (pathKeys == PathKeys::Apart || !isStringPathKey(property, inst)) {
        return false;
    }
    if (pathKeys == PathKeys::Unknown) {
        const Held held = heldKey(property, ci);
        if (held == Held::Other) {
            return false;
        }
        pathKeys = held == Held::Same ? PathKeys::SetByBroker : PathKeys::Apart;
    }
    return pathKeys == PathKeys::SetByBroker;
}

void writeProperties(const fwf::CIMInstance& inst, CMPIInstance* ci, const CMPIBroker* broker,
                     const char* const* properties, PathKeys& pathKeys) {
    for (const fwf::CIMProperty& property : inst.properties()) {
        if (isSelected(property.getName(), properties) && !keySetByPath(property, inst, ci, pathKeys)) {
            writeProperty(property, ci, broker);
        }
    }
}

CMPIObjectPath* pathOf(const fwf::CIMInstance& inst, const CMPIBroker* broker) {
    return CMPIHelper::newCMPIObjectPath(inst.getHostName(), inst.getNameSpace(), inst.getClassName(),
                                         inst.keyProperties(), broker);
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
    CMPIObjectPath* op = pathOf(inst, broker);
    if (op == nullptr) {
        return nullptr;
    }
    CMPIInstance* ci = calls::newInstance(broker, op);
    if (ci == nullptr || ci->ft == nullptr) {
        return nullptr;
    }
    PathKeys pathKeys = PathKeys::Unknown;
    writeProperties(inst, ci, broker, properties, pathKeys);
    return ci;
}

InstanceHandle CMPIHelper::FrameworkInstanceToCMPIInstance(const CIMInstance& inst,
                                                           const CMPIBroker* broker,
                                                           const char* const* properties,
                                                           InstanceFactory& factory) {
    CMPIObjectPath* op = pathOf(inst, broker);
    if (op == nullptr) {
        return {};
    }
    InstanceHandle ci = factory.make(op, inst.getNameSpace(), inst.getClassName());
    if (!ci || ci.get()->ft == nullptr) {
        return {};
    }
    writeProperties(inst, ci.get(), broker, properties, factory.pathKeys());
    return ci;
}

}  // namespace vex::cim::adap::cmpi
