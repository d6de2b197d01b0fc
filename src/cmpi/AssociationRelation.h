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

// How a result-class filter reads for one association class. Clients name
// DMTF classes ("CIM_ComputerSystem"); an association compares its end
// classes with the filter by name. The filter for the association is
// written to `endFilter`: the filter itself when an end class's name
// contains it, else the one end class that derives from it (the object
// manager answers), or empty when ends on both sides derive from it (no
// filtering needed). False when no end class is named by or derives from the
// filter: the association has no result of that class.
bool resultClassFilter(fwf::FrameworkFacade& facade, const std::string& assocClass,
                       const fwf::CIMObjectPath& source, const std::string& resultClass,
                       const CMPIBroker* broker, std::string& endFilter);

}  // namespace vex::cim::adap::cmpi

#endif
