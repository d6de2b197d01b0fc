/* Bounded text helpers shared by the functions that fill caller buffers. */
#ifndef VEX_PLATFORM_TKZTEXT_H
#define VEX_PLATFORM_TKZTEXT_H

#include <cstddef>
#include <cstdio>

namespace vex::platform {

// Status of a getter whose result did not fit the caller's buffer (the
// buffer then holds as much as fits, always terminated).
constexpr int kTkzTruncated = 2;

// Copies src into dst of the given size: 0, or kTkzTruncated when cut.
inline int copyText(char *dst, std::size_t size, const char *src) {
    int n = std::snprintf(dst, size, "%s", src);
    return (n < 0 || static_cast<std::size_t>(n) >= size) ? kTkzTruncated : 0;
}

}  // namespace vex::platform

#endif  // VEX_PLATFORM_TKZTEXT_H
