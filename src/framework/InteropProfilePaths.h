// Object paths of the object manager's own registered-profile instances
// (class PG_RegisteredProfile in the interop namespace) whose InstanceID is
// "SNIA+SMI-S+1.5.0" and "SNIA+Server+1.5.0". The CMPI adapter looks them up
// once at initialisation, before any request is served, and writes them here;
// afterwards they are only read. An empty class name means "not found": the
// object manager has no such profile and nothing points to it.
//
// Defined in the framework so that the plug-ins and the adapter link against
// one copy.
#ifndef VEX_FRAMEWORK_INTEROPPROFILEPATHS_H
#define VEX_FRAMEWORK_INTEROPPROFILEPATHS_H

#include "framework/CIMObjectPath.h"

namespace vex::cim::adap::cmpi {

extern vex::cim::fwf::CIMObjectPath g_cimPGSMIS5RegProfObjPath;
extern vex::cim::fwf::CIMObjectPath g_cimPGServer5RegProfObjPath;

}  // namespace vex::cim::adap::cmpi

#endif
