#include "framework/CIMException.h"

#include <cstdarg>
#include <cstdio>

namespace vex::cim::fwf {

CIMException::CIMException(unsigned int code, const char* format, ...) : m_code(code) {
    char buffer[kMessageSize];
    buffer[0] = '\0';
    if (format != nullptr) {
        va_list args;
        va_start(args, format);
        if (std::vsnprintf(buffer, sizeof buffer, format, args) < 0) {
            buffer[0] = '\0';
        }
        va_end(args);
    }
    m_message = buffer;
}

}  // namespace vex::cim::fwf
