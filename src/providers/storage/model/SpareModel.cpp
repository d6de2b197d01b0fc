// The spares of the storage model: a dedicated redundancy set for each
// logical drive that has dedicated spares, a global one for each controller
// with global spares, and each controller's fail-over collection (every
// spare it can rebuild onto).
#include "providers/storage/model/StorageModelTable.h"

namespace vex::cim::fwf::storage {

namespace {

constexpr unsigned short kOk = 2;
// CIM_RedundancySet.TypeOfSet: 4 Sparing, 5 Limited Sparing.
constexpr unsigned short kSparing = 4, kLimitedSparing = 5;

bool servedByDedicatedSpare(const ControllerLayout& c, const std::string& pool) {
    for (const DriveLayout& d : c.drives) {
        for (const std::string& served : d.dedicatedTo) {
            if (served == pool && d.spare == Spare::Dedicated) {
                return true;
            }
        }
    }
    return false;
}

void setProperties(CIMInstance& set, const std::string& name, unsigned short type) {
    put(set, "ElementName", name);
    putU16s(set, "TypeOfSet", {type});
    putU16s(set, "OperationalStatus", {kOk});
}

}  // namespace

void buildDedicatedSets(CacheRecords& records, ModelSink& sink) {
    for (const ControllerLayout& c : layoutOf(records)) {
        for (const PoolLayout& pool : c.pools) {
            if (servedByDedicatedSpare(c, pool.id)) {
                CIMInstance& set = sink.add();
                keyProperty(set, "InstanceID", pool.id + "_" + kDedicatedSparesSuffix);
                setProperties(set, "Dedicated spares of " + pool.id, kLimitedSparing);
            }
        }
    }
}

void buildGlobalSets(CacheRecords& records, ModelSink& sink) {
    for (const ControllerLayout& c : layoutOf(records)) {
        if (c.hasGlobalSpare()) {
            CIMInstance& set = sink.add();
            keyProperty(set, "InstanceID", c.system + "_" + kGlobalSparesSuffix);
            setProperties(set, "Global spares of " + c.system, kSparing);
        }
    }
}

void buildFailOverCollections(CacheRecords& records, ModelSink& sink) {
    for (const ControllerLayout& c : layoutOf(records)) {
        CIMInstance& collection = sink.add();
        keyProperty(collection, "InstanceID", c.system + "_" + kFailOverSuffix);
        put(collection, "ElementName", "Fail-over drives of " + c.system);
    }
}

}  // namespace vex::cim::fwf::storage
