#include "cmpihost/Status.h"

namespace cmpihost {

std::string Status::toString() const {
    std::string text = "rc " + std::to_string(static_cast<int>(rc));
    return message ? text + ": " + *message : text;
}

}  // namespace cmpihost
