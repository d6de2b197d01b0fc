// File transfer: clients put firmware images and configuration files into the
// provider's transfer directory "/tmp/TKZ<uid>" piece by piece, read them back
// and delete them. Every name is a plain file name inside that directory; the
// directory belongs to the provider's user, mode 0700, and is never followed
// through a symbolic link, nor are the files in it.
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>

#include "controller/routines/RoutineInput.h"
#include "controller/routines/Routines.h"
#include "controller/routines/SafePath.h"
#include "controller/FsaifReturn.h"
#include "platform/Tkz.h"

namespace vex::cim::fwf {

namespace {

using namespace routine;

constexpr unsigned long long kMaxPiece = 16ull * 1024 * 1024;  // one createFile/appendFile
constexpr long long kMaxFile = 64ll * 1024 * 1024;             // a whole transfer file

std::string transferDirectory() { return "/tmp/TKZ" + std::to_string(::getuid()); }

// The transfer directory, opened; -1 (logged) when it cannot be had safely.
int openDirectory() {
    const std::string dir = transferDirectory();
    if (::mkdir(dir.c_str(), 0700) != 0 && errno != EEXIST) {
        TkzLogMsg(TKZ_LOG_ERROR, "Failed to open directory : %s", dir.c_str());
        return -1;
    }
    const int fd = ::open(dir.c_str(), O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC);
    struct stat info {};
    if (fd < 0 || ::fstat(fd, &info) != 0 || info.st_uid != ::getuid() || (info.st_mode & 0077) != 0) {
        TkzLogMsg(TKZ_LOG_ERROR, "Failed to open directory : %s", dir.c_str());
        if (fd >= 0) {
            ::close(fd);
        }
        return -1;
    }
    return fd;
}

struct Fd {
    int fd = -1;
    ~Fd() {
        if (fd >= 0) {
            ::close(fd);
        }
    }
};

std::optional<std::string> fileNameOf(const CIMMethodParam& in) {
    const std::optional<std::string> name = text(in, "fileName");
    if (!name) {
        TkzLogMsg(TKZ_LOG_ERROR, "FileName is empty, it is a mandatory field");
        return std::nullopt;
    }
    if (!isPlainFileName(*name)) {
        TkzLogMsg(TKZ_LOG_ERROR, "FileName is not a plain file name: %s", name->c_str());
        return std::nullopt;
    }
    return name;
}

bool writeAll(int fd, const std::string& data) {
    std::size_t done = 0;
    while (done < data.size()) {
        const ssize_t n = ::write(fd, data.data() + done, data.size() - done);
        if (n < 0 && errno == EINTR) {
            continue;
        }
        if (n <= 0) {
            return false;
        }
        done += static_cast<std::size_t>(n);
    }
    return true;
}

// createFile (truncate) and appendFile: "dataSize" must be the length of "dataStream".
unsigned int writeFile(const CIMMethodParam& in, int extraFlags) {
    const std::optional<std::string> name = fileNameOf(in);
    if (!name) {
        return FSAIF_INVALID_PARAM;
    }
    const CIMProperty* stream = argument(in, "dataStream");
    const std::string data =
        stream != nullptr && stream->getType() == CIM_STRING && !stream->getStringValue().isEmpty()
            ? stream->getStringValue().getValues()[0]
            : std::string();
    const std::optional<unsigned long long> size = number(in, "dataSize");
    if (!size || *size != data.size() || *size > kMaxPiece) {
        TkzLogMsg(TKZ_LOG_ERROR, "Data size mismatch");
        return FSAIF_INVALID_PARAM;
    }
    Fd dir{openDirectory()};
    if (dir.fd < 0) {
        return FSAIF_FAIL;
    }
    Fd file{::openat(dir.fd, name->c_str(), O_WRONLY | O_CREAT | O_NOFOLLOW | O_CLOEXEC | extraFlags, 0600)};
    struct stat info {};
    if (file.fd < 0 || ::fstat(file.fd, &info) != 0 || !S_ISREG(info.st_mode)) {
        TkzLogMsg(TKZ_LOG_ERROR, "File creation failed with code %x for file %s", static_cast<unsigned>(errno),
                  name->c_str());
        return FSAIF_FAIL;
    }
    if (info.st_size + static_cast<long long>(data.size()) > kMaxFile) {
        TkzLogMsg(TKZ_LOG_ERROR, "Data size mismatch");
        return FSAIF_INVALID_PARAM;
    }
    return writeAll(file.fd, data) ? FSAIF_SUCCESS : FSAIF_FAIL;
}

}  // namespace

unsigned int FsaifExCreateFile(const CIMObjectPath&, const CIMMethodParam& in, CIMMethodParam&) {
    return writeFile(in, O_TRUNC);
}

unsigned int FsaifExAppendFile(const CIMObjectPath&, const CIMMethodParam& in, CIMMethodParam&) {
    return writeFile(in, O_APPEND);
}

unsigned int FsaifExReadFile(const CIMObjectPath&, const CIMMethodParam& in, CIMMethodParam& out) {
    const std::optional<std::string> name = fileNameOf(in);
    if (!name) {
        return FSAIF_INVALID_PARAM;
    }
    Fd dir{openDirectory()};
    if (dir.fd < 0) {
        return FSAIF_FAIL;
    }
    Fd file{::openat(dir.fd, name->c_str(), O_RDONLY | O_NOFOLLOW | O_CLOEXEC)};
    struct stat info {};
    if (file.fd < 0 || ::fstat(file.fd, &info) != 0 || !S_ISREG(info.st_mode) || info.st_size > kMaxFile) {
        TkzLogMsg(TKZ_LOG_ERROR, "File creation failed with code %x for file %s", static_cast<unsigned>(errno),
                  name->c_str());
        return FSAIF_FAIL;
    }
    std::string data(static_cast<std::size_t>(info.st_size), '\0');
    std::size_t done = 0;
    while (done < data.size()) {
        const ssize_t n = ::read(file.fd, &data[done], data.size() - done);
        if (n < 0 && errno == EINTR) {
            continue;
        }
        if (n <= 0) {
            break;
        }
        done += static_cast<std::size_t>(n);
    }
    data.resize(done);
    putText(out, "dataStream", data);
    putNumber(out, "dataSize", static_cast<unsigned int>(data.size()));
    return FSAIF_SUCCESS;
}

unsigned int FsaifExDeleteFile(const CIMObjectPath&, const CIMMethodParam& in, CIMMethodParam&) {
    const std::optional<std::string> name = fileNameOf(in);
    if (!name) {
        return FSAIF_INVALID_PARAM;
    }
    Fd dir{openDirectory()};
    if (dir.fd < 0) {
        return FSAIF_FAIL;
    }
    if (::unlinkat(dir.fd, name->c_str(), 0) != 0) {
        TkzLogMsg(TKZ_LOG_ERROR, "Failed to delete %s", name->c_str());
        return FSAIF_FAIL;
    }
    return FSAIF_SUCCESS;
}

// Empty files, one per name, to be filled by appendFile in sequence.
unsigned int FsaifExCreateSequencedFiles(const CIMObjectPath&, const CIMMethodParam& in, CIMMethodParam&) {
    const std::optional<std::vector<std::string>> names = texts(in, "fwFileNames");
    if (!names) {
        TkzLogMsg(TKZ_LOG_ERROR, "FileName is empty, it is a mandatory field");
        return FSAIF_INVALID_PARAM;
    }
    for (const std::string& name : *names) {
        if (!isPlainFileName(name)) {
            TkzLogMsg(TKZ_LOG_ERROR, "FileName is not a plain file name: %s", name.c_str());
            return FSAIF_INVALID_PARAM;
        }
    }
    Fd dir{openDirectory()};
    if (dir.fd < 0) {
        return FSAIF_FAIL;
    }
    for (const std::string& name : *names) {
        Fd file{::openat(dir.fd, name.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_NOFOLLOW | O_CLOEXEC, 0600)};
        if (file.fd < 0) {
            TkzLogMsg(TKZ_LOG_ERROR, "File creation failed with code %x for file %s", static_cast<unsigned>(errno),
                      name.c_str());
            return FSAIF_FAIL;
        }
    }
    return FSAIF_SUCCESS;
}

}  // namespace vex::cim::fwf
