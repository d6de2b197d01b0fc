#include "PathText.h"

#include <cctype>
#include <cerrno>
#include <cstdlib>

#include "Errors.h"

namespace vexraid {

namespace {

using cmpihost::ObjectPath;
using cmpihost::Value;

constexpr std::size_t kMaxPathText = 64 * 1024;
constexpr int kMaxNesting = 8;

bool isNameStart(char c) { return std::isalpha(static_cast<unsigned char>(c)) || c == '_'; }
bool isNameChar(char c) { return std::isalnum(static_cast<unsigned char>(c)) || c == '_'; }
bool isNamespaceChar(char c) { return isNameChar(c) || c == '/'; }

class PathReader {
public:
    PathReader(const std::string& text, int depth) : m_text(text), m_depth(depth) {}

    ObjectPath read(const std::string& defaultNamespace, bool keysAllowed) {
        if (m_text.size() > kMaxPathText) fail("longer than 64 KiB");
        ObjectPath path;
        readHost(path);
        readNamespace(path, defaultNamespace);
        path.className = name("a class name");
        if (at('.')) {
            if (!keysAllowed) fail("a class name takes no keys");
            do {
                ++m_pos;
                readKey(path);
            } while (at(','));
        }
        if (m_pos != m_text.size()) fail("unexpected '" + std::string(1, m_text[m_pos]) + "'");
        return path;
    }

private:
    [[noreturn]] void fail(const std::string& what) const {
        throw UsageError("malformed object path '" + m_text + "': " + what + " at column " +
                         std::to_string(m_pos + 1));
    }

    bool at(char c) const { return m_pos < m_text.size() && m_text[m_pos] == c; }

    void readHost(ObjectPath& path) {
        if (m_text.compare(0, 2, "//") != 0) return;
        m_pos = 2;
        const std::size_t slash = m_text.find('/', m_pos);
        if (slash == std::string::npos || slash == m_pos) fail("expected //host/");
        path.host = m_text.substr(m_pos, slash - m_pos);
        m_pos = slash + 1;
    }

    // A namespace is what comes before the first ':' when only namespace
    // characters lead up to it.
    void readNamespace(ObjectPath& path, const std::string& defaultNamespace) {
        std::size_t end = m_pos;
        while (end < m_text.size() && isNamespaceChar(m_text[end])) ++end;
        if (end < m_text.size() && m_text[end] == ':') {
            if (end == m_pos) fail("empty namespace");
            const std::string nameSpace = m_text.substr(m_pos, end - m_pos);
            if (nameSpace.front() == '/' || nameSpace.back() == '/' ||
                nameSpace.find("//") != std::string::npos) {
                fail("empty namespace segment");
            }
            path.nameSpace = nameSpace;
            m_pos = end + 1;
        } else {
            path.nameSpace = defaultNamespace;
        }
    }

    std::string name(const char* what) {
        if (m_pos >= m_text.size() || !isNameStart(m_text[m_pos])) fail(std::string("expected ") + what);
        const std::size_t start = m_pos;
        while (m_pos < m_text.size() && isNameChar(m_text[m_pos])) ++m_pos;
        return m_text.substr(start, m_pos - start);
    }

    void readKey(ObjectPath& path) {
        const std::string key = name("a key name");
        if (!at('=')) fail("expected '=' after " + key);
        ++m_pos;
        if (path.key(key) != nullptr) fail("key " + key + " given twice");
        path.keys.push_back({key, keyValue()});
    }

    Value keyValue() {
        if (at('"')) return quotedValue();
        const std::size_t start = m_pos;
        while (m_pos < m_text.size() && m_text[m_pos] != ',') ++m_pos;
        const std::string word = m_text.substr(start, m_pos - start);
        if (word.empty()) fail("expected a key value");
        return bareValue(word, start);
    }

    Value bareValue(const std::string& word, std::size_t start) {
        std::string upper;
        for (char c : word) upper += static_cast<char>(std::toupper(static_cast<unsigned char>(c)));
        if (upper == "TRUE" || upper == "FALSE") return Value::boolean(upper == "TRUE");
        errno = 0;
        char* end = nullptr;
        if (word[0] == '-') {
            const long long v = std::strtoll(word.c_str(), &end, 10);
            if (errno == 0 && *end == '\0') return Value::sint64(v);
        } else if (std::isdigit(static_cast<unsigned char>(word[0]))) {
            const unsigned long long v = std::strtoull(word.c_str(), &end, 10);
            if (errno == 0 && *end == '\0') {
                return v <= 0x7fffffffffffffffULL ? Value::sint64(static_cast<long long>(v)) : Value::uint64(v);
            }
        }
        m_pos = start;
        fail("'" + word + "' is no number, TRUE, FALSE or quoted text");
    }

    Value quotedValue() {
        std::string text;
        ++m_pos;
        while (!at('"')) {
            if (m_pos >= m_text.size()) fail("unterminated quoted value");
            if (at('\\') && m_pos + 1 < m_text.size()) ++m_pos;
            text += m_text[m_pos++];
        }
        ++m_pos;
        return referenceOrString(text);
    }

    Value referenceOrString(const std::string& text) const {
        const bool looksLikePath = text.find(':') != std::string::npos && text.find('=') != std::string::npos;
        if (!looksLikePath || m_depth >= kMaxNesting) return Value::string(text);
        try {
            ObjectPath ref = PathReader(text, m_depth + 1).read("", true);
            if (!ref.nameSpace.empty() && !ref.keys.empty()) return Value::ref(std::move(ref));
        } catch (const UsageError&) {
        }
        return Value::string(text);
    }

    const std::string& m_text;
    int m_depth;
    std::size_t m_pos = 0;
};

}  // namespace

ObjectPath parseObjectPath(const std::string& text, const std::string& defaultNamespace) {
    return PathReader(text, 0).read(defaultNamespace, true);
}

ObjectPath parseClassPath(const std::string& text, const std::string& defaultNamespace) {
    return PathReader(text, 0).read(defaultNamespace, false);
}

std::string pathText(const ObjectPath& path) {
    ObjectPath local = path;
    local.host.clear();
    return local.toString();
}

}  // namespace vexraid
