// StringObject: CMPIString. Its characters may be NULL (what newString(NULL)
// makes, and what sfcb's principal looks like without authentication).
#ifndef CMPIHOST_SRC_STRINGOBJECT_H
#define CMPIHOST_SRC_STRINGOBJECT_H

#include <optional>
#include <string>

#include "Object.h"

namespace cmpihost::detail {

class StringObject final : public Object {
public:
    StringObject(Broker& broker, std::optional<std::string> text);
    const char* typeName() const override { return "CMPIString"; }
    std::string describe() const override { return m_text.value_or(""); }

    CMPIString* handle() { return &m_face; }
    const std::optional<std::string>& text() const { return m_text; }
    static bool ownsTable(const void* ft);

private:
    CMPIString m_face;
    std::optional<std::string> m_text;
};

// A new string of the calling thread's arena.
CMPIString* newString(Broker& broker, std::optional<std::string> text);
// The characters of any host-made string; nullopt for NULL characters or a
// handle that is not one.
std::optional<std::string> stringText(const CMPIString* s);

}  // namespace cmpihost::detail

#endif
