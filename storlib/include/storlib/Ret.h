// Ret: the result of every StorLib call that can be refused.
#pragma once
#include <storlib/Export.h>

#include <string>
#include <utility>

namespace storlib {

// Status values of Ret. 0 is success; any other value means the controller
// (or the library) refused the request and getReason() says why in words.
enum class RetStatus : int {
    Success = 0,
    InvalidArgument = 1,  // malformed request: bad level, stripe, name, address
    NotFound = 2,         // no such controller, drive, logical drive, task, element
    InvalidState = 3,     // the object is in a state that forbids the request
    NotSupported = 4,     // the controller does not offer the feature
    NoSpace = 5,          // not enough free space on the chosen drives
    LimitReached = 6,     // a controller limit (logical drives, spares, ...) is reached
    Busy = 7,             // a task on the object forbids the request
    NotOpen = 8,          // the library handle is not open
    StateError = 9,       // the persistent controller state cannot be read or written
    BadDescription = 10,  // a system description was refused
};

class STORLIB_API Ret {
public:
    Ret() = default;
    Ret(RetStatus status, std::string reason) : status_(status), reason_(std::move(reason)) {}

    static Ret success() { return Ret(); }

    bool ok() const noexcept { return status_ == RetStatus::Success; }
    explicit operator bool() const noexcept { return ok(); }
    RetStatus getStatus() const noexcept { return status_; }
    int getStatusCode() const noexcept { return static_cast<int>(status_); }
    const std::string& getReason() const noexcept { return reason_; }

private:
    RetStatus status_ = RetStatus::Success;
    std::string reason_;
};

}  // namespace storlib
