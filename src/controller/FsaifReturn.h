// _FSAIF_Return: the result codes of the controller access layer, returned
// by the controller interface and by every routine and wrapper, and thrown
// as an exception object where a call cannot go on (21: no library handle).
#ifndef VEX_CONTROLLER_FSAIFRETURN_H
#define VEX_CONTROLLER_FSAIFRETURN_H

namespace vex::cim::fwf {

enum _FSAIF_Return : unsigned int {
    FSAIF_SUCCESS = 0,
    FSAIF_NOT_IMPL = 1,
    FSAIF_NOT_ALLOWED = 2,
    FSAIF_FAIL = 3,
    FSAIF_INVALID_PARAM = 4,
    FSAIF_NO_MEMORY = 5,
    FSAIF_FW_FAILURE = 6,
    FSA_SYSTEM_FAILURE = 7,
    FSAIF_UNKNOWN_ERROR = 8,
    FSAIF_NO_CONTROLLER = 9,
    FSAIF_INVALID_OBJECT_REF = 10,
    FSAIF_NOT_SUPPORTED = 11,
    FSAIF_CACHE_ACCESS_FAILED = 12,
    FSAIF_CACHE_OBJECT_NOT_FOUND = 13,
    FSAIF_CACHE_KEY_NOT_UNIQUE = 14,
    FSAIF_SCSI_GEN_FAIL = 15,
    FSAIF_SCSI_MORE_INFO = 16,
    FSAIF_OP_INVALID = 17,
    FSAIF_DEVICE_NOT_FOUND = 18,
    FSAIF_ADAP_OPEN_FAILED = 19,
    FSAIF_VSTREAM_NULL_BUFFER = 20
};

// Thrown when the StorLib handle is missing. It has no name of its own and
// is logged as "FSAIF_UNLISTED_ERROR".
constexpr _FSAIF_Return kFsaifNoLibraryHandle = static_cast<_FSAIF_Return>(21);

// The code's name; "FSAIF_UNLISTED_ERROR" for any value past 20.
const char* fsaifReturnName(unsigned int code);

// Writes the code's name as an error line.
void logFsaifError(unsigned int code);

// Throws kFsaifNoLibraryHandle when handle is null.
template <typename T>
T* requireLibraryHandle(T* handle) {
    if (handle == nullptr) {
        throw kFsaifNoLibraryHandle;
    }
    return handle;
}

}  // namespace vex::cim::fwf

#endif
