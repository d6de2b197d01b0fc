#include "cmpi/CmpiCalls.h"

namespace vex::cim::adap::cmpi::calls {

namespace {

// The encapsulated-types table of a broker, or null.
const CMPIBrokerEncFT* encTable(const CMPIBroker* broker) {
    return broker != nullptr ? broker->eft : nullptr;
}

template <typename Object>
bool hasTable(const Object* object) {
    return object != nullptr && object->ft != nullptr;
}

}  // namespace

CMPIString* newString(const CMPIBroker* broker, const char* text) {
    const CMPIBrokerEncFT* eft = encTable(broker);
    if (eft == nullptr || eft->newString == nullptr) {
        return nullptr;
    }
    return eft->newString(broker, text, nullptr);
}

CMPIObjectPath* newObjectPath(const CMPIBroker* broker, const char* nameSpace,
                              const char* className) {
    const CMPIBrokerEncFT* eft = encTable(broker);
    if (eft == nullptr || eft->newObjectPath == nullptr) {
        return nullptr;
    }
    CMPIStatus rc = status(CMPI_RC_OK);
    CMPIObjectPath* path = eft->newObjectPath(broker, nameSpace, className, &rc);
    return ok(rc) ? path : nullptr;
}

CMPIInstance* newInstance(const CMPIBroker* broker, const CMPIObjectPath* path) {
    const CMPIBrokerEncFT* eft = encTable(broker);
    if (eft == nullptr || eft->newInstance == nullptr) {
        return nullptr;
    }
    CMPIStatus rc = status(CMPI_RC_OK);
    CMPIInstance* instance = eft->newInstance(broker, path, &rc);
    return ok(rc) ? instance : nullptr;
}

CMPIArray* newArray(const CMPIBroker* broker, CMPICount size, CMPIType elementType) {
    const CMPIBrokerEncFT* eft = encTable(broker);
    if (eft == nullptr || eft->newArray == nullptr) {
        return nullptr;
    }
    CMPIStatus rc = status(CMPI_RC_OK);
    CMPIArray* array = eft->newArray(broker, size, elementType, &rc);
    return ok(rc) ? array : nullptr;
}

CMPIDateTime* newDateTimeFromChars(const CMPIBroker* broker, const char* text) {
    const CMPIBrokerEncFT* eft = encTable(broker);
    if (eft == nullptr || eft->newDateTimeFromChars == nullptr || text == nullptr) {
        return nullptr;
    }
    CMPIStatus rc = status(CMPI_RC_OK);
    CMPIDateTime* value = eft->newDateTimeFromChars(broker, text, &rc);
    return ok(rc) ? value : nullptr;
}

bool classPathIsA(const CMPIBroker* broker, const CMPIObjectPath* path, const char* className) {
    const CMPIBrokerEncFT* eft = encTable(broker);
    if (eft == nullptr || eft->classPathIsA == nullptr || path == nullptr ||
        className == nullptr) {
        return false;
    }
    CMPIStatus rc = status(CMPI_RC_OK);
    CMPIBoolean isA = eft->classPathIsA(broker, path, className, &rc);
    return ok(rc) && isA != 0;
}

void setStatus(CMPIStatus* out, const CMPIBroker* broker, CMPIrc rc, const char* message) {
    if (out == nullptr) {
        return;
    }
    out->rc = rc;
    out->msg = newString(broker, message);
}

const char* chars(const CMPIString* text, bool* usable) {
    bool canUse = hasTable(text) && text->ft->getCharPtr != nullptr;
    const char* result = nullptr;
    if (canUse) {
        CMPIStatus rc = status(CMPI_RC_OK);
        result = text->ft->getCharPtr(text, &rc);
        canUse = ok(rc);
    }
    if (usable != nullptr) {
        *usable = canUse;
    }
    return canUse ? result : nullptr;
}

std::string toStdString(const CMPIString* text) {
    const char* value = chars(text);
    return value != nullptr ? std::string(value) : std::string();
}

bool returnInstance(const CMPIResult* result, const CMPIInstance* instance) {
    if (!hasTable(result) || result->ft->returnInstance == nullptr) {
        return false;
    }
    return ok(result->ft->returnInstance(result, instance));
}

bool returnObjectPath(const CMPIResult* result, const CMPIObjectPath* path) {
    if (!hasTable(result) || result->ft->returnObjectPath == nullptr) {
        return false;
    }
    return ok(result->ft->returnObjectPath(result, path));
}

bool returnData(const CMPIResult* result, const CMPIValue* value, CMPIType type) {
    if (!hasTable(result) || result->ft->returnData == nullptr) {
        return false;
    }
    return ok(result->ft->returnData(result, value, type));
}

bool returnDone(const CMPIResult* result) {
    if (!hasTable(result) || result->ft->returnDone == nullptr) {
        return false;
    }
    return ok(result->ft->returnDone(result));
}

}  // namespace vex::cim::adap::cmpi::calls
