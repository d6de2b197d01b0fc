#include "ErrorObject.h"

#include "ArrayObject.h"
#include "Broker.h"
#include "Status.h"
#include "StringObject.h"
#include "ValueCodec.h"

namespace cmpihost::detail {

namespace {

ErrorObject* self(const CMPIError* er, CMPIStatus* rc) {
    ErrorObject* o = objectOf<ErrorObject>(er);
    setStatus(rc, o != nullptr ? CMPI_RC_OK : CMPI_RC_ERR_INVALID_HANDLE);
    return o;
}

CMPIStatus release(CMPIError* er) { return Object::release(er); }

CMPIError* clone(const CMPIError* er, CMPIStatus* rc) {
    ErrorObject* o = self(er, rc);
    return o ? o->broker().makeHostOwned<ErrorObject>(o->info())->handle() : nullptr;
}

template <class T>
T field(const CMPIError* er, CMPIStatus* rc, T ErrorInfo::*member, T fallback) {
    ErrorObject* o = self(er, rc);
    return o ? o->info().*member : fallback;
}

CMPIString* text(const CMPIError* er, CMPIStatus* rc, std::string ErrorInfo::*member) {
    ErrorObject* o = self(er, rc);
    return o ? newString(o->broker(), o->info().*member) : nullptr;
}

CMPIArray* array(const CMPIError* er, CMPIStatus* rc, Value ErrorInfo::*member) {
    ErrorObject* o = self(er, rc);
    if (o == nullptr || (o->info().*member).isNull()) {
        return nullptr;
    }
    const Value& v = o->info().*member;
    return o->broker().make<ArrayObject>(v.elementType(), v.elements())->handle();
}

template <class T>
CMPIStatus setField(CMPIError* er, T ErrorInfo::*member, T value) {
    ErrorObject* o = self(er, nullptr);
    if (o == nullptr) {
        return status(CMPI_RC_ERR_INVALID_HANDLE);
    }
    o->info().*member = value;
    return status(CMPI_RC_OK);
}

CMPIStatus setText(CMPIError* er, std::string ErrorInfo::*member, const char* value) {
    return setField<std::string>(er, member, value ? value : "");
}

CMPIStatus setArray(CMPIError* er, Value ErrorInfo::*member, const CMPIArray* value) {
    CMPIValue v;
    v.array = const_cast<CMPIArray*>(value);
    Value copy;
    const CMPIrc rc = decodeValue(&v, CMPI_stringA, copy);
    return rc == CMPI_RC_OK ? setField(er, member, copy) : status(rc);
}

CMPIErrorType getErrorType(const CMPIError* er, CMPIStatus* rc) {
    return field(er, rc, &ErrorInfo::errorType, UnknownErrorType);
}
CMPIString* getOtherErrorType(const CMPIError* er, CMPIStatus* rc) {
    return text(er, rc, &ErrorInfo::otherErrorType);
}
CMPIString* getOwningEntity(const CMPIError* er, CMPIStatus* rc) {
    return text(er, rc, &ErrorInfo::owningEntity);
}
CMPIString* getMessageID(const CMPIError* er, CMPIStatus* rc) {
    return text(er, rc, &ErrorInfo::messageId);
}
CMPIString* getMessage(const CMPIError* er, CMPIStatus* rc) {
    return text(er, rc, &ErrorInfo::message);
}
CMPIErrorSeverity getPerceivedSeverity(const CMPIError* er, CMPIStatus* rc) {
    return field(er, rc, &ErrorInfo::severity, ErrorSevUnknown);
}
CMPIErrorProbableCause getProbableCause(const CMPIError* er, CMPIStatus* rc) {
    return field(er, rc, &ErrorInfo::probableCause, ErrorProbCauseUnknown);
}
CMPIString* getProbableCauseDescription(const CMPIError* er, CMPIStatus* rc) {
    return text(er, rc, &ErrorInfo::probableCauseDescription);
}
CMPIArray* getRecommendedActions(const CMPIError* er, CMPIStatus* rc) {
    return array(er, rc, &ErrorInfo::recommendedActions);
}
CMPIString* getErrorSource(const CMPIError* er, CMPIStatus* rc) {
    return text(er, rc, &ErrorInfo::errorSource);
}
CMPIErrorSrcFormat getErrorSourceFormat(const CMPIError* er, CMPIStatus* rc) {
    return field(er, rc, &ErrorInfo::errorSourceFormat, CMPIErrSrcUnknown);
}
CMPIString* getOtherErrorSourceFormat(const CMPIError* er, CMPIStatus* rc) {
    return text(er, rc, &ErrorInfo::otherErrorSourceFormat);
}
CMPIrc getCIMStatusCode(const CMPIError* er, CMPIStatus* rc) {
    return field(er, rc, &ErrorInfo::cimStatusCode, CMPI_RC_OK);
}
CMPIString* getCIMStatusCodeDescription(const CMPIError* er, CMPIStatus* rc) {
    return text(er, rc, &ErrorInfo::cimStatusCodeDescription);
}
CMPIArray* getMessageArguments(const CMPIError* er, CMPIStatus* rc) {
    return array(er, rc, &ErrorInfo::messageArguments);
}

CMPIStatus setErrorType(CMPIError* er, const CMPIErrorType et) {
    return setField(er, &ErrorInfo::errorType, et);
}
CMPIStatus setOtherErrorType(CMPIError* er, const char* oet) {
    return setText(er, &ErrorInfo::otherErrorType, oet);
}
CMPIStatus setProbableCauseDescription(CMPIError* er, const char* pcd) {
    return setText(er, &ErrorInfo::probableCauseDescription, pcd);
}
CMPIStatus setRecommendedActions(CMPIError* er, const CMPIArray* ra) {
    return setArray(er, &ErrorInfo::recommendedActions, ra);
}
CMPIStatus setErrorSource(CMPIError* er, const char* es) {
    return setText(er, &ErrorInfo::errorSource, es);
}
CMPIStatus setErrorSourceFormat(CMPIError* er, const CMPIErrorSrcFormat esf) {
    return setField(er, &ErrorInfo::errorSourceFormat, esf);
}
CMPIStatus setOtherErrorSourceFormat(CMPIError* er, const char* oesf) {
    return setText(er, &ErrorInfo::otherErrorSourceFormat, oesf);
}
CMPIStatus setCIMStatusCodeDescription(CMPIError* er, const char* scd) {
    return setText(er, &ErrorInfo::cimStatusCodeDescription, scd);
}
CMPIStatus setMessageArguments(CMPIError* er, CMPIArray* values) {
    return setArray(er, &ErrorInfo::messageArguments, values);
}

CMPIErrorFT g_table = {CMPICurrentVersion,
                       release,
                       clone,
                       getErrorType,
                       getOtherErrorType,
                       getOwningEntity,
                       getMessageID,
                       getMessage,
                       getPerceivedSeverity,
                       getProbableCause,
                       getProbableCauseDescription,
                       getRecommendedActions,
                       getErrorSource,
                       getErrorSourceFormat,
                       getOtherErrorSourceFormat,
                       getCIMStatusCode,
                       getCIMStatusCodeDescription,
                       getMessageArguments,
                       setErrorType,
                       setOtherErrorType,
                       setProbableCauseDescription,
                       setRecommendedActions,
                       setErrorSource,
                       setErrorSourceFormat,
                       setOtherErrorSourceFormat,
                       setCIMStatusCodeDescription,
                       setMessageArguments};

}  // namespace

ErrorObject::ErrorObject(Broker& broker, ErrorInfo info)
    : Object(broker), m_face{static_cast<Object*>(this), &g_table}, m_info(std::move(info)) {}

bool ErrorObject::ownsTable(const void* ft) { return ft == &g_table; }

}  // namespace cmpihost::detail
