#include "PluginTestSupport.h"

#include <mutex>
#include <stdexcept>

#include "LogCapture.h"

namespace vex::cim::fwf::test {

FrameworkFacade& startedFacade() {
    static std::once_flag started;
    std::call_once(started, [] {
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
