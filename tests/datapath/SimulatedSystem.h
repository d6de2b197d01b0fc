// A simulated controller system for one test: a private state directory
// (removed afterwards), the stopped controller clock, and the description
// the library is pointed at through the environment, so that the provider
// and the test's own library handle see the same controllers.
#ifndef VEX_TESTS_DATAPATH_SIMULATEDSYSTEM_H
#define VEX_TESTS_DATAPATH_SIMULATEDSYSTEM_H

#include <memory>
#include <string>

#include <storlib/StorLib.h>
#include <storlib/SystemGenerator.h>

namespace vex::datapath {

// A description shipped with the simulator ("demo.json", "none.json").
std::string shippedSystem(const std::string& name);

class SimulatedSystem {
public:
    // Points the environment at `descriptionFile` and a fresh state directory.
    explicit SimulatedSystem(const std::string& descriptionFile);
    // A generated description, written into the state directory.
    explicit SimulatedSystem(const storlib::GeneratorParams& params);
    ~SimulatedSystem();
    SimulatedSystem(const SimulatedSystem&) = delete;
    SimulatedSystem& operator=(const SimulatedSystem&) = delete;

    // The test's own library handle on the same controllers (opened on first use).
    storlib::StorLib& library();
    // The current snapshot of every controller.
    std::shared_ptr<const storlib::SystemConfig> snapshot();

    const std::string& descriptionFile() const { return m_description; }

private:
    void useDescription(const std::string& file);

    std::string m_dir;
    std::string m_description;
    std::unique_ptr<storlib::StorLib> m_library;
};

}  // namespace vex::datapath

#endif
