#include "PropertyFilter.h"

#include <algorithm>

#include "NameCompare.h"

namespace cmpihost::detail {

Response filteredAnswer(Response response, const PropertyList& properties, Flavor flavor) {
    if (flavor != Flavor::Pegasus214 || !properties) {
        return response;
    }
    const auto listed = [&properties](const NamedValue& p) {
        return std::any_of(properties->begin(), properties->end(),
                           [&p](const std::string& name) { return equalNames(name, p.name); });
    };
    for (Instance& instance : response.instances) {
        NamedValues kept;
        for (NamedValue& p : instance.properties) {
            if (listed(p)) kept.push_back(std::move(p));
        }
        instance.properties = std::move(kept);
    }
    return response;
}

}  // namespace cmpihost::detail
