// The password database the access rule reads. The provider is built with
// SystemPasswordFile.cpp, which names "/etc/passwd" and nothing else; the
// suite builds a second copy of the provider for its access tests with a
// definition of its own in place of that one object (tests/cmpi).
#ifndef VEX_CMPI_SYSTEMPASSWORDFILE_H
#define VEX_CMPI_SYSTEMPASSWORDFILE_H

#include <string>

namespace vex::cim::adap::cmpi {

std::string systemPasswordFile();

}  // namespace vex::cim::adap::cmpi

#endif
