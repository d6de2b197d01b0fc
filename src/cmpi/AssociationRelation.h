// Whether a source class takes part in an association class: it is one of
// the association's end classes by name (ignoring case), or - for an end
// class of the CIM schema ("CIM_...") - the object manager says the source
// class is a subclass of it.
#ifndef VEX_CMPI_ASSOCIATIONRELATION_H
#define VEX_CMPI_ASSOCIATIONRELATION_H

#include <cmpidt.h>
#include <cmpift.h>

#include <string>

#include "framework/CIMObjectPath.h"
#include "framework/FrameworkFacade.h"

namespace vex::cim::adap::cmpi {

// False as well when `assocClass` is not a registered association.
bool isRelatedAssociation(fwf::FrameworkFacade& facade, const fwf::CIMObjectPath& source,
                          const std::string& assocClass, const CMPIBroker* broker);

}  // namespace vex::cim::adap::cmpi

#endif
