#include "PluginTestSupport.h"

#include <cstdlib>
#include <mutex>
#include <stdexcept>
#include <string>

#include "LogCapture.h"

namespace vex::cim::fwf::test {

namespace {

// The framework tests run on a simulated host without controllers, with a
// controller state of their own.
void useSystemWithoutControllers() {
    char stateDir[] = "/tmp/vex-framework-tests-XXXXXX";
    if (mkdtemp(stateDir) == nullptr) {
        throw std::runtime_error("no state directory for the simulated controllers");
    }
    setenv("STORVEX_STATE_DIR", stateDir, 1);
    setenv("STORVEX_SYSTEM", VEX_STORLIB_SYSTEMS_DIR "/none.json", 1);
}

}  // namespace

FrameworkFacade& startedFacade() {
    static std::once_flag started;
    std::call_once(started, [] {
        useSystemWithoutControllers();
        FrameworkFacade* facade = FrameworkFacade::getInstance();
        if (facade == nullptr || !facade->initialize()) {
            throw std::runtime_error("the facade did not start");
        }
    });
    return *FrameworkFacade::getInstance();
}

CIMObjectPath classPath(const std::string& nameSpace, const std::string& className) {
    return CIMObjectPath("testhost", nameSpace, className, {});
}

bool wasLogged(const std::string& text, int level) {
    for (const LoggedLine& line : loggedLines()) {
        if (line.text == text && (level == 0 || line.level == level)) {
            return true;
        }
    }
    return false;
}

}  // namespace vex::cim::fwf::test
