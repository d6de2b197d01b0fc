#include "cmpi/SystemPasswordFile.h"

namespace vex::cim::adap::cmpi {

std::string systemPasswordFile() { return "/etc/passwd"; }

}  // namespace vex::cim::adap::cmpi
