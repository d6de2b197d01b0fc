// Where the controller interface gets its StorLib handle, and the small
// free functions that read it.
#include <memory>

#include <storlib/StorLib.h>

#include "controller/VexFSAInterface.h"

namespace vex::cim::fwf {

// The interface opens the library itself, once: the handle is kept until
// terminate drops it. The RAID event monitor opens a handle of its own, so
// that its event cursor and its lifetime are independent of this one.
void VexFSAInterface::acquireLibrary() {
    if (m_storLib.load() != nullptr) {
        return;
    }
    auto library = std::make_unique<storlib::StorLib>();
    const storlib::Ret opened = library->open();
    if (!opened.ok()) {
        TkzLogMsg(TKZ_LOG_ERROR, "[AFAIF] Failed to open the controller library: %s",
                  opened.getReason().c_str());
        return;
    }
    m_ownLibrary = std::move(library);
    m_storLib = m_ownLibrary.get();
}

unsigned int fsaifGetControllerCount(int& count) {
    try {
        count = 0;
        VexFSAInterface* fsa = VexFSAInterface::getInstance();
        storlib::StorLib* library = requireLibraryHandle(fsa != nullptr ? fsa->getStorLib() : nullptr);
        count = static_cast<int>(library->getNumAdapters());
        return FSAIF_SUCCESS;
    } catch (...) {
        TkzLogMsg(TKZ_LOG_ERROR, "[AFAIF] Exception Occoured");
        return FSAIF_FAIL;
    }
}

void FSAIF_PutSignature() {
    TkzLogMsg(TKZ_LOG_FATAL, "[AFAIF]BUILD_NUMBER         :   %d", 0);
    TkzLogMsg(TKZ_LOG_FATAL, "[AFAIF]BUILD_TIME_STAMP     :   %s %s", __DATE__, __TIME__);
}

}  // namespace vex::cim::fwf
