// RepositoryLock: holds a repository's read-write lock for one operation.
//
// The operation releases it itself with release(), whose failure turns the
// operation's result into VEX_CM_SYSTEM_ERROR. The destructor releases a lock
// that is still held, which happens only while an exception (an allocation
// failure while copying) leaves the operation: the repository then stays
// usable instead of staying locked for good.
#ifndef VEX_CONTROLLER_REPOSITORYLOCK_H
#define VEX_CONTROLLER_REPOSITORYLOCK_H

#include "controller/VexCacheResult.h"
#include "platform/Tkz.h"

namespace vex::cim::fwf::cache {

class RepositoryLock {
public:
    enum class Mode { Read, Write };

    RepositoryLock(TKZ_RWLOCK lock, Mode mode);
    RepositoryLock(const RepositoryLock&) = delete;
    RepositoryLock& operator=(const RepositoryLock&) = delete;
    ~RepositoryLock();

    // False when taking the lock failed.
    bool held() const { return m_held; }
    // False when the unlock call failed; the lock counts as released anyway.
    bool release();
    // Releases and answers result, or VEX_CM_SYSTEM_ERROR when the release
    // failed (the operation's work is done either way).
    unsigned int releaseWith(unsigned int result);

private:
    TKZ_RWLOCK m_lock;
    Mode m_mode;
    bool m_held;
};

}  // namespace vex::cim::fwf::cache

#endif
