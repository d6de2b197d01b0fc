// CIMException: the one exception type that fails a request inside the
// framework and the plug-ins. It carries a CIM error code and a message.
//
// Deliberately not derived from std::exception: handlers of standard errors
// (for example std::out_of_range from an index) never swallow it.
#ifndef VEX_FRAMEWORK_CIMEXCEPTION_H
#define VEX_FRAMEWORK_CIMEXCEPTION_H

#include <cstddef>
#include <string>

namespace vex::cim::fwf {

// The codes the system throws. At the CMPI boundary 2 to 18 pass unchanged,
// everything else becomes 1.
enum CIMErrorCode : unsigned int {
    CIM_ERR_FAILED = 1,             // general failure
    CIM_ERR_INVALID_NAMESPACE = 3,
    CIM_ERR_INVALID_CLASS = 5,
    CIM_ERR_NOT_SUPPORTED = 7,
    CIM_ERR_KEY_NOT_PROPER = 20,    // a get-instance whose keys match several instances
    CIM_ERR_ADAPTER_FAILURE = 24    // the adapter cannot convert or reach the facade
};

class CIMException {
public:
    // The message buffer holds this many characters, the terminator included;
    // longer messages are cut.
    static constexpr std::size_t kMessageSize = 1024;

    // Formats the message printf-style; the format must be a literal, never
    // text received from a client (pass such text as a "%s" argument).
    CIMException(unsigned int code, const char* format, ...)
        __attribute__((format(printf, 3, 4)));

    unsigned int getErrCode() const { return m_code; }
    const std::string& getErrMessage() const { return m_message; }

private:
    unsigned int m_code;
    std::string m_message;
};

}  // namespace vex::cim::fwf

#endif
