// Object: base of every CMPI object the host makes. The CMPI handle's hdl
// points at the Object; the owning arena deletes it at the end of its
// request or thread attachment unless it is released earlier. Objects a
// request hands to the provider (context, result, arguments) are pinned:
// the provider's release() leaves them to the request.
#ifndef CMPIHOST_SRC_OBJECT_H
#define CMPIHOST_SRC_OBJECT_H

#include <cmpift.h>

#include <string>

namespace cmpihost::detail {

class Arena;
class Broker;

class Object {
public:
    explicit Object(Broker& broker);
    virtual ~Object();
    Object(const Object&) = delete;
    Object& operator=(const Object&) = delete;

    // "CMPIString", "CMPIInstance", ... as getType() reports it.
    virtual const char* typeName() const = 0;
    // What the broker's toString() shows.
    virtual std::string describe() const;

    Broker& broker() const { return m_broker; }
    Arena* arena() const { return m_arena; }
    void setArena(Arena* arena) { m_arena = arena; }
    bool pinned() const { return m_pinned; }
    void pin() { m_pinned = true; }

    // The Object behind any host-made handle (hdl, ft at the start of every
    // CMPI object); null for NULL, hollow or foreign handles.
    static Object* behind(const void* handle);
    // Called by every object's release(): deletes the object unless pinned.
    static CMPIStatus release(void* handle);

private:
    Broker& m_broker;
    Arena* m_arena = nullptr;
    bool m_pinned = false;
};

// Every handle struct is { void* hdl; FT* ft; }.
struct RawHandle {
    void* hdl;
    const void* ft;
};

// Function tables of every object kind, to recognise host-made handles.
bool isHostTable(const void* ft);

// Turns a handle into the object of type T when its function table is one
// of T's (T::ownsTable); null otherwise.
template <class T, class Face>
T* objectOf(const Face* handle) {
    if (handle == nullptr || handle->hdl == nullptr || !T::ownsTable(handle->ft)) {
        return nullptr;
    }
    return static_cast<T*>(static_cast<Object*>(handle->hdl));
}

}  // namespace cmpihost::detail

#endif
