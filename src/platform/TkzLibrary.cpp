/* Dynamic libraries. */
#include <dlfcn.h>

#include "platform/Tkz.h"

extern "C" TKZ_LIBRARY TkzLoadLibrary(const char *path) {
    if (path == nullptr) {
        return nullptr;
    }
    return dlopen(path, RTLD_NOW);
}

extern "C" int TkzUnloadLibrary(TKZ_LIBRARY library) {
    if (library == nullptr) {
        return 1;
    }
    return dlclose(library) == 0 ? 0 : 1;
}

extern "C" void *TkzGetFuncAddress(TKZ_LIBRARY library, const char *name) {
    if (library == nullptr || name == nullptr) {
        return nullptr;
    }
    return dlsym(library, name);
}
