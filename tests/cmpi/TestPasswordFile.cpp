// The access tests' password database: the file VEX_CMPI_PASSWD_FILE names,
// "/etc/passwd" without it. Linked only into the suite's copy of the provider.
#include <cstdlib>

#include "cmpi/SystemPasswordFile.h"

namespace vex::cim::adap::cmpi {

std::string systemPasswordFile() {
    const char* file = std::getenv("VEX_CMPI_PASSWD_FILE");
    return file != nullptr && *file != '\0' ? file : "/etc/passwd";
}

}  // namespace vex::cim::adap::cmpi
