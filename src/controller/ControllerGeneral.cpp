#include <storlib/SASConnector.h>

#include "controller/CimNames.h"
#include "controller/ControllerMapping.h"
#include "platform/Tkz.h"

namespace vex::cim::fwf::fsamap {

namespace {

using storlib::AdapterData;
using Row = PropertyRow<ControllerContext>;

template <auto Member>
constexpr RawValue (*A)(const ControllerContext&) = &fieldOf<ControllerContext, Member>;

const Row kGeneral[] = {
    {"CSPhysicalSlot", CIM_UINT32, PLAIN, A<&AdapterData::physicalSlot>},
    {"DASlotNumber", CIM_UINT32, PLAIN, A<&AdapterData::physicalSlot>},
    {"DADeviceID", CIM_STRING, VIEW_KEY,
     [](const ControllerContext& c) { return raw(formatText("%d_DA", c.index)); }},
    {"CSInstalledMemSize", CIM_UINT32, PLAIN, A<&AdapterData::installedMemoryMB>},
    {"CSCacheMemSize", CIM_UINT32, PLAIN, A<&AdapterData::cacheMemoryMB>},
    {"CSOemId", CIM_UINT32, PLAIN, A<&AdapterData::oemId>},
    {"CSNCQStatus", CIM_BOOLEAN, PLAIN, A<&AdapterData::ncqEnabled>},
    {"CSControllerTemparature", CIM_SINT32, PLAIN, A<&AdapterData::temperatureC>},
    {"CSControllerTemparatureLo", CIM_SINT32, PLAIN, A<&AdapterData::temperatureLowC>},
    {"CSControllerTemparatureHi", CIM_SINT32, PLAIN, A<&AdapterData::temperatureHighC>},
    {"CSDefLDTaskPriority", CIM_UINT32, PLAIN, A<&AdapterData::defaultTaskPriority>},
    {"CSPerfMode", CIM_UINT32, PLAIN, A<&AdapterData::performanceMode>},
    {"CSFuncMode", CIM_UINT32, PLAIN, A<&AdapterData::functionalMode>},
    {"CSSuppPerfMode", CIM_UINT32, PLAIN, A<&AdapterData::supportedPerformanceModes>},
    {"CSStayAwakeStatus", CIM_BOOLEAN, PLAIN, A<&AdapterData::stayAwakeActive>},
    {"CSStayAwakeStart", CIM_UINT32, PLAIN, A<&AdapterData::stayAwakeStartHour>},
    {"CSStayAwakeStop", CIM_UINT32, PLAIN, A<&AdapterData::stayAwakeStopHour>},
    {"CSStayAwakeDaysSupported", CIM_UINT32, PLAIN, A<&AdapterData::stayAwakeDaysSupported>},
    {"CSStayAwakeEnabledDays", CIM_UINT32, PLAIN, A<&AdapterData::stayAwakeEnabledDays>},
    {"CSStayAwakeMainEnabled", CIM_BOOLEAN, PLAIN, A<&AdapterData::stayAwakeMainEnabled>},
    {"CSInternalSpinUpLimit", CIM_UINT32, PLAIN, A<&AdapterData::internalSpinUpLimit>},
    {"CSExtSpinUpLimit", CIM_UINT32, PLAIN, A<&AdapterData::externalSpinUpLimit>},
    {"CSMaxNumDrives", CIM_UINT32, PLAIN, A<&AdapterData::maxIDs>},
    {"CSNumDrives", CIM_UINT32, PLAIN, A<&AdapterData::numDrives>},
    {"CSFastTierBgCoherencyCheckStatus", CIM_BOOLEAN, PLAIN, A<&AdapterData::fastTierBgCoherencyCheck>},
    {"CSTierRCReadCachePoolSizeSupported", CIM_UINT64, PLAIN, A<&AdapterData::fastTierPoolSizeSupportedMB>},
    {"CSNoOfTRCDrives", CIM_UINT32, PLAIN, A<&AdapterData::numFastTierDrives>},
    {"CSNoOfMaxTRCDrives", CIM_UINT32, PLAIN, A<&AdapterData::maxFastTierDrives>},
    {"CSTierRCReadCachePoolSize", CIM_UINT64, PLAIN, A<&AdapterData::fastTierPoolSizeMB>},
    {"CSSASWriteCacheMode", CIM_UINT32, PLAIN, A<&AdapterData::sasWriteCachePolicy>},
    {"CSSATAWriteCacheMode", CIM_UINT32, PLAIN, A<&AdapterData::sataWriteCachePolicy>},
    {"CSAutomaticFailOver", CIM_BOOLEAN, PLAIN, A<&AdapterData::automaticFailover>},
    {"PRDName", CIM_STRING, VIEW_KEY, A<&AdapterData::model>},
    {"CDModel", CIM_STRING, PLAIN, A<&AdapterData::model>},
    {"PRDIdentifyingNumber", CIM_STRING, VIEW_KEY, A<&AdapterData::serialNumber>},
    {"CDSerialNumber", CIM_STRING, PLAIN, A<&AdapterData::serialNumber>},
    {"CDSKU", CIM_STRING, PLAIN, A<&AdapterData::sku>},
    {"PRDVendor", CIM_STRING, VIEW_KEY, [](const ControllerContext&) { return raw(kProductVendor); }},
    {"PRDVersion", CIM_STRING, VIEW_KEY, A<&AdapterData::hardwareRevision>},
    {"CDCanBeFRUed", CIM_BOOLEAN, PLAIN, A<&AdapterData::canBeFRUed>},
    {"CSStatsDataCollectionEnabled", CIM_BOOLEAN, PLAIN, A<&AdapterData::statisticsEnabled>},
    {"CSControllerWWN", CIM_STRING, PLAIN, A<&AdapterData::wwn>},
    {"CSGlobalPhysicalDevicesWriteCachePolicy", CIM_UINT32, PLAIN, A<&AdapterData::globalDriveWriteCachePolicy>},
    {"CSGlobalMaxSASPhyLinkRate", CIM_UINT32, PLAIN, A<&AdapterData::globalMaxSASPhyLinkRate>},
    {"CSMaxSimpleVolume", CIM_UINT32, PLAIN, A<&AdapterData::maxSimpleVolumes>},
    {"CSControllerModeSupportsFastTier", CIM_BOOLEAN, PLAIN, A<&AdapterData::supportsFastTier>},
    {"CSTierRCCacheFetchRate", CIM_UINT32, PLAIN, A<&AdapterData::fastTierFetchRate>},
    {"CSCopyBack", CIM_BOOLEAN, PLAIN, A<&AdapterData::copyBackEnabled>},
    {"CSFastTierDirtyStatus", CIM_BOOLEAN, PLAIN, A<&AdapterData::fastTierDirty>},
};

}  // namespace

void readFsaGeneralInfo(const ControllerContext& controller, fsaCIMInstanceWrapper& instance) {
    instance.addRows(kGeneral, controller);
    updateSASPhyInfo(controller, instance);
    if (storlib::FilterCollection(*controller.adapter, storlib::SASConnector::kClassName).empty()) {
        TkzLogMsg(TKZ_LOG_DEBUG, "[AFAIF] SAS connector map not supported!");
    } else {
        updateSasConnectorInformation(controller, instance);
    }
    insertFeatInfo(controller, instance);
    readAdapterPCIIds(controller, instance);
}

}  // namespace vex::cim::fwf::fsamap
