// CMPIBrokerEncFT entries about objects rather than making them: toString,
// isOfType, getType, messages, logging, tracing, extended errors and
// message files.
#ifndef CMPIHOST_SRC_BROKERDIAGNOSTICS_H
#define CMPIHOST_SRC_BROKERDIAGNOSTICS_H

#include <cmpift.h>

namespace cmpihost::detail::diagnostics {

CMPIString* toString(const CMPIBroker* mb, const void* object, CMPIStatus* rc);
CMPIBoolean isOfType(const CMPIBroker* mb, const void* object, const char* type, CMPIStatus* rc);
CMPIString* getType(const CMPIBroker* mb, const void* object, CMPIStatus* rc);
CMPIString* getMessage(const CMPIBroker* mb, const char* msgId, const char* defMsg,
                       CMPIStatus* rc, CMPICount count, ...);
CMPIStatus logMessage(const CMPIBroker* mb, int severity, const char* id, const char* text,
                      const CMPIString* string);
CMPIStatus trace(const CMPIBroker* mb, int level, const char* component, const char* text,
                 const CMPIString* string);
CMPIError* newCMPIError(const CMPIBroker* mb, const char* owner, const char* msgID,
                        const char* msg, const CMPIErrorSeverity sev,
                        const CMPIErrorProbableCause pc, const CMPIrc cimStatusCode,
                        CMPIStatus* rc);
CMPIStatus openMessageFile(const CMPIBroker* mb, const char* msgFile,
                           CMPIMsgFileHandle* msgFileHandle);
CMPIStatus closeMessageFile(const CMPIBroker* mb, const CMPIMsgFileHandle msgFileHandle);
CMPIString* getMessage2(const CMPIBroker* mb, const char* msgId,
                        const CMPIMsgFileHandle msgFileHandle, const char* defMsg,
                        CMPIStatus* rc, CMPICount count, ...);

}  // namespace cmpihost::detail::diagnostics

#endif
