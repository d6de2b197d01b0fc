// CMPIBrokerEncFT: the factories of the encapsulated types and
// classPathIsA. New objects belong to the calling thread's arena.
#include "ArgsObject.h"
#include "ArrayObject.h"
#include "Broker.h"
#include "BrokerDiagnostics.h"
#include "BrokerTables.h"
#include "DateTimeObject.h"
#include "InstanceObject.h"
#include "PathObject.h"
#include "SelectExpObject.h"
#include "Status.h"
#include "StringObject.h"
#include "ValueCodec.h"

namespace cmpihost::detail {

namespace {

Broker* of(const CMPIBroker* mb, CMPIStatus* rc) {
    Broker* b = Broker::of(mb);
    setStatus(rc, b != nullptr ? CMPI_RC_OK : CMPI_RC_ERR_INVALID_HANDLE);
    return b;
}

CMPIInstance* newInstance(const CMPIBroker* mb, const CMPIObjectPath* op, CMPIStatus* rc) {
    Broker* b = of(mb, rc);
    PathObject* path = objectOf<PathObject>(op);
    if (b == nullptr || path == nullptr) {
        setStatus(rc, op == nullptr ? CMPI_RC_ERR_INVALID_PARAMETER : CMPI_RC_ERR_INVALID_HANDLE);
        return nullptr;
    }
    return b->make<InstanceObject>(Instance(path->path()))->handle();
}

CMPIObjectPath* newObjectPath(const CMPIBroker* mb, const char* ns, const char* cn,
                              CMPIStatus* rc) {
    Broker* b = of(mb, rc);
    return b ? b->make<PathObject>(ObjectPath(ns ? ns : "", cn ? cn : ""))->handle() : nullptr;
}

CMPIArgs* newArgs(const CMPIBroker* mb, CMPIStatus* rc) {
    Broker* b = of(mb, rc);
    return b ? b->make<ArgsObject>(NamedValues())->handle() : nullptr;
}

CMPIString* newStringFT(const CMPIBroker* mb, const char* data, CMPIStatus* rc) {
    Broker* b = of(mb, rc);
    return b ? newString(*b, data ? std::optional<std::string>(data) : std::nullopt) : nullptr;
}

CMPIArray* newArray(const CMPIBroker* mb, CMPICount size, CMPIType type, CMPIStatus* rc) {
    Broker* b = of(mb, rc);
    const CMPIType element = canonicalType(static_cast<CMPIType>(type & ~CMPI_ARRAY));
    if (b == nullptr) {
        return nullptr;
    }
    if (!isValueType(element)) {
        setStatus(rc, CMPI_RC_ERR_INVALID_DATA_TYPE);
        return nullptr;
    }
    std::vector<Value> elements(size, Value::null(element));
    return b->make<ArrayObject>(element, std::move(elements))->handle();
}

CMPIDateTime* newDateTime(const CMPIBroker* mb, CMPIStatus* rc) {
    Broker* b = of(mb, rc);
    return b ? b->make<DateTimeObject>(DateTime::now())->handle() : nullptr;
}

CMPIDateTime* newDateTimeFromBinary(const CMPIBroker* mb, CMPIUint64 binTime,
                                    CMPIBoolean interval, CMPIStatus* rc) {
    Broker* b = of(mb, rc);
    return b ? b->make<DateTimeObject>(DateTime::fromBinary(binTime, interval != 0))->handle()
             : nullptr;
}

CMPIDateTime* newDateTimeFromChars(const CMPIBroker* mb, const char* utcTime, CMPIStatus* rc) {
    Broker* b = of(mb, rc);
    std::optional<DateTime> parsed = utcTime ? DateTime::fromText(utcTime) : std::nullopt;
    if (b != nullptr && !parsed) {
        setStatus(rc, CMPI_RC_ERR_INVALID_PARAMETER);
    }
    return b && parsed ? b->make<DateTimeObject>(*parsed)->handle() : nullptr;
}

CMPISelectExp* newSelectExp(const CMPIBroker* mb, const char* query, const char* lang,
                            CMPIArray** projection, CMPIStatus* rc) {
    Broker* b = of(mb, rc);
    if (projection != nullptr) {
        *projection = nullptr;
    }
    if (b != nullptr && (query == nullptr || lang == nullptr)) {
        setStatus(rc, CMPI_RC_ERR_INVALID_QUERY);
        return nullptr;
    }
    return b ? b->make<SelectExpObject>(query, lang)->handle() : nullptr;
}

CMPIBoolean classPathIsA(const CMPIBroker* mb, const CMPIObjectPath* op, const char* className,
                         CMPIStatus* rc) {
    Broker* b = of(mb, rc);
    PathObject* path = objectOf<PathObject>(op);
    if (b == nullptr || path == nullptr || className == nullptr) {
        setStatus(rc, path == nullptr ? CMPI_RC_ERR_INVALID_HANDLE : CMPI_RC_ERR_INVALID_PARAMETER);
        return 0;
    }
    return b->classes().isA(path->path().className, className) ? 1 : 0;
}

using namespace diagnostics;

CMPIBrokerEncFT g_full = {CMPICurrentVersion,
                          newInstance,
                          newObjectPath,
                          newArgs,
                          newStringFT,
                          newArray,
                          newDateTime,
                          newDateTimeFromBinary,
                          newDateTimeFromChars,
                          newSelectExp,
                          classPathIsA,
                          toString,
                          isOfType,
                          getType,
                          getMessage,
                          logMessage,
                          trace,
                          newCMPIError,
                          openMessageFile,
                          closeMessageFile,
                          getMessage2};

// sfcb 1.4 leaves every CMPI 2.0 addition NULL.
CMPIBrokerEncFT g_sfcb = {CMPICurrentVersion,
                          newInstance,
                          newObjectPath,
                          newArgs,
                          newStringFT,
                          newArray,
                          newDateTime,
                          newDateTimeFromBinary,
                          newDateTimeFromChars,
                          newSelectExp,
                          classPathIsA,
                          toString,
                          isOfType,
                          getType,
                          getMessage,
                          logMessage,
                          trace,
                          nullptr,
                          nullptr,
                          nullptr,
                          nullptr};

}  // namespace

CMPIBrokerEncFT* brokerFactories(Flavor flavor) {
    return flavor == Flavor::Sfcb14 ? &g_sfcb : &g_full;
}

}  // namespace cmpihost::detail
