// Pieces every adapter operation shares: the entry and exit trace, the
// conversion of the request path, the facade, and the mapping of a thrown
// failure to the request's status.
#ifndef VEX_CMPI_CMPIADAPTERSUPPORT_H
#define VEX_CMPI_CMPIADAPTERSUPPORT_H

#include <cmpidt.h>
#include <cmpift.h>

#include <string>

#include "framework/CIMException.h"
#include "framework/CIMObjectPath.h"
#include "framework/FrameworkFacade.h"
#include "platform/TkzLogScope.h"

namespace vex::cim::adap::cmpi::support {

// Traces "Entering CMPIAdapter::<operation>" now and "Exiting ..." when it
// goes out of scope. The whole operation is one answer for the log switch
// (platform/TkzLogScope.h): with logging off, its lines cost one look.
class OperationTrace {
public:
    explicit OperationTrace(const char* operation);
    ~OperationTrace();
    OperationTrace(const OperationTrace&) = delete;
    OperationTrace& operator=(const OperationTrace&) = delete;

private:
    platform::LogAnswerScope m_logScope;
    std::string m_operation;
};

// The request path as a framework path; a path without class name is
// refused with CIMException 24 "Failed to convert CMPI ObjectPath to CIM
// ObjectPath".
// A path in a namespace the provider does not serve (neither the
// implementation namespace nor an interop one) is refused with
// CIMException 3 " :: Invalid namespace".
fwf::CIMObjectPath requestPath(const CMPIObjectPath* ref, bool withKeys);

// requestPath of a class the request is for: a class that no plug-in serves
// in the path's namespace is refused with CIMException 5 " :: Invalid class".
fwf::CIMObjectPath servedPath(const CMPIObjectPath* ref, bool withKeys);

// Logs "CMPIAdapter::<operation> ClassName:<class>" at level 5.
void logClassName(const char* operation, const fwf::CIMObjectPath& path);

// The facade, or CIMException 24 "Failed to Create FrameworkFacade Instance".
fwf::FrameworkFacade& requireFacade();

// The status of a failed request.
void setFailure(const fwf::CIMException& e, const CMPIBroker* broker, CMPIStatus* status);
void setUnknownFailure(const CMPIBroker* broker, CMPIStatus* status);

// Runs body; a CIMException becomes its mapped rc and message, anything
// else rc 1 "Failed : Unknown Error".
template <typename Body>
void guarded(const CMPIBroker* broker, CMPIStatus* status, Body body) {
    try {
        body();
    } catch (const fwf::CIMException& e) {
        setFailure(e, broker, status);
    } catch (...) {
        setUnknownFailure(broker, status);
    }
}

// A CMPI string argument as std::string (null reads as empty).
inline std::string text(const char* value) { return value != nullptr ? value : ""; }

}  // namespace vex::cim::adap::cmpi::support

#endif
