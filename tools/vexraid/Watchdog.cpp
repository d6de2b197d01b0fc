#include "Watchdog.h"

#include <unistd.h>

#include <chrono>
#include <cstdlib>

namespace vexraid {

Watchdog::Watchdog(double seconds, std::string text, int exitCode) {
    if (seconds <= 0) return;
    m_thread = std::thread([this, seconds, text = std::move(text), exitCode] {
        std::unique_lock<std::mutex> lock(m_mutex);
        const auto limit = std::chrono::duration<double>(seconds);
        if (m_done.wait_for(lock, limit, [this] { return m_stopped; })) return;
        const char* data = text.data();
        std::size_t left = text.size();
        while (left > 0) {
            const ssize_t n = write(STDOUT_FILENO, data, left);
            if (n <= 0) break;
            data += n;
            left -= static_cast<std::size_t>(n);
        }
        std::_Exit(exitCode);  // the provider's threads may be what hangs: no clean-up
    });
}

Watchdog::~Watchdog() {
    if (!m_thread.joinable()) return;
    {
        std::lock_guard<std::mutex> lock(m_mutex);
        m_stopped = true;
    }
    m_done.notify_all();
    m_thread.join();
}

}  // namespace vexraid
