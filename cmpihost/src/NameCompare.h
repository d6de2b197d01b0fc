// Case-insensitive comparison of CIM names (classes, properties, keys,
// namespaces).
#ifndef CMPIHOST_SRC_NAMECOMPARE_H
#define CMPIHOST_SRC_NAMECOMPARE_H

#include <string>

namespace cmpihost::detail {

bool equalNames(const std::string& a, const std::string& b);
std::string lowerName(const std::string& name);

}  // namespace cmpihost::detail

#endif
