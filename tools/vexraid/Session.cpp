#include "Session.h"

#include <dlfcn.h>
#include <pwd.h>
#include <unistd.h>

#include <cstdlib>
#include <filesystem>

#include "BuiltinSchema.h"
#include "cmpihost/CimomProfiles.h"
#include "Errors.h"

namespace vexraid {

namespace {

const char* const kProviderName = "vexRAIDProvider15";

std::string absolute(const std::string& path) {
    std::error_code error;
    const std::filesystem::path full = std::filesystem::absolute(path, error);
    return error ? path : full.lexically_normal().string();
}

std::string loginName() {
    const passwd* entry = getpwuid(geteuid());
    return entry != nullptr && entry->pw_name != nullptr ? entry->pw_name : "root";
}

void teachClasses(cmpihost::ClassHierarchy& classes, const vex::mof::ProviderSchema& schema) {
    for (const auto& [cls, super] : schema.chains().links()) {
        if (!super.empty()) classes.add(cls, super);
    }
    for (const vex::mof::ClassDecl& cls : schema.classes()) {
        if (!cls.superClass.empty()) classes.add(cls.name, cls.superClass);
    }
}

// An object manager never unloads this provider (its cleanup answers "never
// unload" until shutdown); the session does the same: after the terminating
// cleanup the library stays mapped, so nothing of it is referenced from
// unmapped memory while the process ends.
void keepMapped(const cmpihost::Host& host) {
    void* handle = dlopen(host.openedFile().c_str(), RTLD_NOW | RTLD_NOLOAD | RTLD_NODELETE);
    if (handle != nullptr) dlclose(handle);
}

}  // namespace

void applySimulatorOptions(const Options& options) {
    if (options.system) {
        std::error_code error;
        if (!std::filesystem::is_regular_file(*options.system, error)) {
            throw UsageError("no system description file " + *options.system);
        }
        setenv("STORVEX_SYSTEM", absolute(*options.system).c_str(), 1);
    }
    if (options.stateDir) {
        setenv("STORVEX_STATE_DIR", absolute(*options.stateDir).c_str(), 1);
    }
    if (options.timeScale) {
        setenv("STORVEX_TIME_SCALE", std::to_string(*options.timeScale).c_str(), 1);
    }
}

cmpihost::Principal principalOf(const Options& options) {
    if (options.user) return cmpihost::Principal::user(*options.user);
    if (options.cimom == "sfcb") return cmpihost::Principal::nullChars();
    return cmpihost::Principal::user(loginName());
}

void requireOk(const cmpihost::Response& response) {
    if (!response.ok()) {
        throw CimError(response.status.rc, response.status.message.value_or(""));
    }
}

Session::Session(const Options& options) : m_options(options) {
    applySimulatorOptions(options);
    cmpihost::HostConfig config;
    config.flavor = options.cimom == "sfcb" ? cmpihost::Flavor::Sfcb14 : cmpihost::Flavor::Pegasus214;
    config.principal = principalOf(options);
    m_host = std::make_unique<cmpihost::Host>(config);
    teachClasses(m_host->classes(), schema());
    cmpihost::addCimomProfiles(m_host->repository(), config.flavor);
    cmpihost::LoadOptions load;
    load.globalSymbols = options.cimom == "sfcb";  // sfcb opens providers with RTLD_GLOBAL
    const cmpihost::Status status = m_host->load(options.provider, kProviderName, load);
    if (!status.ok()) {
        throw CimError(status.rc, status.message.value_or("cannot load " + options.provider));
    }
    keepMapped(*m_host);
}

Session::~Session() = default;

const vex::mof::ProviderSchema& Session::schema() const { return vex::mof::builtinSchema(); }

}  // namespace vexraid
