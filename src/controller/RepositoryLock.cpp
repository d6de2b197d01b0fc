#include "controller/RepositoryLock.h"

namespace vex::cim::fwf::cache {

namespace {

int take(TKZ_RWLOCK lock, RepositoryLock::Mode mode) {
    return mode == RepositoryLock::Mode::Read ? TkzReadWriteLock_ReadLock(lock)
                                              : TkzReadWriteLock_WriteLock(lock);
}

int give(TKZ_RWLOCK lock, RepositoryLock::Mode mode) {
    return mode == RepositoryLock::Mode::Read ? TkzReadWriteLock_ReadUnLock(lock)
                                              : TkzReadWriteLock_WriteUnLock(lock);
}

}  // namespace

RepositoryLock::RepositoryLock(TKZ_RWLOCK lock, Mode mode)
    : m_lock(lock), m_mode(mode), m_held(take(lock, mode) == 0) {}

RepositoryLock::~RepositoryLock() {
    if (m_held) {
        give(m_lock, m_mode);
    }
}

bool RepositoryLock::release() {
    m_held = false;
    return give(m_lock, m_mode) == 0;
}

unsigned int RepositoryLock::releaseWith(unsigned int result) {
    return release() ? result : VEX_CM_SYSTEM_ERROR;
}

}  // namespace vex::cim::fwf::cache
