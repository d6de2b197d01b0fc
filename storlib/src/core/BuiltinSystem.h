// The system the library simulates when no description file is named.
#pragma once

namespace storlib::detail {
const char* builtinSystemDescription();
}
