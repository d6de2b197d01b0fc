// The answers of one request that an object manager spreads over several
// provider classes (an enumeration of a DMTF class, associations without a
// named association class): what every class gave, and the first failure.
#ifndef VEXRAID_GATHERED_H
#define VEXRAID_GATHERED_H

#include <cmpihost/Response.h>

#include <optional>
#include <string>
#include <vector>

#include "Errors.h"

namespace vexraid {

class Gathered {
public:
    // Keeps what an OK response returned; a failure is reported on stderr
    // and remembered (the other classes still answer).
    void add(const std::string& className, const cmpihost::Response& response);

    std::vector<cmpihost::Instance> instances;
    std::vector<cmpihost::ObjectPath> paths;

    // The exit code: that of the first failure (already reported), or 0.
    int exitCode() const;

private:
    std::optional<CimError> m_failure;
};

}  // namespace vexraid

#endif
