#include "NameCompare.h"

#include <strings.h>

namespace cmpihost::detail {

bool equalNames(const std::string& a, const std::string& b) {
    return a.size() == b.size() && ::strcasecmp(a.c_str(), b.c_str()) == 0;
}

std::string lowerName(const std::string& name) {
    std::string out(name);
    for (char& c : out) {
        if (c >= 'A' && c <= 'Z') {
            c = static_cast<char>(c - 'A' + 'a');
        }
    }
    return out;
}

}  // namespace cmpihost::detail
