#include "controller/FsaifReturn.h"

#include "platform/Tkz.h"

namespace vex::cim::fwf {

namespace {

// Indexed by code. Code 7 lacks the "IF" of the others; it is written so.
constexpr const char* kNames[] = {
    "FSAIF_SUCCESS",
    "FSAIF_NOT_IMPL",
    "FSAIF_NOT_ALLOWED",
    "FSAIF_FAIL",
    "FSAIF_INVALID_PARAM",
    "FSAIF_NO_MEMORY",
    "FSAIF_FW_FAILURE",
    "FSA_SYSTEM_FAILURE",
    "FSAIF_UNKNOWN_ERROR",
    "FSAIF_NO_CONTROLLER",
    "FSAIF_INVALID_OBJECT_REF",
    "FSAIF_NOT_SUPPORTED",
    "FSAIF_CACHE_ACCESS_FAILED",
    "FSAIF_CACHE_OBJECT_NOT_FOUND",
    "FSAIF_CACHE_KEY_NOT_UNIQUE",
    "FSAIF_SCSI_GEN_FAIL",
    "FSAIF_SCSI_MORE_INFO",
    "FSAIF_OP_INVALID",
    "FSAIF_DEVICE_NOT_FOUND",
    "FSAIF_ADAP_OPEN_FAILED",
    "FSAIF_VSTREAM_NULL_BUFFER",
};

}  // namespace

const char* fsaifReturnName(unsigned int code) {
    if (code < sizeof kNames / sizeof kNames[0]) {
        return kNames[code];
    }
    return "FSAIF_UNLISTED_ERROR";
}

void logFsaifError(unsigned int code) {
    TkzLogMsg(TKZ_LOG_ERROR, "%s", fsaifReturnName(code));
}

}  // namespace vex::cim::fwf
