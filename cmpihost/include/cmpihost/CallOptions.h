// CallOptions: per-request knobs for exercising a provider's argument
// checks and its use of the context.
//
// Handles named in nullArgs are passed as NULL pointers; those in
// hollowArgs as handles whose hdl is NULL (what CMIsNullObject also
// catches). String arguments are std::optional: std::nullopt passes NULL,
// "" passes an empty string; a std::nullopt property list passes NULL.
#ifndef CMPIHOST_CALLOPTIONS_H
#define CMPIHOST_CALLOPTIONS_H

#include <cmpidt.h>

#include <optional>

#include "cmpihost/Principal.h"
#include "cmpihost/Value.h"

namespace cmpihost {

enum class Arg : unsigned {
    MI = 1u << 0,
    Context = 1u << 1,
    Result = 1u << 2,
    Reference = 1u << 3,  // the object path / class path argument
    Instance = 1u << 4,
    InArgs = 1u << 5,
    OutArgs = 1u << 6,
    Filter = 1u << 7,
};

struct CallOptions {
    unsigned nullArgs = 0;
    unsigned hollowArgs = 0;
    // Replaces the host's principal for this request.
    std::optional<Principal> principal;
    // The "CMPIInvocationFlags" entry.
    CMPIFlags invocationFlags = 0;
    // Further context entries, added after the standard ones.
    NamedValues contextEntries;

    CallOptions& null(Arg a) { nullArgs |= static_cast<unsigned>(a); return *this; }
    CallOptions& hollow(Arg a) { hollowArgs |= static_cast<unsigned>(a); return *this; }
    CallOptions& as(Principal p) { principal = std::move(p); return *this; }
    bool isNull(Arg a) const { return (nullArgs & static_cast<unsigned>(a)) != 0; }
    bool isHollow(Arg a) const { return (hollowArgs & static_cast<unsigned>(a)) != 0; }
};

inline CallOptions withNull(Arg a) { return CallOptions().null(a); }
inline CallOptions withHollow(Arg a) { return CallOptions().hollow(a); }

}  // namespace cmpihost

#endif
