// Status: a CMPIStatus copied out of the request - the rc and the text of
// its message (absent when the provider gave no message string or one
// whose characters are NULL).
#ifndef CMPIHOST_STATUS_H
#define CMPIHOST_STATUS_H

#include <cmpidt.h>

#include <optional>
#include <string>

namespace cmpihost {

struct Status {
    CMPIrc rc = CMPI_RC_OK;
    std::optional<std::string> message;

    bool ok() const { return rc == CMPI_RC_OK; }
    // "rc 4: The input parameters are invalid" / "rc 0".
    std::string toString() const;
};

}  // namespace cmpihost

#endif
