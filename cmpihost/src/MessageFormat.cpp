#include "MessageFormat.h"

#include <cmpift.h>

#include <cstdio>
#include <vector>

#include "StringObject.h"

namespace cmpihost::detail {

namespace {

// One insert as text; false for a type the message macros never pass.
bool readInsert(int type, va_list& args, std::string& out) {
    char buf[64];
    switch (type) {
    case CMPI_sint32: std::snprintf(buf, sizeof buf, "%ld", va_arg(args, long)); break;
    case CMPI_uint32: std::snprintf(buf, sizeof buf, "%lu", va_arg(args, unsigned long)); break;
    case CMPI_sint64: std::snprintf(buf, sizeof buf, "%lld", va_arg(args, long long)); break;
    case CMPI_uint64: std::snprintf(buf, sizeof buf, "%llu", va_arg(args, unsigned long long)); break;
    case CMPI_real64: std::snprintf(buf, sizeof buf, "%g", va_arg(args, double)); break;
    case CMPI_boolean: std::snprintf(buf, sizeof buf, "%s", va_arg(args, int) ? "true" : "false"); break;
    case CMPI_chars: {
        const char* chars = va_arg(args, const char*);
        out = chars ? chars : "";
        return true;
    }
    case CMPI_string:
        out = stringText(va_arg(args, CMPIString*)).value_or("");
        return true;
    default:
        return false;
    }
    out = buf;
    return true;
}

}  // namespace

std::string formatMessage(const char* defMsg, CMPICount count, va_list args) {
    std::vector<std::string> inserts;
    va_list copy;
    va_copy(copy, args);
    for (CMPICount i = 0; i < count && i < 10; ++i) {
        std::string text;
        if (!readInsert(va_arg(copy, int), copy, text)) {
            break;
        }
        inserts.push_back(std::move(text));
    }
    va_end(copy);
    std::string out;
    for (const char* p = defMsg ? defMsg : ""; *p != '\0'; ++p) {
        const unsigned index = static_cast<unsigned>(p[1] - '0');
        if (*p == '$' && p[1] >= '0' && p[1] <= '9' && index < inserts.size()) {
            out += inserts[index];
            ++p;
        } else {
            out += *p;
        }
    }
    return out;
}

}  // namespace cmpihost::detail
