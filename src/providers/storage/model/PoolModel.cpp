// The primordial pool of each controller (all the capacity of the drives that
// count), its view, and the capabilities of primordial and concrete pools.
#include "framework/PropertyBuilders.h"
#include "providers/storage/model/StorageModelTable.h"

namespace vex::cim::fwf::storage {

namespace {

constexpr unsigned short kOperationalOk = 2;
// CIM_StorageCapabilities.ElementType 5: StoragePool.
constexpr unsigned short kElementTypeStoragePool = 5;

void poolProperties(const ControllerLayout& c, const std::string& prefix, CIMInstance& pool) {
    put(pool, prefix + "ElementName", "Primordial");
    put(pool, prefix + "PoolID", c.system);
    putBool(pool, prefix + "Primordial", true);
    putU64(pool, prefix + "TotalManagedSpace", c.totalBytes);
    putU64(pool, prefix + "RemainingManagedSpace", c.remainingBytes);
}

// What the drives that count and are no spares allow: a mirror from two, a
// double-parity array from four.
std::size_t allocatableDrives(const ControllerLayout& c) {
    std::size_t n = 0;
    for (const DriveLayout& d : c.drives) {
        n += d.counts && d.spare == Spare::None ? 1 : 0;
    }
    return n;
}

}  // namespace

void buildPrimordialPools(CacheRecords& records, ModelSink& sink) {
    for (const ControllerLayout& c : layoutOf(records)) {
        CIMInstance& pool = sink.add();
        keyProperty(pool, "InstanceID", c.system);
        poolProperties(c, "", pool);
        putU16s(pool, "OperationalStatus", {kOperationalOk});
    }
}

void buildPrimordialPoolViews(CacheRecords& records, ModelSink& sink) {
    for (const ControllerLayout& c : layoutOf(records)) {
        CIMInstance& view = sink.add();
        keyProperty(view, "SPInstanceID", c.system);
        poolProperties(c, "SP", view);
    }
}

void buildPrimordialCapabilities(CacheRecords& records, ModelSink& sink) {
    for (const ControllerLayout& c : layoutOf(records)) {
        const std::size_t drives = allocatableDrives(c);
        CIMInstance& caps = sink.add();
        keyProperty(caps, "InstanceID", c.system + "_" + kCapabilitiesSuffix);
        put(caps, "ElementName", "Primordial pool capabilities of " + c.system);
        putU16(caps, "ElementType", kElementTypeStoragePool);
        putBool(caps, "NoSinglePointOfFailure", drives >= 2);
        putBool(caps, "NoSinglePointOfFailureDefault", false);
        putU16(caps, "PackageRedundancyMin", 0);
        putU16(caps, "PackageRedundancyMax", drives >= 4 ? 2 : drives >= 2 ? 1 : 0);
        putU16(caps, "DataRedundancyMin", 1);
        putU16(caps, "DataRedundancyMax", drives >= 2 ? 2 : 1);
        putU16(caps, "DataRedundancyDefault", 1);
    }
}

// The capabilities a concrete pool's record carries under "SC".
void buildConcreteCapabilities(CacheRecords& records, ModelSink& sink) {
    for (const CIMInstance& pool : records.of(VEX_OBJ_CONCRETE_POOL)) {
        if (pool.getPropertyByName("SCInstanceID") != nullptr) {
            copyPrefixed(pool, "SC", "InstanceID", sink.add());
        }
    }
}

}  // namespace vex::cim::fwf::storage
