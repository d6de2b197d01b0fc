// CimomProfiles: the registered profiles a real object manager holds in its
// own interop namespace, as a provider's up-calls find them.
//   OpenPegasus 2.14.4, root/PG_InterOp: PG_RegisteredProfile SNIA Profile
//     Registration 1.0.0, SMI-S 1.2.0, Server 1.1.0 and 1.2.0, DMTF Profile
//     Registration 1.0.0; PG_RegisteredSubProfile SNIA Indication 1.1.0 and
//     1.2.0, Software 1.1.0 and 1.2.0.
//   sfcb 1.4.10, root/interop: SFCB_RegisteredProfile DMTF Profile
//     Registration 1.0.0 and DMTF Indications 1.1.0; it has no PG_ classes.
#ifndef CMPIHOST_CIMOMPROFILES_H
#define CMPIHOST_CIMOMPROFILES_H

#include "cmpihost/HostConfig.h"
#include "cmpihost/InstanceRepository.h"

namespace cmpihost {

// The interop namespace of the imitated object manager.
const char* interopNamespace(Flavor flavor);

// Adds the object manager's own profile instance names to the repository.
void addCimomProfiles(InstanceRepository& repository, Flavor flavor);

}  // namespace cmpihost

#endif
