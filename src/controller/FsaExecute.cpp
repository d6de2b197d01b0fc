// VexFSAInterface::execute and modifyInstance: the two ways a request
// reaches the controllers.
#include <exception>

#include "controller/PropertySettings.h"
#include "controller/VexFSAInterface.h"

namespace vex::cim::fwf {

namespace {

// Runs a routine or a set function; a thrown code (21: no library handle)
// or exception becomes its result.
template <typename Call>
unsigned int guardedCall(const char* what, Call&& call) {
    try {
        return call();
    } catch (_FSAIF_Return code) {
        logFsaifError(code);
        return code;
    } catch (const std::exception& e) {
        TkzLogMsg(TKZ_LOG_ERROR, "%s: %s", what, e.what());
        return FSAIF_UNKNOWN_ERROR;
    } catch (...) {
        TkzLogMsg(TKZ_LOG_ERROR, "%s: unknown exception", what);
        return FSAIF_UNKNOWN_ERROR;
    }
}

}  // namespace

unsigned int VexFSAInterface::execute(const CIMObjectPath& path, const std::string& routine,
                                      const CIMMethodParam& in, CIMMethodParam& out) {
    const auto entry = m_routines.find(routine);
    if (entry == m_routines.end()) {
        return FSAIF_NOT_IMPL;
    }
    lockEventMutex();
    TkzMutexLock(storlibGuard);
    const unsigned int result =
        guardedCall(routine.c_str(), [&] { return entry->second.function(path, in, out); });
    if (result == FSAIF_SUCCESS && entry->second.refresh) {
        postRefreshEvent();
    }
    TkzMutexUnlock(storlibGuard);
    unlockEventMutex();
    return result;
}

unsigned int VexFSAInterface::modifyInstance(_eVEXObjectType type, const std::vector<CIMProperty>& keys,
                                             const std::vector<CIMProperty>& changes) {
    unsigned int result = FSAIF_SUCCESS;
    switch (type) {
    case VEX_OBJ_CONTROLLER:
        result = guardedCall("setAdapterProperties", [&] { return setAdapterProperties(keys, changes); });
        break;
    case VEX_OBJ_CONCRETE_POOL:
        result = guardedCall("setLogicalDiskProperties", [&] { return setLogicalDiskProperties(keys, changes); });
        break;
    case VEX_OBJ_PHYSICAL_DRIVE:
    case VEX_OBJ_STORAGE_VOLUME:
        return FSAIF_SUCCESS;
    default:
        return FSAIF_INVALID_PARAM;
    }
    lockEventMutex();
    postRefreshEvent();
    unlockEventMutex();
    return result;
}

}  // namespace vex::cim::fwf
