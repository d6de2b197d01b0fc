// Requests to the method MI.
#include "Dispatch.h"

namespace cmpihost {

using detail::dispatch;
using detail::Request;

Response Host::invokeMethod(const ObjectPath& path, const OptString& method, const NamedValues& in,
                            const CallOptions& o) {
    return dispatch<CMPIMethodMI>(
        *m_broker, m_module.get(), MIKind::Method, o, path.nameSpace,
        [&](Request& r, CMPIMethodMI* mi, const CMPIMethodMIFT& ft) {
            return ft.invokeMethod(mi, r.context(), r.result(), r.reference(path), r.text(method),
                                   r.inArgs(in), r.outArgs());
        });
}

}  // namespace cmpihost
