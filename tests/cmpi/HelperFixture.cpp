#include "HelperFixture.h"

#include <unistd.h>

namespace vex::cmpitest {

std::string localHostName() {
    char buffer[256] = {};
    gethostname(buffer, sizeof buffer - 1);
    return buffer;
}

}  // namespace vex::cmpitest
