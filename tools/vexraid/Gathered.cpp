#include "Gathered.h"

#include <iostream>

namespace vexraid {

void Gathered::add(const std::string& className, const cmpihost::Response& response) {
    if (!response.ok()) {
        const std::string message = className + ": " + response.status.message.value_or("");
        if (!m_failure) m_failure = CimError(response.status.rc, message);
        std::cerr << "vexraid: " << rcName(response.status.rc) << ": " << message << "\n";
        return;
    }
    instances.insert(instances.end(), response.instances.begin(), response.instances.end());
    paths.insert(paths.end(), response.paths.begin(), response.paths.end());
}

int Gathered::exitCode() const { return m_failure ? exitCodeOf(m_failure->rc()) : 0; }

}  // namespace vexraid
