#include "SimulatedSystem.h"

#include <stdlib.h>

#include <filesystem>
#include <fstream>
#include <stdexcept>

namespace vex::datapath {

namespace {

std::string makeStateDir() {
    char pattern[] = "/tmp/vex-datapath-XXXXXX";
    if (mkdtemp(pattern) == nullptr) {
        throw std::runtime_error("mkdtemp failed");
    }
    return pattern;
}

}  // namespace

std::string shippedSystem(const std::string& name) { return std::string(VEX_STORLIB_SYSTEMS_DIR) + "/" + name; }

SimulatedSystem::SimulatedSystem(const std::string& descriptionFile) : m_dir(makeStateDir()) {
    useDescription(descriptionFile);
}

SimulatedSystem::SimulatedSystem(const storlib::GeneratorParams& params) : m_dir(makeStateDir()) {
    const std::string file = m_dir + "/generated.json";
    std::ofstream(file) << storlib::generateSystemDescription(params);
    useDescription(file);
}

SimulatedSystem::~SimulatedSystem() {
    m_library.reset();
    std::error_code ignored;
    std::filesystem::remove_all(m_dir, ignored);
}

void SimulatedSystem::useDescription(const std::string& file) {
    m_description = file;
    setenv("STORVEX_SYSTEM", file.c_str(), 1);
    setenv("STORVEX_STATE_DIR", (m_dir + "/state").c_str(), 1);
    setenv("STORVEX_TIME_SCALE", "0", 1);
}

storlib::StorLib& SimulatedSystem::library() {
    if (!m_library) {
        m_library = std::make_unique<storlib::StorLib>();
        const storlib::Ret opened = m_library->open();
        if (!opened.ok()) {
            throw std::runtime_error("cannot open the simulated system: " + opened.getReason());
        }
    }
    return *m_library;
}

std::shared_ptr<const storlib::SystemConfig> SimulatedSystem::snapshot() {
    return library().getSystemConfig();
}

}  // namespace vex::datapath
