// CachedRecordClass: the derivation base of the device classes computed from
// the records of one object-cache type: the software, endpoints and settings
// of a controller, the package, firmware, ports and endpoints of a drive, the
// fans, power supplies, sensors and slots of an enclosure. The cache keeps
// these only as parts of a bigger record (a controller, a drive, an
// enclosure services element); a row of data names the record type and the
// function that maps one record to the zero or more instances of the class.
//
// Reads only: a get compares the request's keys with those of the derived
// instances (unknown, missing or foreign keys find nothing); modifications
// are refused, since the controller takes no changes through these classes.
// A family member is one line over framework/DerivedInstancePlugin.h.
#ifndef VEX_PROVIDERS_DEVICE_CACHEDRECORDCLASS_H
#define VEX_PROVIDERS_DEVICE_CACHEDRECORDCLASS_H

#include <string>
#include <vector>

#include "framework/AbstractCachedInstanceProviderPlugin.h"

namespace vex::cim::fwf {

// Appends the instances one cache record stands for (properties and keys
// only; the plug-in gives them their address).
using DeriveFn = void (*)(const CIMInstance& record, std::vector<CIMInstance>& out);

struct DerivedInstanceRow {
    const char* className;   // the CIM class reported
    _eVEXObjectType source;  // the cache object type read
    DeriveFn derive;
};

class CachedRecordClass : public AbstractCachedInstanceProviderPlugin {
public:
    explicit CachedRecordClass(const DerivedInstanceRow& row) : m_row(row) {}

    _eVEXObjectType getViewClass() override { return m_row.source; }
    std::string getClassPrefix() override { return std::string(); }
    std::string getConcreteClassName() override { return m_row.className; }

    void getCIMInstance(CIMObjectPath& path, std::vector<CIMInstance>& out) override;
    void enumerateInstances(CIMObjectPath& classPath, std::vector<CIMInstance>& out,
                            bool flag) override;
    void enumerateInstanceNames(CIMObjectPath& classPath,
                                std::vector<CIMObjectPath>& out) override;
    void modifyInstance(CIMObjectPath& path, CIMInstance& newValues,
                        std::vector<std::string>& propertyList) override;

private:
    const DerivedInstanceRow& m_row;
};

}  // namespace vex::cim::fwf

#endif
