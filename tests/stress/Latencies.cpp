#include "Latencies.h"

#include <algorithm>
#include <cstdio>

namespace vex::stress {

namespace {

double percentile(std::vector<double> samples, double fraction) {
    if (samples.empty()) {
        return 0;
    }
    const std::size_t at = static_cast<std::size_t>(fraction * static_cast<double>(samples.size() - 1));
    std::nth_element(samples.begin(), samples.begin() + static_cast<long>(at), samples.end());
    return samples[at];
}

}  // namespace

void Latencies::record(const std::string& kind, double seconds) {
    std::lock_guard<std::mutex> lock(m_mutex);
    m_samples[kind].push_back(seconds);
}

std::size_t Latencies::total() const {
    std::lock_guard<std::mutex> lock(m_mutex);
    std::size_t n = 0;
    for (const auto& [kind, samples] : m_samples) {
        n += samples.size();
    }
    return n;
}

void Latencies::print(double elapsed) const {
    std::lock_guard<std::mutex> lock(m_mutex);
    std::printf("%-22s %9s %9s %10s %10s\n", "request", "count", "per s", "p50 ms", "p99 ms");
    for (const auto& [kind, samples] : m_samples) {
        std::printf("%-22s %9zu %9.1f %10.2f %10.2f\n", kind.c_str(), samples.size(),
                    static_cast<double>(samples.size()) / elapsed, percentile(samples, 0.5) * 1e3,
                    percentile(samples, 0.99) * 1e3);
    }
}

}  // namespace vex::stress
