#include "ResultObject.h"

#include "Broker.h"
#include "ErrorObject.h"
#include "InstanceObject.h"
#include "PathObject.h"
#include "Status.h"
#include "ValueCodec.h"

namespace cmpihost::detail {

namespace {

CMPIStatus release(CMPIResult* rslt) { return Object::release(rslt); }

// A result belongs to its request; it cannot outlive it.
CMPIResult* clone(const CMPIResult*, CMPIStatus* rc) {
    setStatus(rc, CMPI_RC_ERR_NOT_SUPPORTED);
    return nullptr;
}

CMPIStatus returnData(const CMPIResult* rslt, const CMPIValue* value, const CMPIType type) {
    ResultObject* o = objectOf<ResultObject>(rslt);
    if (o == nullptr) {
        return status(CMPI_RC_ERR_INVALID_HANDLE);
    }
    Value v;
    const CMPIrc rc = decodeValue(value, type, v);
    if (rc == CMPI_RC_OK) {
        o->addData(std::move(v));
    }
    return status(rc);
}

CMPIStatus returnInstance(const CMPIResult* rslt, const CMPIInstance* inst) {
    ResultObject* o = objectOf<ResultObject>(rslt);
    InstanceObject* i = objectOf<InstanceObject>(inst);
    if (o == nullptr || i == nullptr) {
        return status(CMPI_RC_ERR_INVALID_HANDLE);
    }
    o->addInstance(i->instance());
    return status(CMPI_RC_OK);
}

CMPIStatus returnObjectPath(const CMPIResult* rslt, const CMPIObjectPath* ref) {
    ResultObject* o = objectOf<ResultObject>(rslt);
    PathObject* p = objectOf<PathObject>(ref);
    if (o == nullptr || p == nullptr) {
        return status(CMPI_RC_ERR_INVALID_HANDLE);
    }
    o->addPath(p->path());
    return status(CMPI_RC_OK);
}

CMPIStatus returnDone(const CMPIResult* rslt) {
    ResultObject* o = objectOf<ResultObject>(rslt);
    if (o == nullptr) {
        return status(CMPI_RC_ERR_INVALID_HANDLE);
    }
    o->done();
    return status(CMPI_RC_OK);
}

CMPIStatus returnError(const CMPIResult* rslt, const CMPIError* er) {
    ResultObject* o = objectOf<ResultObject>(rslt);
    ErrorObject* e = objectOf<ErrorObject>(er);
    if (o == nullptr || e == nullptr) {
        return status(CMPI_RC_ERR_INVALID_HANDLE);
    }
    o->addError(e->info());
    return status(CMPI_RC_OK);
}

// OpenPegasus 2.14: a result can be neither released nor cloned by the provider.
CMPIResultFT g_full = {CMPICurrentVersion, nullptr,          nullptr,    returnData,
                       returnInstance,     returnObjectPath, returnDone, returnError};
// sfcb 1.4 has no returnError.
CMPIResultFT g_sfcb = {CMPICurrentVersion, release,          clone,      returnData,
                       returnInstance,     returnObjectPath, returnDone, nullptr};

}  // namespace

ResultObject::ResultObject(Broker& broker, Response& response)
    : Object(broker),
      m_face{static_cast<Object*>(this), broker.flavor() == Flavor::Sfcb14 ? &g_sfcb : &g_full},
      m_response(response) {}

bool ResultObject::ownsTable(const void* ft) { return ft == &g_full || ft == &g_sfcb; }

void ResultObject::noteReturn() {
    if (m_response.doneCount > 0) {
        m_response.returnedAfterDone = true;
    }
}

void ResultObject::addData(Value v) {
    std::lock_guard<std::mutex> lock(m_mutex);
    noteReturn();
    m_response.data.push_back(std::move(v));
}

void ResultObject::addInstance(Instance i) {
    std::lock_guard<std::mutex> lock(m_mutex);
    noteReturn();
    m_response.instances.push_back(std::move(i));
}

void ResultObject::addPath(ObjectPath p) {
    std::lock_guard<std::mutex> lock(m_mutex);
    noteReturn();
    m_response.paths.push_back(std::move(p));
}

void ResultObject::addError(ErrorInfo e) {
    std::lock_guard<std::mutex> lock(m_mutex);
    m_response.errors.push_back(std::move(e));
}

void ResultObject::done() {
    std::lock_guard<std::mutex> lock(m_mutex);
    ++m_response.doneCount;
}

}  // namespace cmpihost::detail
