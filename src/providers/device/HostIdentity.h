// What the host tells about itself: its name, its operating system and the
// platform data of its firmware tables (DMI), as the host classes show them.
#ifndef VEX_PROVIDERS_DEVICE_HOSTIDENTITY_H
#define VEX_PROVIDERS_DEVICE_HOSTIDENTITY_H

#include <string>

namespace vex::cim::fwf {

// The local host name; empty when it cannot be read.
std::string hostName();
// Operating system name, release and version; empty when unknown.
std::string operatingSystemDescription();
// One platform field ("sys_vendor", "product_name", "product_serial"...) from
// the kernel's DMI export, without the line end; empty when the field cannot
// be read (some need privileges).
std::string platformField(const std::string& field);

}  // namespace vex::cim::fwf

#endif
