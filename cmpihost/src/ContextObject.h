// ContextObject: CMPIContext - named entries in the order added. An entry
// can be a CMPI_string whose characters are NULL (sfcb's principal without
// authentication).
#ifndef CMPIHOST_SRC_CONTEXTOBJECT_H
#define CMPIHOST_SRC_CONTEXTOBJECT_H

#include <mutex>
#include <string>
#include <vector>

#include "Object.h"
#include "cmpihost/Value.h"

namespace cmpihost::detail {

class ContextObject final : public Object {
public:
    struct Entry {
        std::string name;
        Value value;
        bool nullChars = false;
    };

    ContextObject(Broker& broker, std::vector<Entry> entries);
    const char* typeName() const override { return "CMPIContext"; }

    CMPIContext* handle() { return &m_face; }
    std::vector<Entry> entries() const;
    // Replaces an entry of the same name (exact match) or appends.
    void put(Entry entry);
    // False when there is no entry at that name / index.
    bool find(const std::string& name, Entry& out) const;
    bool at(std::size_t index, Entry& out) const;
    std::size_t count() const;
    static bool ownsTable(const void* ft);

private:
    CMPIContext m_face;
    // A prepared context may be shared by the provider's threads.
    mutable std::mutex m_mutex;
    std::vector<Entry> m_entries;
};

}  // namespace cmpihost::detail

#endif
