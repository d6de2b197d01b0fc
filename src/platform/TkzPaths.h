/*
 * Locations of the files the portability layer reads or writes.
 *
 * Internal to the provider (not exported): production code never changes
 * them; unit tests point them at a temporary directory. The log directory is
 * read when TkzLogInit builds the log file's path; the two configuration files
 * are read on every call of their getters.
 */
#ifndef VEX_PLATFORM_TKZPATHS_H
#define VEX_PLATFORM_TKZPATHS_H

#include <string>

namespace vex::platform {

std::string logDirectory();         // "/var/log"
std::string refreshIntervalFile();  // "/usr/Quillon/config/vexProvider.conf"
std::string productVersionFile();   // "/etc/TKZ-Lorvan/tidalDS.conf"

void setLogDirectory(const std::string &directory);
void setRefreshIntervalFile(const std::string &path);
void setProductVersionFile(const std::string &path);

// Puts all three back to the values above.
void restoreDefaultPaths();

}  // namespace vex::platform

#endif  // VEX_PLATFORM_TKZPATHS_H
