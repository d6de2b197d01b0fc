#include "BrokerDiagnostics.h"

#include <cstring>

#include "Broker.h"
#include "ErrorObject.h"
#include "MessageFormat.h"
#include "Status.h"
#include "StringObject.h"

namespace cmpihost::detail::diagnostics {

namespace {

Object* inspected(const CMPIBroker* mb, const void* object, CMPIStatus* rc) {
    Object* o = Broker::of(mb) != nullptr ? Object::behind(object) : nullptr;
    setStatus(rc, o != nullptr ? CMPI_RC_OK : CMPI_RC_ERR_INVALID_HANDLE);
    return o;
}

// The one message file handle the host hands out; it only has to be non-NULL.
char g_messageFile;

}  // namespace

CMPIString* toString(const CMPIBroker* mb, const void* object, CMPIStatus* rc) {
    Object* o = inspected(mb, object, rc);
    return o ? newString(o->broker(), o->describe()) : nullptr;
}

CMPIBoolean isOfType(const CMPIBroker* mb, const void* object, const char* type, CMPIStatus* rc) {
    Object* o = inspected(mb, object, rc);
    return o && type && std::strcmp(o->typeName(), type) == 0 ? 1 : 0;
}

CMPIString* getType(const CMPIBroker* mb, const void* object, CMPIStatus* rc) {
    Object* o = inspected(mb, object, rc);
    return o ? newString(o->broker(), std::string(o->typeName())) : nullptr;
}

CMPIString* getMessage(const CMPIBroker* mb, const char*, const char* defMsg, CMPIStatus* rc,
                       CMPICount count, ...) {
    Broker* b = Broker::of(mb);
    if (b == nullptr) {
        setStatus(rc, CMPI_RC_ERR_INVALID_HANDLE);
        return nullptr;
    }
    va_list args;
    va_start(args, count);
    std::string text = formatMessage(defMsg, count, args);
    va_end(args);
    setStatus(rc, CMPI_RC_OK);
    return newString(*b, std::move(text));
}

CMPIStatus logMessage(const CMPIBroker* mb, int, const char*, const char*, const CMPIString*) {
    Broker* b = Broker::of(mb);
    if (b != nullptr) {
        b->recordUpcall("logMessage");
    }
    return status(b ? CMPI_RC_OK : CMPI_RC_ERR_INVALID_HANDLE);
}

CMPIStatus trace(const CMPIBroker* mb, int, const char*, const char*, const CMPIString*) {
    Broker* b = Broker::of(mb);
    if (b != nullptr) {
        b->recordUpcall("trace");
    }
    return status(b ? CMPI_RC_OK : CMPI_RC_ERR_INVALID_HANDLE);
}

CMPIError* newCMPIError(const CMPIBroker* mb, const char* owner, const char* msgID,
                        const char* msg, const CMPIErrorSeverity sev,
                        const CMPIErrorProbableCause pc, const CMPIrc cimStatusCode,
                        CMPIStatus* rc) {
    Broker* b = Broker::of(mb);
    if (b == nullptr) {
        setStatus(rc, CMPI_RC_ERR_INVALID_HANDLE);
        return nullptr;
    }
    ErrorInfo info;
    info.owningEntity = owner ? owner : "";
    info.messageId = msgID ? msgID : "";
    info.message = msg ? msg : "";
    info.severity = sev;
    info.probableCause = pc;
    info.cimStatusCode = cimStatusCode;
    setStatus(rc, CMPI_RC_OK);
    return b->make<ErrorObject>(std::move(info))->handle();
}

CMPIStatus openMessageFile(const CMPIBroker* mb, const char* msgFile,
                           CMPIMsgFileHandle* msgFileHandle) {
    if (Broker::of(mb) == nullptr || msgFile == nullptr || msgFileHandle == nullptr) {
        return status(CMPI_RC_ERR_INVALID_PARAMETER);
    }
    *msgFileHandle = &g_messageFile;
    return status(CMPI_RC_OK);
}

CMPIStatus closeMessageFile(const CMPIBroker* mb, const CMPIMsgFileHandle msgFileHandle) {
    const bool ok = Broker::of(mb) != nullptr && msgFileHandle == &g_messageFile;
    return status(ok ? CMPI_RC_OK : CMPI_RC_ERR_INVALID_HANDLE);
}

// No message catalogues here: the default message is always the answer.
CMPIString* getMessage2(const CMPIBroker* mb, const char*, const CMPIMsgFileHandle,
                        const char* defMsg, CMPIStatus* rc, CMPICount count, ...) {
    Broker* b = Broker::of(mb);
    if (b == nullptr) {
        setStatus(rc, CMPI_RC_ERR_INVALID_HANDLE);
        return nullptr;
    }
    va_list args;
    va_start(args, count);
    std::string text = formatMessage(defMsg, count, args);
    va_end(args);
    setStatus(rc, CMPI_RC_OK);
    return newString(*b, std::move(text));
}

}  // namespace cmpihost::detail::diagnostics
