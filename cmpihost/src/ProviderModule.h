// ProviderModule: a loaded provider - its library, its four factories and
// every MI they returned. Each factory call that returns an MI is one
// record; requests use the newest record of their kind, and a terminating
// cleanup settles one record. Thread-safe.
#ifndef CMPIHOST_SRC_PROVIDERMODULE_H
#define CMPIHOST_SRC_PROVIDERMODULE_H

#include <cmpift.h>

#include <array>
#include <functional>
#include <memory>
#include <mutex>
#include <string>
#include <utility>
#include <vector>

#include "Library.h"
#include "cmpihost/Host.h"

namespace cmpihost::detail {

class ProviderModule {
public:
    ProviderModule(std::unique_ptr<Library> library, const std::string& providerName);

    const Library& library() const { return *m_library; }
    bool hasFactory(MIKind kind) const { return slot(kind).factory != nullptr; }
    bool hasAnyFactory() const;

    // Calls the factory; the MI it returns (if any) becomes current.
    Status create(MIKind kind, const CMPIBroker* broker, const CMPIContext* ctx);
    // The current MI, made by a first factory call when there is none yet
    // (the factory runs once however many threads ask).
    void* ensure(MIKind kind, const CMPIBroker* broker,
                 const std::function<const CMPIContext*()>& factoryContext, Status& failure);
    int calls(MIKind kind) const;
    void settle(MIKind kind, void* mi);
    // MIs not yet settled, newest first.
    std::vector<std::pair<MIKind, void*>> unsettled() const;

private:
    struct Record {
        void* mi;
        bool settled;
    };
    struct Slot {
        void* factory = nullptr;
        std::vector<Record> records;
    };
    Slot& slot(MIKind kind) { return m_slots[static_cast<std::size_t>(kind)]; }
    const Slot& slot(MIKind kind) const { return m_slots[static_cast<std::size_t>(kind)]; }
    void* current(MIKind kind) const;

    std::unique_ptr<Library> m_library;
    mutable std::mutex m_mutex;     // the records
    std::mutex m_firstCallMutex;    // serialises first factory calls made by requests
    std::array<Slot, 4> m_slots;
};

// "instance", "association", "method", "indication".
const char* kindName(MIKind kind);

}  // namespace cmpihost::detail

#endif
