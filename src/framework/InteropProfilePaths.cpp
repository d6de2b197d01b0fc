#include "framework/InteropProfilePaths.h"

namespace vex::cim::adap::cmpi {

vex::cim::fwf::CIMObjectPath g_cimPGSMIS5RegProfObjPath;
vex::cim::fwf::CIMObjectPath g_cimPGServer5RegProfObjPath;

}  // namespace vex::cim::adap::cmpi
