// Object paths in both directions, with their key bindings.
#include <string>
#include <vector>

#include "cmpi/CMPIHelper.h"
#include "cmpi/CMPIValueIn.h"
#include "cmpi/CMPIValueOut.h"
#include "cmpi/CmpiCalls.h"
#include "framework/CIMException.h"
#include "platform/Tkz.h"

namespace vex::cim::adap::cmpi {

using fwf::CIMException;

namespace {

constexpr std::size_t kHostNameSize = 256;
constexpr const char* kToFramework = "CMPIHelper::CMPIObjectPathToFrameworkObjectPath()";

[[noreturn]] void failed() { throw CIMException(fwf::CIM_ERR_FAILED, " :: Operation Failed"); }

// Calls one of the path's string getters. `called` is false when the getter
// is missing or reports a failure.
using StringGetter = CMPIString* (*)(const CMPIObjectPath*, CMPIStatus*);
const char* readPathText(const CMPIObjectPath* op, StringGetter getter, bool& called) {
    called = false;
    if (getter == nullptr) {
        return nullptr;
    }
    CMPIStatus rc = calls::status(CMPI_RC_OK);
    CMPIString* text = getter(op, &rc);
    called = calls::ok(rc);
    return called ? calls::chars(text) : nullptr;
}

std::string localHostName() {
    char buffer[kHostNameSize] = {};
    if (TkzGetHostName(buffer, sizeof buffer) != 0) {
        failed();
    }
    return buffer;
}

// Namespace, host and class name of a usable path.
void readAddress(const CMPIObjectPath* op, fwf::CIMObjectPath& path) {
    bool called = false;
    const char* nameSpace = readPathText(op, op->ft->getNameSpace, called);
    if (!called) {
        throw CIMException(fwf::CIM_ERR_INVALID_NAMESPACE, " :: Invalid namespace");
    }
    const char* host = readPathText(op, op->ft->getHostname, called);
    const char* className = readPathText(op, op->ft->getClassName, called);
    if (!called) {
        throw CIMException(fwf::CIM_ERR_INVALID_CLASS, " :: Invalid class");
    }
    path.setHostName(host != nullptr && *host != '\0' ? std::string(host) : localHostName());
    if (nameSpace == nullptr) {
        TkzLogMsg(TKZ_LOG_ERROR, "%s - NameSpace is NULL", kToFramework);
    } else {
        path.setNameSpace(nameSpace);
    }
    if (className == nullptr) {
        TkzLogMsg(TKZ_LOG_ERROR, "%s - ClassName is NULL", kToFramework);
    } else {
        path.setClassName(className);
    }
}

bool addKey(CMPIObjectPath* op, const std::string& name, const CMPIValue* value, CMPIType type) {
    if (op->ft->addKey != nullptr && calls::ok(op->ft->addKey(op, name.c_str(), value, type))) {
        return true;
    }
    TkzLogMsg(TKZ_LOG_ERROR, "%s:Cannot set object path.", "FrameworkObjectPathToCMPIObjectPath");
    return false;
}

void writeKeys(const std::vector<fwf::CIMProperty>& keys, CMPIObjectPath* op, const CMPIBroker* broker) {
    for (const fwf::CIMProperty& key : keys) {
        if (!isWritablePropertyType(key.getType())) {
            throw CIMException(fwf::CIM_ERR_NOT_SUPPORTED, " :: Not supported");
        }
        if (key.getType() == fwf::CIM_STRING) {
            TkzLogMsg(TKZ_LOG_DEBUG, " string property %s", key.getName().c_str());
        }
        const std::string& name = key.getName();
        writeValue(key, broker, "FrameworkObjectPathToCMPIObjectPath",
                   [op, &name](const CMPIValue* value, CMPIType type) {
                       return addKey(op, name, value, type);
                   }, Text::Chars);
    }
}

}  // namespace

void CMPIHelper::CMPIObjectPathToFrameworkObjectPath(const CMPIObjectPath* op, bool withKeys,
                                                     CIMObjectPath& path) {
    if (op == nullptr || op->ft == nullptr) {
        // Nothing to read: an empty address, which the caller refuses.
        TkzLogMsg(TKZ_LOG_ERROR, "%s - NameSpace is NULL", kToFramework);
        TkzLogMsg(TKZ_LOG_ERROR, "%s - ClassName is NULL", kToFramework);
        return;
    }
    readAddress(op, path);
    if (withKeys) {
        setKeys(op, path);
    }
}

void CMPIHelper::setKeys(const CMPIObjectPath* op, CIMObjectPath& path) {
    if (op == nullptr || op->ft == nullptr || op->ft->getKeyCount == nullptr ||
        op->ft->getKeyAt == nullptr) {
        failed();
    }
    CMPIStatus rc = calls::status(CMPI_RC_OK);
    CMPICount count = op->ft->getKeyCount(op, &rc);
    if (!calls::ok(rc)) {
        failed();
    }
    std::vector<fwf::CIMProperty> keys;
    for (CMPICount i = 0; i < count; ++i) {
        CMPIString* name = nullptr;
        CMPIData data = op->ft->getKeyAt(op, i, &name, &rc);
        const char* text = calls::chars(name);
        if (!calls::ok(rc) || text == nullptr) {
            failed();
        }
        keys.push_back(keyToProperty(text, data));
    }
    path.setKeyBindings(std::move(keys));
}

CMPIObjectPath* CMPIHelper::FrameworkObjectPathToCMPIObjectPath(const CIMObjectPath& path,
                                                                const CMPIBroker* broker) {
    return newCMPIObjectPath(path.getHostName(), path.getNameSpace(), path.getClassName(),
                             path.keyBindings(), broker);
}

CMPIObjectPath* CMPIHelper::newCMPIObjectPath(const std::string& host, const std::string& nameSpace,
                                              const std::string& className,
                                              const std::vector<fwf::CIMProperty>& keys,
                                              const CMPIBroker* broker) {
    TkzLogMsg(TKZ_LOG_DEBUG, " FrameworkObjectPathToCMPIObjectPath Enter");
    TkzLogMsg(TKZ_LOG_DEBUG, " namespace %s", nameSpace.c_str());
    TkzLogMsg(TKZ_LOG_DEBUG, " classname %s", className.c_str());
    CMPIObjectPath* op = calls::newObjectPath(broker, nameSpace.c_str(), className.c_str());
    if (op == nullptr || op->ft == nullptr) {
        return nullptr;
    }
    if (!host.empty()) {
        if (op->ft->setHostname == nullptr || !calls::ok(op->ft->setHostname(op, host.c_str()))) {
            TkzLogMsg(TKZ_LOG_ERROR, "%s:Cannot set object path.",
                      "FrameworkObjectPathToCMPIObjectPath");
            failed();
        }
    }
    writeKeys(keys, op, broker);
    return op;
}

}  // namespace vex::cim::adap::cmpi
