// CMPIBrokerMemFT (OpenPegasus only): marks of the calling thread's arena,
// early release of objects, and plain heap functions.
#include <cstdlib>
#include <cstring>

#include "Broker.h"
#include "BrokerTables.h"
#include "Status.h"

namespace cmpihost::detail {

namespace {

// What mark() hands out: the arena and its position. Itself owned by that
// arena, so a mark never released goes with the request.
class GcMark final : public Object {
public:
    GcMark(Broker& broker, Arena& arena) : Object(broker), m_arena(arena) {}
    const char* typeName() const override { return "CMPIGcStat"; }
    void fix() { m_mark = m_arena.mark(); }
    void releaseLater() {
        m_arena.destroyAfter(m_mark);
        m_arena.destroy(this);
    }

private:
    Arena& m_arena;
    std::uint64_t m_mark = 0;
};

CMPIGcStat* mark(const CMPIBroker* mb, CMPIStatus* rc) {
    Broker* b = Broker::of(mb);
    setStatus(rc, b ? CMPI_RC_OK : CMPI_RC_ERR_INVALID_HANDLE);
    if (b == nullptr) {
        return nullptr;
    }
    GcMark* m = b->make<GcMark>(b->arena());
    m->fix();
    return m;
}

CMPIStatus release(const CMPIBroker* mb, const CMPIGcStat* gc) {
    if (Broker::of(mb) == nullptr || gc == nullptr) {
        return status(CMPI_RC_ERR_INVALID_HANDLE);
    }
    static_cast<GcMark*>(const_cast<CMPIGcStat*>(gc))->releaseLater();
    return status(CMPI_RC_OK);
}

void* cmpiMalloc(const CMPIBroker*, size_t size) { return std::malloc(size); }
void* cmpiCalloc(const CMPIBroker*, size_t n, size_t size) { return std::calloc(n, size); }
void* cmpiRealloc(const CMPIBroker*, void* ptr, size_t size) { return std::realloc(ptr, size); }
char* cmpiStrDup(const CMPIBroker*, const char* str) { return str ? ::strdup(str) : nullptr; }
void cmpiFree(const CMPIBroker*, void* ptr) { std::free(ptr); }

void freeInstance(const CMPIBroker*, CMPIInstance* inst) { Object::release(inst); }
void freeObjectPath(const CMPIBroker*, CMPIObjectPath* obj) { Object::release(obj); }
void freeArgs(const CMPIBroker*, CMPIArgs* args) { Object::release(args); }
void freeString(const CMPIBroker*, CMPIString* str) { Object::release(str); }
void freeArray(const CMPIBroker*, CMPIArray* array) { Object::release(array); }
void freeDateTime(const CMPIBroker*, CMPIDateTime* date) { Object::release(date); }
void freeSelectExp(const CMPIBroker*, CMPISelectExp* se) { Object::release(se); }

CMPIBrokerMemFT g_table = {CMPICurrentVersion, mark,           release,      cmpiMalloc,
                           cmpiCalloc,         cmpiRealloc,    cmpiStrDup,   cmpiFree,
                           freeInstance,       freeObjectPath, freeArgs,     freeString,
                           freeArray,          freeDateTime,   freeSelectExp};

}  // namespace

CMPIBrokerMemFT* brokerMemory(Flavor flavor) {
    return flavor == Flavor::Sfcb14 ? nullptr : &g_table;
}

}  // namespace cmpihost::detail
