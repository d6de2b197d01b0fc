// The shape every controller wrapper shares: trace, library handle, call,
// Ret copied out, result code.
#ifndef VEX_CONTROLLER_FSAIFCALL_H
#define VEX_CONTROLLER_FSAIFCALL_H

#include <exception>

#include <storlib/StorLib.h>

#include "controller/FsaTrace.h"
#include "controller/VexFSAInterface.h"

namespace vex::cim::fwf {

template <typename Call>
unsigned int fsaifCall(const char* wrapper, storlib::Ret& ret, Call&& call) {
    fsaMethodTrace trace(wrapper);
    VexFSAInterface* fsa = VexFSAInterface::getInstance();
    storlib::StorLib& library = *requireLibraryHandle(fsa != nullptr ? fsa->getStorLib() : nullptr);
    try {
        ret = call(library);
    } catch (const std::exception& e) {
        TkzLogMsg(TKZ_LOG_ERROR, "%s: exception from the controller library: %s", wrapper, e.what());
        return FSAIF_FAIL;
    }
    return ret.ok() ? FSAIF_SUCCESS : FSAIF_FW_FAILURE;
}

}  // namespace vex::cim::fwf

#endif
