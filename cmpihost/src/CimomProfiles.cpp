#include "cmpihost/CimomProfiles.h"

namespace cmpihost {

namespace {

struct ProfileName {
    const char* className;
    const char* instanceID;
};

const ProfileName kPegasus[] = {
    {"PG_RegisteredProfile", "SNIA+Profile Registration+1.0.0"},
    {"PG_RegisteredProfile", "SNIA+SMI-S+1.2.0"},
    {"PG_RegisteredProfile", "SNIA+Server+1.1.0"},
    {"PG_RegisteredProfile", "SNIA+Server+1.2.0"},
    {"PG_RegisteredProfile", "DMTF+Profile Registration+1.0.0"},
    {"PG_RegisteredSubProfile", "SNIA+Indication+1.1.0"},
    {"PG_RegisteredSubProfile", "SNIA+Indication+1.2.0"},
    {"PG_RegisteredSubProfile", "SNIA+Software+1.1.0"},
    {"PG_RegisteredSubProfile", "SNIA+Software+1.2.0"},
};

const ProfileName kSfcb[] = {
    {"SFCB_RegisteredProfile", "CIM:SFCB_IP"},
    {"SFCB_RegisteredProfile", "CIM:SFCB_PR"},
};

template <std::size_t N>
void add(InstanceRepository& repository, const char* nameSpace, const ProfileName (&names)[N]) {
    for (const ProfileName& name : names) {
        ObjectPath path(nameSpace, name.className);
        path.addKey("InstanceID", Value::string(name.instanceID));
        repository.addPath(path);
    }
}

}  // namespace

const char* interopNamespace(Flavor flavor) {
    return flavor == Flavor::Sfcb14 ? "root/interop" : "root/PG_InterOp";
}

void addCimomProfiles(InstanceRepository& repository, Flavor flavor) {
    if (flavor == Flavor::Sfcb14) {
        add(repository, interopNamespace(flavor), kSfcb);
    } else {
        add(repository, interopNamespace(flavor), kPegasus);
    }
}

}  // namespace cmpihost
