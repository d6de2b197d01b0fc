#include "providers/storage/ControllerMethod.h"

#include "controller/VexFSAInterface.h"
#include "platform/Tkz.h"

namespace vex::cim::fwf {

namespace {

constexpr unsigned int kNoControllerInterface = 5;
constexpr unsigned int kRoutineThrew = 8;

void logFailure(const std::string& methodName, const CIMObjectPath& path) {
    TkzLogMsg(TKZ_LOG_ERROR, "%s :: Method %s failed on %s.", "invokeMethod", methodName.c_str(),
              path.getClassName().c_str());
}

}  // namespace

unsigned int invokeControllerRoutine(const CIMObjectPath& path, const std::string& methodName,
                                     const CIMMethodParam& in, CIMMethodParam& out) {
    VexFSAInterface* fsa = VexFSAInterface::getInstance();
    if (fsa == nullptr) {
        TkzLogMsg(TKZ_LOG_ERROR, "%s :: Method %s failed on %s, could not retrieve cachepointer.",
                  "invokeMethod", methodName.c_str(), path.getClassName().c_str());
        return kNoControllerInterface;
    }
    unsigned int result = kRoutineThrew;
    try {
        result = fsa->execute(path, methodName, in, out);
    } catch (...) {
        logFailure(methodName, path);
        return kRoutineThrew;
    }
    if (result != 0) {
        logFailure(methodName, path);
    }
    return result;
}

}  // namespace vex::cim::fwf
