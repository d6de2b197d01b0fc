#include "SchemaTypes.h"

#include "TypedValue.h"

namespace vexraid {

CMPIType cmpiTypeOf(const vex::mof::MofType& type, bool embeddedInstance) {
    CMPIType base = CMPI_null;
    if (type.isRef) {
        base = CMPI_ref;
    } else if (embeddedInstance) {
        base = CMPI_instance;
    } else if (auto known = typeFromName(type.name)) {
        base = *known;
    }
    return static_cast<CMPIType>(type.isArray ? (base | CMPI_ARRAY) : base);
}

}  // namespace vexraid
