#include "cmpi/CMPIAdapterAccess.h"

#include <fstream>
#include <mutex>
#include <set>

#include "cmpi/CMPIAdapter.h"
#include "cmpi/CmpiCalls.h"
#include "cmpi/SystemPasswordFile.h"
#include "platform/Tkz.h"

namespace vex::cim::adap::cmpi {

namespace {

constexpr std::size_t kHostNameSize = 256;

std::mutex& passwordFileMutex() {
    static std::mutex mutex;
    return mutex;
}

std::string& passwordFileOverride() {
    static std::string path;
    return path;
}

// Field `index` (counted from 1) of a ':'-separated line; empty past the end.
std::string field(const std::string& line, unsigned int index) {
    std::size_t start = 0;
    for (unsigned int i = 1; i < index; ++i) {
        start = line.find(':', start);
        if (start == std::string::npos) {
            return std::string();
        }
        ++start;
    }
    return line.substr(start, line.find(':', start) - start);
}

// Login names whose primary group is 0.
std::set<std::string> rootGroupMembers(const std::string& file) {
    std::set<std::string> members;
    std::ifstream in(file);
    std::string line;
    while (std::getline(in, line)) {
        if (field(line, 4) == "0") {
            members.insert(field(line, 1));
        }
    }
    return members;
}

// "\\" followed by the local host name.
std::string callerHost() {
    char buffer[kHostNameSize] = {};
    TkzGetHostName(buffer, sizeof buffer);
    return std::string("\\\\") + buffer;
}

std::string firstWord(const char* text) {
    std::string value = text != nullptr ? text : "";
    return value.substr(0, value.find(' '));
}

}  // namespace

void CMPIAdapter::setPasswordFile(const std::string& path) {
    std::lock_guard<std::mutex> lock(passwordFileMutex());
    passwordFileOverride() = path;
}

std::string CMPIAdapter::passwordFile() {
    {
        std::lock_guard<std::mutex> lock(passwordFileMutex());
        if (!passwordFileOverride().empty()) {
            return passwordFileOverride();
        }
    }
    return systemPasswordFile();
}

bool CMPIAdapter::VerifyUserRole(const std::string& user, const std::string&) {
    return rootGroupMembers(passwordFile()).count(user) != 0;
}

namespace access {

PrincipalRead readUserName(const CMPIContext* ctx, std::string& user) {
    if (ctx == nullptr || ctx->ft == nullptr || ctx->ft->getEntry == nullptr) {
        return PrincipalRead::NoEntry;
    }
    CMPIStatus rc = calls::status(CMPI_RC_OK);
    CMPIData entry = ctx->ft->getEntry(ctx, CMPIPrincipal, &rc);
    if (!calls::ok(rc)) {
        return PrincipalRead::NoEntry;
    }
    if (entry.type == CMPI_chars) {
        user = firstWord(entry.value.chars);
        return PrincipalRead::Read;
    }
    bool usable = false;
    const char* text = entry.type == CMPI_string ? calls::chars(entry.value.string, &usable)
                                                 : nullptr;
    if (!usable) {
        return PrincipalRead::NoCharacters;
    }
    user = firstWord(text);
    return PrincipalRead::Read;
}

bool callerMayChange(CMPIAdapter& adapter, const CMPIContext* ctx, const CMPIBroker* broker,
                     CMPIStatus* status) {
    std::string host = callerHost();
    std::string user;
    switch (readUserName(ctx, user)) {
        case PrincipalRead::NoEntry:
            calls::setStatus(status, broker, CMPI_RC_ERR_FAILED,
                             "Failed to get context entry type CMPIPrinciple");
            return false;
        case PrincipalRead::NoCharacters:
            calls::setStatus(status, broker, CMPI_RC_ERR_FAILED,
                             "Failed to get CharsPtr from string username");
            return false;
        case PrincipalRead::Read: break;
    }
    TkzLogMsg(TKZ_LOG_INFO, "UserName = %s, HostName = %s", user.c_str(), host.c_str());
    // An empty user name (an object manager without authentication) passes.
    if (!adapter.VerifyUserRole(user, host) && !user.empty()) {
        std::string message = user + " : is not a member of Administrator/root";
        calls::setStatus(status, broker, CMPI_RC_ERR_ACCESS_DENIED, message.c_str());
        return false;
    }
    return true;
}

}  // namespace access
}  // namespace vex::cim::adap::cmpi
