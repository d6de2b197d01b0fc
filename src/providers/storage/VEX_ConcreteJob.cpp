#include "providers/storage/VEX_ConcreteJob.h"

#include "controller/VexFSAInterface.h"
#include "framework/PluginsManager.h"
#include "platform/Tkz.h"
#include "providers/storage/CompletedJobRecord.h"

namespace vex::cim::fwf {

namespace {

constexpr unsigned int kStateChangeFailed = 3;
// An event kind that jobs do not indicate.
constexpr int kIgnoredJobEvent = 4;

const char* const kJobClass = kCachedClasses[kConcreteJob].className;

unsigned int notSupported(const std::string& methodName) {
    TkzLogMsg(TKZ_LOG_ERROR, "%s :: Method %s not supported on %s.", "invokeMethod",
              methodName.c_str(), kJobClass);
    return kStateChangeFailed;
}

unsigned int failed(const std::string& methodName) {
    TkzLogMsg(TKZ_LOG_ERROR, "%s :: Method %s failed on %s.", "invokeMethod", methodName.c_str(),
              kJobClass);
    return kStateChangeFailed;
}

}  // namespace

unsigned int VEX_ConcreteJob::invokeMethod(const CIMObjectPath& path, const std::string& methodName,
                                           const CIMMethodParam& in, CIMMethodParam& out) {
    if (methodName != "RequestStateChange") {
        return notSupported(methodName);
    }
    VexFSAInterface* fsa = VexFSAInterface::getInstance();
    if (fsa == nullptr || fsa->execute(path, methodName, in, out) != 0) {
        return failed(methodName);
    }
    return 0;
}

int VEX_ConcreteJob::getKeysFromEventKeys(std::vector<CIMProperty>& eventKeys,
                                          std::vector<CIMProperty>& classKeys) {
    TkzLogMsg(TKZ_LOG_DEBUG, "Enter VEX_ConcreteJob :: getKeysFromEventKeys()");
    for (const CIMProperty& key : eventKeys) {
        if (key.getName() == "InstanceID") {
            classKeys.assign(1, key);
            return 0;
        }
    }
    TkzLogMsg(TKZ_LOG_DEBUG, "Exit VEX_ConcreteJob :: getKeysFromEventKeys() with error");
    return 1;
}

void VEX_ConcreteJob::EventNotify(_eVEXObjectType, _eVEXEventType eventType, std::string,
                                  std::vector<CIMProperty>& keys, std::vector<CIMProperty>& changed) {
    TkzLogMsg(TKZ_LOG_DEBUG, "VEX_ConcreteJob :: JOB Indication received !!");
    if (static_cast<int>(eventType) == kIgnoredJobEvent) {
        return;
    }
    if (eventType == VEX_EVENT_DELETED) {
        std::vector<CIMProperty> last = keys;  // the job's identity, then its last state
        last.insert(last.end(), changed.begin(), changed.end());
        pushCompletedJobObjects(last);
    }
    sendLifecycleIndication(eventType, keys);
}

void VEX_ConcreteJob::pushCompletedJobObjects(const std::vector<CIMProperty>& properties) {
    PluginsManager* manager = PluginsManager::getInstance();
    AbstractProviderPlugin* completedJobs = manager != nullptr ? manager->getPlugin("vex_completedjob") : nullptr;
    if (completedJobs == nullptr) {
        TkzLogMsg(TKZ_LOG_ERROR, "Failed to get plugin for Completed Job Object");
        return;
    }
    completedJobs->pushCompletedJobObject(completedJobRecord(properties));
}

}  // namespace vex::cim::fwf
