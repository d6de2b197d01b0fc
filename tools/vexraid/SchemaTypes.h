// The CMPI type a value of a MOF-declared property or parameter has: a
// string with an EmbeddedInstance qualifier travels as an instance.
#ifndef VEXRAID_SCHEMATYPES_H
#define VEXRAID_SCHEMATYPES_H

#include <cmpidt.h>

#include "MofModel.h"

namespace vexraid {

CMPIType cmpiTypeOf(const vex::mof::MofType& type, bool embeddedInstance = false);

inline CMPIType cmpiTypeOf(const vex::mof::Property& property) {
    return cmpiTypeOf(property.type, !property.embeddedInstance().empty());
}

}  // namespace vexraid

#endif
