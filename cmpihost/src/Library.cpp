#include "Library.h"

#include <dlfcn.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdlib>
#include <cstring>
#include <vector>

namespace cmpihost::detail {

namespace {

// ThreadSanitizer does not see the dynamic loader unmap a library, so a
// later library mapped at the same addresses would seem to race with the
// closed one. Under it, closed libraries stay mapped.
#if defined(__SANITIZE_THREAD__)
constexpr int kKeepMapped = RTLD_NODELETE;
#else
constexpr int kKeepMapped = 0;
#endif

bool copyAll(int from, int to) {
    char buf[65536];
    for (;;) {
        const ssize_t n = ::read(from, buf, sizeof buf);
        if (n == 0) {
            return true;
        }
        if (n < 0 && errno == EINTR) {
            continue;
        }
        if (n < 0) {
            return false;
        }
        for (ssize_t done = 0; done < n;) {
            const ssize_t w = ::write(to, buf + done, static_cast<std::size_t>(n - done));
            if (w < 0 && errno != EINTR) {
                return false;
            }
            done += w > 0 ? w : 0;
        }
    }
}

enum class Copy { Made, Unreadable, Failed };

// A private copy of path in $TMPDIR (or /tmp). Unreadable lets dlopen of the
// original report the loader's own error.
Copy privateCopy(const std::string& path, std::string& copy, std::string& error) {
    const int from = ::open(path.c_str(), O_RDONLY | O_CLOEXEC);
    if (from < 0) {
        return Copy::Unreadable;
    }
    const char* dir = std::getenv("TMPDIR");
    std::string name = std::string(dir && *dir ? dir : "/tmp") + "/cmpihost-XXXXXX.so";
    std::vector<char> buf(name.begin(), name.end());
    buf.push_back('\0');
    const int to = ::mkostemps(buf.data(), 3, O_CLOEXEC);
    bool ok = to >= 0 && copyAll(from, to) && ::fchmod(to, 0700) == 0;
    if (!ok) {
        error = "cannot make a private copy of " + path + ": " + std::strerror(errno);
    }
    ::close(from);
    if (to >= 0) {
        ::close(to);
        if (!ok) {
            ::unlink(buf.data());
        }
    }
    copy = buf.data();
    return ok ? Copy::Made : Copy::Failed;
}

}  // namespace

std::unique_ptr<Library> Library::open(const std::string& path, bool globalSymbols, bool freshCopy,
                                       std::string& error) {
    std::string file = path;
    bool temporary = false;
    if (freshCopy) {
        std::string copy;
        const Copy made = privateCopy(path, copy, error);
        if (made == Copy::Failed) {
            return nullptr;
        }
        temporary = made == Copy::Made;
        file = temporary ? copy : path;
    }
    void* handle = ::dlopen(file.c_str(), RTLD_NOW | kKeepMapped |
                                              (globalSymbols ? RTLD_GLOBAL : RTLD_LOCAL));
    if (handle == nullptr) {
        const char* why = ::dlerror();
        error = why ? why : ("dlopen failed: " + file);
        if (temporary) {
            ::unlink(file.c_str());
        }
        return nullptr;
    }
    return std::unique_ptr<Library>(new Library(handle, file, temporary));
}

Library::~Library() {
    ::dlclose(m_handle);
    if (m_temporary) {
        ::unlink(m_file.c_str());
    }
}

void* Library::symbol(const std::string& name) const { return ::dlsym(m_handle, name.c_str()); }

}  // namespace cmpihost::detail
