// ErrorInfo: host-side copy of a CMPIError (a CIM_Error), as made by the
// broker's newCMPIError and returned by a provider with returnError.
#ifndef CMPIHOST_ERRORINFO_H
#define CMPIHOST_ERRORINFO_H

#include <cmpidt.h>

#include <string>

#include "cmpihost/Value.h"

namespace cmpihost {

struct ErrorInfo {
    CMPIErrorType errorType = UnknownErrorType;
    std::string otherErrorType;
    std::string owningEntity;
    std::string messageId;
    std::string message;
    CMPIErrorSeverity severity = ErrorSevUnknown;
    CMPIErrorProbableCause probableCause = ErrorProbCauseUnknown;
    std::string probableCauseDescription;
    Value recommendedActions = Value::null(CMPI_stringA);
    std::string errorSource;
    CMPIErrorSrcFormat errorSourceFormat = CMPIErrSrcUnknown;
    std::string otherErrorSourceFormat;
    CMPIrc cimStatusCode = CMPI_RC_OK;
    std::string cimStatusCodeDescription;
    Value messageArguments = Value::null(CMPI_stringA);
};

}  // namespace cmpihost

#endif
