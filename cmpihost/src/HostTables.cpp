// Recognising host-made handles by their function table.
#include "ArgsObject.h"
#include "ArrayObject.h"
#include "ContextObject.h"
#include "DateTimeObject.h"
#include "EnumerationObject.h"
#include "ErrorObject.h"
#include "InstanceObject.h"
#include "Object.h"
#include "PathObject.h"
#include "ResultObject.h"
#include "SelectExpObject.h"
#include "StringObject.h"

namespace cmpihost::detail {

bool isHostTable(const void* ft) {
    return StringObject::ownsTable(ft) || ArrayObject::ownsTable(ft) ||
           PathObject::ownsTable(ft) || InstanceObject::ownsTable(ft) ||
           ArgsObject::ownsTable(ft) || EnumerationObject::ownsTable(ft) ||
           DateTimeObject::ownsTable(ft) || ContextObject::ownsTable(ft) ||
           ResultObject::ownsTable(ft) || ErrorObject::ownsTable(ft) ||
           SelectExpObject::ownsTable(ft);
}

}  // namespace cmpihost::detail
