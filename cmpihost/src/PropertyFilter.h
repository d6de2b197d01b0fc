// What the object manager does with the properties of an answer: OpenPegasus
// removes those outside the request's PropertyList (keys stay in the path);
// sfcb sends what the provider returned.
#ifndef CMPIHOST_SRC_PROPERTYFILTER_H
#define CMPIHOST_SRC_PROPERTYFILTER_H

#include "cmpihost/Host.h"

namespace cmpihost::detail {

Response filteredAnswer(Response response, const PropertyList& properties, Flavor flavor);

}  // namespace cmpihost::detail

#endif
