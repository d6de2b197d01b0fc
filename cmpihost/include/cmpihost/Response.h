// Response: everything a provider handed back for one request, converted to
// host values while the request ran - the status, what went through the
// CMPIResult (instances, object paths, data, errors, returnDone calls) and,
// for methods, the out arguments.
#ifndef CMPIHOST_RESPONSE_H
#define CMPIHOST_RESPONSE_H

#include <vector>

#include "cmpihost/ErrorInfo.h"
#include "cmpihost/Instance.h"
#include "cmpihost/ObjectPath.h"
#include "cmpihost/Status.h"
#include "cmpihost/Value.h"

namespace cmpihost {

struct Response {
    Status status;
    std::vector<Instance> instances;
    std::vector<ObjectPath> paths;
    std::vector<Value> data;
    std::vector<ErrorInfo> errors;
    NamedValues outArgs;
    // Number of returnDone calls, and whether anything was returned after
    // the first one.
    int doneCount = 0;
    bool returnedAfterDone = false;

    bool ok() const { return status.ok(); }
    bool done() const { return doneCount > 0; }
    // The method's return value (the first returned data), null when none.
    Value returnValue() const { return data.empty() ? Value() : data.front(); }
};

}  // namespace cmpihost

#endif
