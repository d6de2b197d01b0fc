// The snapshot as XML text, and back.
#include <cstdlib>
#include <vector>

#include "monitor/ConfigSnapshot.h"

namespace vex::monitor {

namespace {

// The attributes that tell one object of an element from another. Plain
// arrays: the table needs no destruction, so the monitor thread may still
// read it while the process exits.
struct IdentityRow {
    const char* element;
    const char* attributes[4];  // up to four, null-terminated when fewer
};

constexpr IdentityRow kIdentities[] = {
    {"Controller", {"controllerID", nullptr, nullptr, nullptr}},
    {"Battery", {nullptr, nullptr, nullptr, nullptr}},
    {"HardDrive", {"channelID", "deviceID", nullptr, nullptr}},
    {"LogicalDrive", {"logicalDriveID", nullptr, nullptr, nullptr}},
    {"SES2EnclosureDevice", {"channelID", "deviceID", nullptr, nullptr}},
    {"SESElement", {"channelID", "deviceID", "elementType", "elementIndex"}},
    {"Progress", {"taskID", nullptr, nullptr, nullptr}},
};

std::string escaped(const std::string& text) {
    std::string out;
    out.reserve(text.size());
    for (char c : text) {
        switch (c) {
        case '&': out += "&amp;"; break;
        case '<': out += "&lt;"; break;
        case '>': out += "&gt;"; break;
        case '"': out += "&quot;"; break;
        case '\'': out += "&apos;"; break;
        default: out += c;
        }
    }
    return out;
}

void writeElement(const SnapshotObject& o, const char* indent, bool close, std::string& out) {
    out += indent;
    out += '<';
    out += o.element;
    for (const auto& attribute : o.attributes) {
        out += ' ' + attribute.first + "=\"" + escaped(attribute.second) + '"';
    }
    out += close ? "/>\n" : ">\n";
}

// ---- reading -------------------------------------------------------------------

class Reader {
public:
    explicit Reader(const std::string& text) : m_text(text) {}

    bool read(ConfigSnapshot& snapshot);

private:
    struct Tag {
        bool closing = false;
        bool selfClosing = false;
        SnapshotObject object;
    };

    bool nextTag(Tag& tag);
    bool name(std::string& out);
    bool value(std::string& out);
    void skipBlanks() {
        while (m_at < m_text.size() && (m_text[m_at] == ' ' || m_text[m_at] == '\n' ||
                                        m_text[m_at] == '\t' || m_text[m_at] == '\r')) {
            ++m_at;
        }
    }
    bool take(char c) {
        if (m_at < m_text.size() && m_text[m_at] == c) {
            ++m_at;
            return true;
        }
        return false;
    }

