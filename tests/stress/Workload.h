// The requests of the stress run, as a client population makes them through
// the object manager: enumerations (whole instances and names) of the busy
// classes, gets of known paths, associations from drives, volumes and
// controllers through every association class that may link them, a
// controller setting changed back and forth, and methods (a rescan, which
// rebuilds the cache, and the routine list). Each enumeration of drives and
// volumes must be one whole cache generation: every object once, none missing.
#ifndef VEX_TESTS_STRESS_WORKLOAD_H
#define VEX_TESTS_STRESS_WORKLOAD_H

#include <cmpihost/ObjectPath.h>

#include <atomic>
#include <mutex>
#include <set>
#include <random>
#include <stdexcept>
#include <string>
#include <vector>

#include "Session.h"

namespace vex::stress {

// An answer that is not one whole generation of the cache.
struct Inconsistency : std::runtime_error {
    using std::runtime_error::runtime_error;
};

class Workload {
public:
    // Learns the system as it is at the start: the drive and volume counts
    // every later enumeration must give, and the paths to get and follow.
    explicit Workload(vexraid::Session& session);

    static constexpr unsigned kKinds = 7;
    // The name of request kind `kind` (0 .. kKinds-1).
    static const char* kindName(unsigned kind);
    // Runs one request of that kind; Inconsistency on a torn answer.
    void run(unsigned kind, std::mt19937& random);

    // Called on the request's thread after each single request (a kind may
    // make many): the watchdog times single requests, not whole kinds.
    void setHeartbeat(void (*beat)()) { m_heartbeat = beat; }

    std::size_t failedRequests() const { return m_failed.load(); }
    // The first few distinct error answers, for the report.
    std::vector<std::string> errorSamples() const;

private:
    void enumerate(std::mt19937& random, bool namesOnly);
    void get(std::mt19937& random);
    void associate(std::mt19937& random);
    void modify();
    void method(const char* name);
    void checkWhole(const std::string& className, const std::vector<cmpihost::ObjectPath>& paths);
    void count(const cmpihost::Response& response, const std::string& what);

    vexraid::Session& m_session;
    void (*m_heartbeat)() = nullptr;
    std::size_t m_drives = 0;
    std::size_t m_volumes = 0;
    std::vector<cmpihost::ObjectPath> m_paths;    // to get
    std::vector<cmpihost::ObjectPath> m_sources;  // to follow associations from
    cmpihost::ObjectPath m_controller;
    std::atomic<unsigned> m_turn{0};
    std::atomic<std::size_t> m_failed{0};
    mutable std::mutex m_errorMutex;
    std::set<std::string> m_errors;
};

}  // namespace vex::stress

#endif
