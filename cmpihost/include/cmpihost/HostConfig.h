// HostConfig: which CIMOM the host imitates, and the defaults of its
// requests.
//
// Pegasus214: brokerName "Pegasus", brokerVersion 200, capabilities 0x81FF;
//   extended errors, message files, setPropertyWithOrigin and the memory
//   table present, but NULL: the context's clone, the result's release and
//   clone, the object path's four qualifier getters, and the broker
//   extension's timedCondWait and signalCondition.
// Sfcb14: brokerName "RequestHandler", brokerVersion 0, capabilities
//   0x1BF, and the CMPI 2.0 additions sfcb 1.4 leaves
//   NULL: newCMPIError, openMessageFile, closeMessageFile, getMessage2, the
//   result's returnError, the instance's setPropertyWithOrigin, and the whole
//   CMPIBrokerMemFT (broker->mft is NULL).
#ifndef CMPIHOST_HOSTCONFIG_H
#define CMPIHOST_HOSTCONFIG_H

#include <string>

#include "cmpihost/Principal.h"

namespace cmpihost {

enum class Flavor { Pegasus214, Sfcb14 };

struct HostConfig {
    Flavor flavor = Flavor::Pegasus214;
    // Default principal of every request (a request can override it).
    Principal principal = Principal::user("root");
    // Object path keys are handed back in the CMPI key types (string,
    // sint64, boolean, ref) whatever type they were added with, as a broker
    // that keeps keys in text form does. Set to keep the type as added.
    bool keepKeyTypes = false;

    // With basic authentication OpenPegasus' principal is the login name;
    // without, it is the empty string.
    static HostConfig pegasus214(std::string user = "root") {
        return {Flavor::Pegasus214, Principal::user(std::move(user)), false};
    }
    static HostConfig pegasus214WithoutAuth() {
        return {Flavor::Pegasus214, Principal::user(""), false};
    }
    // Without authentication sfcb's principal has NULL characters; with
    // basic authentication it is the login name.
    static HostConfig sfcb14(bool basicAuth = false, std::string user = "root") {
        return {Flavor::Sfcb14,
                basicAuth ? Principal::user(std::move(user)) : Principal::nullChars(), false};
    }
};

}  // namespace cmpihost

#endif