    const std::string& m_text;
    std::size_t m_at = 0;
};

bool Reader::name(std::string& out) {
    const std::size_t start = m_at;
    while (m_at < m_text.size()) {
        const char c = m_text[m_at];
        if (!((c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z') || (c >= '0' && c <= '9') || c == '_')) {
            break;
        }
        ++m_at;
    }
    out.assign(m_text, start, m_at - start);
    return !out.empty();
}

bool Reader::value(std::string& out) {
    if (!take('"')) {
        return false;
    }
    static const std::pair<const char*, char> kEntities[] = {
        {"&amp;", '&'}, {"&lt;", '<'}, {"&gt;", '>'}, {"&quot;", '"'}, {"&apos;", '\''}};
    out.clear();
    while (m_at < m_text.size() && m_text[m_at] != '"') {
        if (m_text[m_at] == '<') {
            return false;
        }
        if (m_text[m_at] != '&') {
            out += m_text[m_at++];
            continue;
        }
        bool known = false;
        for (const auto& entity : kEntities) {
            if (m_text.compare(m_at, std::char_traits<char>::length(entity.first), entity.first) == 0) {
                out += entity.second;
                m_at += std::char_traits<char>::length(entity.first);
                known = true;
                break;
            }
        }
        if (!known) {
            return false;
        }
    }
    return take('"');
}

bool Reader::nextTag(Tag& tag) {
    skipBlanks();
    if (!take('<')) {
        return false;
    }
    tag = Tag{};
    tag.closing = take('/');
    if (!name(tag.object.element)) {
        return false;
    }
    for (;;) {
        skipBlanks();
        if (take('>')) {
            return true;
        }
        if (!tag.closing && take('/')) {
            tag.selfClosing = true;
            return take('>');
        }
        if (tag.closing) {
            return false;
        }
        std::string attribute;
        std::string text;
        if (!name(attribute) || !take('=') || !value(text)) {
            return false;
        }
        tag.object.attributes.emplace_back(std::move(attribute), std::move(text));
    }
}

// Layout: Config > Controller > objects, with Progress one level deeper
// inside ProgressCollection.
bool Reader::read(ConfigSnapshot& snapshot) {
    skipBlanks();
    if (m_text.compare(m_at, 5, "<?xml") == 0) {
        const std::size_t end = m_text.find("?>", m_at);
        if (end == std::string::npos) {
            return false;
        }
        m_at = end + 2;
    }
    Tag tag;
    if (!nextTag(tag) || tag.closing || tag.object.element != "Config") {
        return false;
    }
    if (tag.selfClosing) {
        skipBlanks();
        return m_at == m_text.size();
    }
    std::vector<std::string> open = {"Config"};
    while (!open.empty()) {
        if (!nextTag(tag)) {
            return false;
        }
        if (tag.closing) {
            if (tag.object.element != open.back()) {
                return false;
            }
            open.pop_back();
            continue;
        }
        const std::size_t depth = open.size();
        if (depth == 1) {
            if (tag.object.element != "Controller") {
                return false;
            }
            snapshot.adapters.push_back(AdapterSnapshot{tag.object, {}});
        } else if (depth == 2 || (depth == 3 && open.back() == "ProgressCollection")) {
            if (tag.object.element != "ProgressCollection") {
                snapshot.adapters.back().objects.push_back(tag.object);
            }
        } else {
            return false;
        }
        if (!tag.selfClosing) {
            open.push_back(tag.object.element);
        }
    }
    skipBlanks();
    return m_at == m_text.size();
}

}  // namespace

std::string SnapshotObject::get(const std::string& name) const {
    for (const auto& attribute : attributes) {
        if (attribute.first == name) {
            return attribute.second;
        }
    }
    return {};
}

bool SnapshotObject::has(const std::string& name) const {
    for (const auto& attribute : attributes) {
        if (attribute.first == name) {
            return true;
        }
    }
    return false;
}

void SnapshotObject::set(const std::string& name, std::string value) {
    for (auto& attribute : attributes) {
        if (attribute.first == name) {
            attribute.second = std::move(value);
            return;
        }
    }
    attributes.emplace_back(name, std::move(value));
}

std::string SnapshotObject::identity() const {
    std::string id = element;
    for (const IdentityRow& row : kIdentities) {
        if (element == row.element) {
            for (const char* attribute : row.attributes) {
                if (attribute == nullptr) {
                    break;
                }
                id += '|' + get(attribute);
            }
            return id;
        }
    }
    return id;
}

std::uint32_t AdapterSnapshot::id() const {
    return static_cast<std::uint32_t>(std::strtoul(controller.get("controllerID").c_str(), nullptr, 10));
}

std::string toXml(const ConfigSnapshot& snapshot) {
    std::string out = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<Config>\n";
    for (const AdapterSnapshot& adapter : snapshot.adapters) {
        writeElement(adapter.controller, "  ", false, out);
        bool anyProgress = false;
        for (const SnapshotObject& o : adapter.objects) {
            if (o.element == "Progress") {
                anyProgress = true;
                continue;
            }
            writeElement(o, "    ", true, out);
        }
        if (anyProgress) {
            out += "    <ProgressCollection>\n";
            for (const SnapshotObject& o : adapter.objects) {
                if (o.element == "Progress") {
                    writeElement(o, "      ", true, out);
                }
            }
            out += "    </ProgressCollection>\n";
        }
        out += "  </Controller>\n";
    }
    out += "</Config>\n";
    return out;
}

bool fromXml(const std::string& text, ConfigSnapshot& snapshot) {
    snapshot = ConfigSnapshot{};
    Reader reader(text);
    if (!reader.read(snapshot)) {
        snapshot = ConfigSnapshot{};
        return false;
    }
    return true;
}

}  // namespace vex::monitor
