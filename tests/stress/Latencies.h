// Request latencies by kind, recorded from many threads, summarised as count,
// requests per second and the 50th and 99th percentiles.
#ifndef VEX_TESTS_STRESS_LATENCIES_H
#define VEX_TESTS_STRESS_LATENCIES_H

#include <cstddef>
#include <map>
#include <mutex>
#include <string>
#include <vector>

namespace vex::stress {

class Latencies {
public:
    void record(const std::string& kind, double seconds);
    std::size_t total() const;
    // One line a kind: count, rate over `elapsed` seconds, p50 and p99 in ms.
    void print(double elapsed) const;

private:
    mutable std::mutex m_mutex;
    std::map<std::string, std::vector<double>> m_samples;
};

}  // namespace vex::stress

#endif
