#include "monitor/VEXRaidEventMonitor.h"

#include <thread>

#include <storlib/StorLib.h>

namespace vex::monitor {

std::atomic<bool> VEXRaidEventMonitor::continueThread{false};

namespace {

std::mutex& instanceMutex() {
    static std::mutex* const mutex = new std::mutex;
    return *mutex;
}

}  // namespace

VEXRaidEventMonitor* VEXRaidEventMonitor::getInstance() {
    static std::atomic<VEXRaidEventMonitor*> staticInstance{nullptr};
    VEXRaidEventMonitor* existing = staticInstance.load();
    if (existing != nullptr) {
        return existing;
    }
    std::lock_guard<std::mutex> lock(instanceMutex());
    if (staticInstance.load() == nullptr) {
        // Lives as long as the process: the library may be unloaded and
        // loaded again, and a monitor is only ever stopped, never destroyed.
        staticInstance = new VEXRaidEventMonitor();
    }
    return staticInstance.load();
}

void VEXRaidEventMonitor::createMonitor() {
    auto library = std::make_shared<storlib::StorLib>();
    if (!library->open().ok()) {
        TkzLogMsg(TKZ_LOG_ERROR, "RAID monitor: cannot open the controller library");
        library.reset();
    }
    m_library = library;
    m_monitor = std::make_shared<FsaRaidMonitor>(library.get());
    m_running = true;
}

void* VEXRaidEventMonitor::fsaThreadFuntion(void*) {
    VEXRaidEventMonitor* self = getInstance();
    std::shared_ptr<FsaRaidMonitor> monitor = self != nullptr ? self->getMonitor() : nullptr;
    if (monitor) {
        monitor->start();
    }
    return nullptr;
}

bool VEXRaidEventMonitor::start() {
    std::lock_guard<std::mutex> lock(m_mutex);
    if (m_thread != nullptr) {
        return true;
    }
    createMonitor();
    continueThread = true;
    m_thread = TkzThreadCreate(&fsaThreadFuntion, nullptr);
    if (m_thread == nullptr) {
        TkzLogMsg(TKZ_LOG_ERROR, "RAID monitor: failed to create the monitor thread");
        continueThread = false;
        m_monitor.reset();
        m_library.reset();
        m_running = false;
        return false;
    }
    return true;
}

// The monitor thread reads the monitor through getMonitor, so the wait
// happens outside the member mutex.
void VEXRaidEventMonitor::stop() {
    std::shared_ptr<FsaRaidMonitor> monitor;
    TKZ_THREAD thread = nullptr;
    {
        std::lock_guard<std::mutex> lock(m_mutex);
        if (m_running.load()) {
            monitor = m_monitor;
        }
        thread = m_thread;
        m_thread = nullptr;
    }
    if (monitor) {
        monitor->stop();
    }
    if (thread != nullptr) {
        while (monitor && !monitor->isStopped()) {
            std::this_thread::yield();
        }
        TkzWaitForThreadTerminate(thread);
    }
    continueThread = false;
    std::lock_guard<std::mutex> lock(m_mutex);
    m_monitor.reset();
    m_library.reset();
    m_running = false;
}

std::shared_ptr<FsaRaidMonitor> VEXRaidEventMonitor::getMonitor() const {
    std::lock_guard<std::mutex> lock(m_mutex);
    return m_monitor;
}

}  // namespace vex::monitor
