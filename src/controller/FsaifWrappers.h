// Controller wrappers: one thin call into StorLib each, with the controller
// (and logical drive) it acts on, the operation's values and the library's
// Ret copied out. 0 on success, 6 when the controller refused (Ret status
// not 0), 3 when the library failed with an exception; 21 is thrown when
// there is no library handle.
#ifndef VEX_CONTROLLER_FSAIFWRAPPERS_H
#define VEX_CONTROLLER_FSAIFWRAPPERS_H

#include <string>

#include <storlib/Ret.h>

namespace vex::cim::fwf {

// Controller settings.
unsigned int fsaifSetAutomaticFailOver(int controller, bool enable, storlib::Ret& ret);
unsigned int fsaifSetPMStayAwakePeriod(int controller, bool mainEnabled, unsigned int startHour,
                                       unsigned int stopHour, unsigned int days, storlib::Ret& ret);
unsigned int fsaifSetCopyBack(int controller, bool enable, storlib::Ret& ret);
unsigned int fsaifSetPerformanceMode(int controller, unsigned int mode, storlib::Ret& ret);
unsigned int fsaifSetSataNCQ(int controller, bool enable, storlib::Ret& ret);
unsigned int fsaifBgConsistencyCheck(int controller, bool enable, storlib::Ret& ret);
unsigned int fsaifBgConsistencyCheckRate(int controller, unsigned int days, storlib::Ret& ret);
unsigned int fsaifSetPMSpinUpLimits(int controller, unsigned int internalLimit, unsigned int externalLimit,
                                    storlib::Ret& ret);
unsigned int fsaifSetGlobalPhysicalDevicesWriteCachePolicy(int controller, unsigned int policy, storlib::Ret& ret);
unsigned int fsaifSetGlobalMaxSASPhyLinkRate(int controller, unsigned int rate, storlib::Ret& ret);

// Logical drive settings.
unsigned int fsaifSetLDCache(int controller, int logicalDrive, unsigned int readMode, unsigned int writeMode,
                             storlib::Ret& ret);
unsigned int fsaifSetFastTierPreferredCache(int controller, int logicalDrive, unsigned int preferred,
                                            bool isFastTier3, storlib::Ret& ret);
unsigned int fsaifSetPreferredFastTierWriteCache(int controller, int logicalDrive, unsigned int preferred,
                                                 unsigned int policy, storlib::Ret& ret);
unsigned int fsaifChangeLDName(int controller, int logicalDrive, const std::string& name, storlib::Ret& ret);
unsigned int fsaifSetPMEnabled(int controller, int logicalDrive, bool enabled, storlib::Ret& ret);
unsigned int fsaifSetPMTimers(int controller, int logicalDrive, unsigned int powerOffMinutes,
                              unsigned int reduceRpmMinutes, unsigned int verifyHours, storlib::Ret& ret);

}  // namespace vex::cim::fwf

#endif
