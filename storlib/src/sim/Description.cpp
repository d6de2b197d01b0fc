#include "sim/Description.h"

#include "sim/DescriptionExtras.h"
#include "sim/Json.h"

namespace storlib::sim {
namespace {

constexpr const char* kStateFormat = "storvex-state";

DriveRef parseRef(const json& j, const std::string& path) {
    if (j.is_object()) {
        uint32_t ch = 0, dev = 0;
        if (j.contains("channel")) readValue(j.at("channel"), ch, path + ".channel");
        readValue(j.at("device"), dev, path + ".device");
        return {ch, dev};
    }
    if (!j.is_string()) throw FieldError(path, "expected \"channel:device\"");
    std::string s = j.get<std::string>();
    size_t colon = s.find(':');
    try {
        size_t used = 0;
        if (colon == std::string::npos) throw std::invalid_argument(s);
        unsigned long ch = std::stoul(s.substr(0, colon), &used);
        if (used != colon) throw std::invalid_argument(s);
        unsigned long dev = std::stoul(s.substr(colon + 1), &used);
        if (used != s.size() - colon - 1 || ch > 0xffff || dev > 0xffff) throw std::invalid_argument(s);
        return {static_cast<uint32_t>(ch), static_cast<uint32_t>(dev)};
    } catch (const std::exception&) {
        throw FieldError(path, "expected \"channel:device\", got \"" + s + "\"");
    }
}

std::vector<DriveRef> takeRefs(json& obj, const char* key, const std::string& path) {
    std::vector<DriveRef> out;
    auto it = obj.find(key);
    if (it == obj.end()) return out;
    if (!it->is_array()) throw FieldError(path + "." + key, "expected a list");
    for (size_t i = 0; i < it->size(); ++i) out.push_back(parseRef((*it)[i], path + "." + key + "[" + std::to_string(i) + "]"));
    obj.erase(it);
    return out;
}

void stripComments(json& j) {
    if (j.is_object()) {
        j.erase("comment");
        for (auto& [k, v] : j.items()) stripComments(v);
    } else if (j.is_array()) {
        for (auto& v : j) stripComments(v);
    }
}

LdExtras takeLdExtras(json& ld, const std::string& path) {
    if (!ld.is_object()) throw FieldError(path, "expected an object");
    LdExtras x;
    x.dedicatedSpares = takeRefs(ld, "dedicatedSpares", path);
    if (auto it = ld.find("dataSizeMB"); it != ld.end()) readValue(*it, x.dataSizeMB, path + ".dataSizeMB");
    auto members = ld.find("members");
    if (members == ld.end() || !members->is_array()) throw FieldError(path + ".members", "expected a list of drives");
    for (size_t i = 0; i < members->size(); ++i) {
        json& mem = (*members)[i];
        std::string mp = path + ".members[" + std::to_string(i) + "]";
        bool autoStart = !mem.is_object() || !mem.contains("startMB");
        if (!mem.is_object()) {
            DriveRef r = parseRef(mem, mp);
            mem = json{{"channel", r.first}, {"device", r.second}};
        }
        x.autoStart.push_back(autoStart);
    }
    return x;
}

DescriptionExtras takeExtras(json& root) {
    DescriptionExtras extras;
    auto ctrls = root.find("controllers");
    if (ctrls == root.end()) throw FieldError("controllers", "missing (use [] for a system without controllers)");
    if (!ctrls->is_array()) throw FieldError("controllers", "expected a list");
    for (size_t i = 0; i < ctrls->size(); ++i) {
        json& c = (*ctrls)[i];
        std::string cp = "controllers[" + std::to_string(i) + "]";
        if (!c.is_object()) throw FieldError(cp, "expected an object");
        ControllerExtras cx;
        cx.globalSpares = takeRefs(c, "globalSpares", cp);
        if (auto lds = c.find("logicalDrives"); lds != c.end() && lds->is_array())
            for (size_t l = 0; l < lds->size(); ++l)
                cx.lds.push_back(takeLdExtras((*lds)[l], cp + ".logicalDrives[" + std::to_string(l) + "]"));
        extras.controllers.push_back(std::move(cx));
    }
    return extras;
}

json parseText(const std::string& text, const std::string& origin) {
    try {
        return json::parse(text);
    } catch (const json::parse_error& e) {
        throw DescriptionError(origin + ": not valid JSON (byte " + std::to_string(e.byte) + "): " + e.what());
    } catch (const json::exception& e) {  // e.g. a number beyond the range of a double
        throw DescriptionError(origin + ": not valid JSON: " + e.what());
    }
}

}  // namespace

Model loadDescription(const std::string& text, const std::string& origin, double wallNow) {
    json root = parseText(text, origin);
    Model m;
    try {
        if (!root.is_object()) throw FieldError("(top)", "expected an object");
        if (root.contains("format")) throw FieldError("format", "a state file is not a system description");
        stripComments(root);
        DescriptionExtras extras = takeExtras(root);
        readValue(root, m, "");
        m.clock.wallAnchor = wallNow;
        if (m.clock.simAnchor == 0) m.clock.simAnchor = wallNow;
        m.now = m.clock.simAnchor;
        finalizeDescription(m, extras);
    } catch (const FieldError& e) {
        std::string what = e.what();
        if (what.rfind(".", 0) == 0) what.erase(0, 1);
        throw DescriptionError(origin + ": " + what);
    }
    return m;
}

Model loadState(const std::string& text, const std::string& origin) {
    json root = parseText(text, origin);
    Model m;
    try {
        if (!root.is_object() || root.value("format", "") != kStateFormat)
            throw FieldError("format", "not a controller state file");
        root.erase("format");
        readValue(root, m, "");
    } catch (const FieldError& e) {
        std::string what = e.what();
        if (what.rfind(".", 0) == 0) what.erase(0, 1);
        throw DescriptionError(origin + ": " + what);
    }
    return m;
}

std::string dumpState(const Model& m) {
    json j = writeValue(m);
    j["format"] = kStateFormat;
    return j.dump(1);
}

}  // namespace storlib::sim
