// The process thread: each wake-up takes the pending refresh request and
// rebuilds the cache.
#include "controller/VexCacheManager.h"
#include "controller/VexFSAInterface.h"
#include "events/EventSettings.h"
#include "events/FsaIfEventManager.h"
#include "framework/VexObjectType.h"

namespace vex::cim::fwf {

void* FsaIfEventManager::fsaEventProcessThread(void*) {
    TkzTrace("Entering fsaEventProcessThread");
    if (FsaIfEventManager* manager = s_instance.load()) {
        manager->processLoop();
    }
    TkzTrace("Exiting fsaEventProcessThread");
    return nullptr;
}

// The record processed is the last one popped; a wake-up that finds the
// queue empty processes the previous record again.
void FsaIfEventManager::processLoop() {
    uPollEvent event{};
    while (!flagTermThread.load()) {
        TkzWaitOnEvent(m_eventObject);
        while (popEvent(event) == 0) {
            TkzLogMsg(TKZ_LOG_INFO, "[EventProcesr]Received event AdapterID:%d-EventType:%X",
                      static_cast<int>(event.AdapterID), event.EventType);
        }
        fsaProcessEvent(event);
    }
}

void FsaIfEventManager::fsaProcessEvent(const uPollEvent& event) {
    if (m_eventProcessorMutex == nullptr) {
        TkzLogMsg(TKZ_LOG_DEBUG,
                  "[AFAIF] Event processor mutex is not initialized! can not proceed with processing event");
        return;
    }
    if (flagTermThread.load()) {
        TkzLogMsg(TKZ_LOG_DEBUG, "[AFAIF] Event processor thread is terminating");
        return;
    }
    m_lastUpdateTime = std::time(nullptr);
    if ((event.EventType & FSA_POLL_REFRESH) != 0 && !eventUpdateCache(false)) {
        TkzLogMsg(TKZ_LOG_ERROR, "Failed to update whole cache for FSA_EM_CONFIG_CHANGE");
    }
    if ((event.EventType & FSA_POLL_CONFIG_CHANGE) != 0 && !eventUpdateCache(true)) {
        TkzLogMsg(TKZ_LOG_ERROR, "Failed to update whole cache for FSA_EM_CONFIG_CHANGE");
    }
    if (events::lifecycleIndicationsEnabled()) {
        compareAllObjects();
    }
}

bool FsaIfEventManager::eventUpdateCache(bool configChange) {
    try {
        VexCacheManager::initCacheUpdate();
        VexFSAInterface* fsa = VexFSAInterface::getInstance();
        const unsigned int status = fsa != nullptr ? fsa->initialize(false, false, true, configChange) : FSAIF_FAIL;
        if (status != FSAIF_SUCCESS) {
            TkzLogMsg(TKZ_LOG_ERROR, "Failed to update whole cache");
            VexCacheManager::exitCacheUpdate();
            return false;
        }
        VexCacheManager::exitCacheUpdate();
        if (!updateSMISsettingsInCache()) {
            TkzLogMsg(TKZ_LOG_ERROR, "Failed to update the SMIS cached setting");
        }
        return true;
    } catch (...) {
        TkzLogMsg(TKZ_LOG_ERROR, "Exception........");
        return true;
    }
}

// Setting objects are made by clients, not read from the controllers: each
// rebuild carries them over from the previous repository.
bool FsaIfEventManager::updateSMISsettingsInCache() {
    try {
        VexCacheManager* fresh = VexCacheManager::getInstance(true);
        VexCacheManager* previous = VexCacheManager::getInstance(false);
        if (fresh == nullptr || previous == nullptr) {
            TkzLogMsg(TKZ_LOG_ERROR, "Failed to acquire Cache Manager Handles!");
            return false;
        }
        for (const _eVEXObjectType type : {VEX_OBJ_VOLUME_SETTING, VEX_OBJ_PRIMORDIAL_SETTING, VEX_OBJ_CONCRETE_SETTING}) {
            fresh->deleteObjectInstance(type, {});
            std::vector<CIMInstance> old;
            if (previous->getRepositoryObject(type, "", {}, false, old) != VEX_CM_SUCCESS) {
                TkzLogMsg(TKZ_LOG_ERROR, "Failed to get old adapter instances");
            }
            for (const CIMInstance& instance : old) {
                if (fresh->addObjInstance(type, instance) != VEX_CM_SUCCESS) {
                    TkzLogMsg(TKZ_LOG_ERROR, "Failed to update an setting object:%d", static_cast<int>(type));
                }
            }
        }
        return true;
    } catch (...) {
        TkzLogMsg(TKZ_LOG_ERROR, "Exception..Failed to get Cache Handles");
        return false;
    }
}

void FsaIfEventManager::fsaExpandedContainerEvent(const uPollEvent&) {
    TkzTrace("ENTER-SMIS::fsaExpandedContainerEvent");
    TkzTrace("EXIT-SMIS::fsaExpandedContainerEvent");
}

void FsaIfEventManager::fsaExpandedScsiEvent(const uPollEvent&) {
    TkzTrace("ENTER-SMIS::fsaExpandedScsiEvent");
    TkzTrace("EXIT-SMIS::fsaExpandedScsiEvent");
}

void FsaIfEventManager::fsaExpandedFirmwareEvent(const uPollEvent&) {
    TkzTrace("ENTER-SMIS::fsaExpandedFirmwareEvent");
    TkzTrace("EXIT-SMIS::fsaExpandedFirmwareEvent");
}

}  // namespace vex::cim::fwf
