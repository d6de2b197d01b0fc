#include "cmpihost/Instance.h"

namespace cmpihost {

Instance& Instance::set(const std::string& name, Value value) {
    setNamed(properties, name, std::move(value));
    return *this;
}

}  // namespace cmpihost
