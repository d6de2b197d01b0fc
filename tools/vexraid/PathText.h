// Object paths as written on the command line, in the usual WBEM form:
//
//   [//host/][namespace:]Class[.Key="text",Num=5,Flag=TRUE,...]
//
// A quoted key value is a string, unless it is itself a path with a
// namespace and keys (then it is a reference, as in the keys of an
// association). Numbers are sint64 (uint64 above its range), TRUE and FALSE
// booleans. What toString of a cmpihost::ObjectPath writes reads back.
#ifndef VEXRAID_PATHTEXT_H
#define VEXRAID_PATHTEXT_H

#include <cmpihost/ObjectPath.h>

#include <string>

namespace vexraid {

// Throws UsageError naming the text and what is wrong at which column.
cmpihost::ObjectPath parseObjectPath(const std::string& text, const std::string& defaultNamespace);

// "Class" or "namespace:Class": a class path (no keys allowed).
cmpihost::ObjectPath parseClassPath(const std::string& text, const std::string& defaultNamespace);

// "root/ns:Class.Key=\"v\"" (the host left out).
std::string pathText(const cmpihost::ObjectPath& path);

}  // namespace vexraid

#endif
