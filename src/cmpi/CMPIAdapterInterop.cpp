// The object manager's own registered profiles. Our profile associations
// point from the provider's profiles to the object manager's SMI-S and Server
// profiles, so their paths are looked up once, at initialisation, in the
// interop namespace and kept in the two globals the plug-ins read. The class
// looked for, PG_RegisteredProfile, is OpenPegasus' own, so it is looked for
// in OpenPegasus' interop namespace whichever object manager loaded us (sfcb
// has no such class: nothing is found there).
#include <string>

#include "cmpi/CMPIAdapter.h"
#include "cmpi/CMPIHelper.h"
#include "cmpi/CmpiCalls.h"
#include "framework/CIMException.h"
#include "framework/CIMNamespaces.h"
#include "framework/InteropProfilePaths.h"

namespace vex::cim::adap::cmpi {

namespace {

constexpr const char* kSmis15Profile = "SNIA+SMI-S+1.5.0";
constexpr const char* kServer15Profile = "SNIA+Server+1.5.0";

CMPIEnumeration* enumerateProfileNames(const CMPIBroker* broker, const CMPIContext* ctx,
                                       const CMPIObjectPath* classPath) {
    if (broker == nullptr || broker->bft == nullptr ||
        broker->bft->enumerateInstanceNames == nullptr) {
        return nullptr;
    }
    CMPIStatus rc = calls::status(CMPI_RC_OK);
    CMPIEnumeration* names = broker->bft->enumerateInstanceNames(broker, ctx, classPath, &rc);
    bool usable = calls::ok(rc) && names != nullptr && names->ft != nullptr &&
                  names->ft->hasNext != nullptr && names->ft->getNext != nullptr;
    return usable ? names : nullptr;
}

// Stores the path when one of its string keys names one of the two profiles.
void rememberProfile(const fwf::CIMObjectPath& path) {
    for (const fwf::CIMProperty& key : path.getKeyBindings()) {
        const auto values = key.getStringValue().getValues();
        if (key.getType() != fwf::CIM_STRING || values.empty()) {
            continue;
        }
        if (values.front() == kSmis15Profile) {
            g_cimPGSMIS5RegProfObjPath = path;
        } else if (values.front() == kServer15Profile) {
            g_cimPGServer5RegProfObjPath = path;
        }
    }
}

void walkProfileNames(const CMPIEnumeration* names) {
    CMPIStatus rc = calls::status(CMPI_RC_OK);
    while (names->ft->hasNext(names, &rc) != 0 && calls::ok(rc)) {
        CMPIData data = names->ft->getNext(names, &rc);
        if (!calls::ok(rc) || data.type != CMPI_ref || data.value.ref == nullptr) {
            continue;
        }
        try {
            fwf::CIMObjectPath path;
            CMPIHelper::CMPIObjectPathToFrameworkObjectPath(data.value.ref, true, path);
            rememberProfile(path);
        } catch (const fwf::CIMException&) {
            // An unreadable name is not one of ours; go on with the next.
        }
    }
}

}  // namespace

void CMPIAdapter::getPegasusSMISProfRegObjPaths() {
    TkzLogMsg(TKZ_LOG_INFO, "Initializing the PG_* object paths for SMI-S Registered Profiles");
    const CMPIBroker* broker = getBroker();
    CMPIObjectPath* classPath =
        calls::newObjectPath(broker, fwf::kInteropNameSpace, "PG_RegisteredProfile");
    if (classPath == nullptr) {
        TkzLogMsg(TKZ_LOG_ERROR, "Failed to create association class name object path");
        return;
    }
    TkzLogMsg(TKZ_LOG_DEBUG, "%s - created obj path", "getPegasusSMISProfRegObjPaths");
    const CMPIEnumeration* names = enumerateProfileNames(broker, getContext(), classPath);
    if (names != nullptr) {
        walkProfileNames(names);
    }
}

}  // namespace vex::cim::adap::cmpi
