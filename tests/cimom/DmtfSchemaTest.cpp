// The provider's classes against the DMTF CIM schema: a property a class
// inherits must keep the type, array-ness and key qualifier its DMTF
// declaration gives it (OpenPegasus' cimmof refuses the class otherwise,
// "CIM_ERR_FAILED: type mismatch", and stops there), and a class may add a key
// only where its superclasses have none.
#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <map>
#include <sstream>

#include "BuiltinSchema.h"
#include "MofParser.h"

namespace {

namespace fs = std::filesystem;
using vex::mof::ClassDecl;
using vex::mof::lowerCase;
using vex::mof::Property;

// Where the DMTF schema is: the one named by VEX_DMTF_SCHEMA_DIR, else the
// copies of the prebuilt sfcb and OpenPegasus.
std::string schemaDir() {
    const char* named = std::getenv("VEX_DMTF_SCHEMA_DIR");
    for (const std::string& dir : {std::string(named ? named : ""),
                                  std::string("/opt/sfcb/share/sfcb/CIM"),
                                  std::string("/opt/pegasus/share/pegasus/CIM241")}) {
        std::error_code error;
        if (!dir.empty() && fs::is_regular_file(fs::path(dir) / "CIM_Schema.mof", error)) {
            return dir;
        }
    }
    return {};
}

// The DMTF classes, read on demand: one class per file, named after it.
class DmtfSchema {
public:
    explicit DmtfSchema(const std::string& dir) {
        for (const auto& entry : fs::recursive_directory_iterator(dir)) {
            if (entry.path().extension() == ".mof") {
                m_files[lowerCase(entry.path().stem().string())] = entry.path().string();
            }
        }
    }

    const ClassDecl* find(const std::string& name) {
        const std::string key = lowerCase(name);
        if (auto read = m_read.find(key); read != m_read.end()) return &read->second;
        auto file = m_files.find(key);
        if (file == m_files.end()) return nullptr;
        std::ifstream in(file->second);
        std::stringstream text;
        text << in.rdbuf();
        for (ClassDecl& cls : vex::mof::parseMof(text.str(), file->second)) {
            m_read[lowerCase(cls.name)] = std::move(cls);
        }
        auto read = m_read.find(key);
        return read == m_read.end() ? nullptr : &read->second;
    }

private:
    std::map<std::string, std::string> m_files;
    std::map<std::string, ClassDecl> m_read;
};

// The classes above `cls`, nearest first: the provider's own, then DMTF's.
std::vector<const ClassDecl*> superclasses(const ClassDecl& cls, DmtfSchema& dmtf,
                                           std::vector<std::string>& problems) {
    std::vector<const ClassDecl*> chain;
    for (std::string name = cls.superClass; !name.empty();) {
        const ClassDecl* next = vex::mof::builtinSchema().find(name);
        if (next == nullptr) next = dmtf.find(name);
        if (next == nullptr) {
            problems.push_back(cls.name + ": superclass " + name + " is not in the DMTF schema");
            break;
        }
        chain.push_back(next);
        name = next->superClass;
    }
    return chain;
}

// Key is a qualifier no subclass can take away: a property is a key when any
// declaration of it says so.
bool keyAnywhere(const std::vector<const ClassDecl*>& chain, const std::string& name) {
    for (const ClassDecl* cls : chain) {
        const Property* p = cls->property(name);
        if (p != nullptr && p->isKey()) return true;
    }
    return false;
}

void checkProperty(const ClassDecl& cls, const Property& mine,
                   const std::vector<const ClassDecl*>& chain, bool chainHasKeys,
                   std::vector<std::string>& problems) {
    const Property* inherited = nullptr;
    const ClassDecl* owner = nullptr;
    for (const ClassDecl* up : chain) {
        if ((inherited = up->property(mine.name)) != nullptr) {
            owner = up;
            break;
        }
    }
    const std::string where = cls.name + "." + mine.name;
    if (inherited == nullptr) {
        if (mine.isKey() && chainHasKeys) problems.push_back(where + ": a new key below keyed superclasses");
        return;
    }
    const std::string theirs = owner->name + " declares " + inherited->type.toString();
    if (mine.type.isRef != inherited->type.isRef ||
        (!mine.type.isRef && mine.type.name != inherited->type.name) ||
        mine.type.isArray != inherited->type.isArray) {
        problems.push_back(where + " is " + mine.type.toString() + ", " + theirs);
    }
    if (mine.isKey() != keyAnywhere(chain, mine.name)) {
        problems.push_back(where + (mine.isKey() ? " is a key, " : " is not a key, ") + theirs +
                           (mine.isKey() ? " without Key" : " as Key"));
    }
}

TEST(DmtfSchema, InheritedPropertiesKeepTheirTypesAndKeys) {
    const std::string dir = schemaDir();
    if (dir.empty()) {
        GTEST_SKIP() << "no DMTF CIM schema (set VEX_DMTF_SCHEMA_DIR, or unpack the prebuilt sfcb or OpenPegasus)";
    }
    DmtfSchema dmtf(dir);
    std::vector<std::string> problems;
    for (const ClassDecl& cls : vex::mof::builtinSchema().classes()) {
        const std::vector<const ClassDecl*> chain = superclasses(cls, dmtf, problems);
        bool chainHasKeys = false;
        for (const ClassDecl* up : chain) chainHasKeys = chainHasKeys || !up->keyNames().empty();
        for (const Property& property : cls.properties) {
            checkProperty(cls, property, chain, chainHasKeys, problems);
        }
    }
    std::string all;
    for (const std::string& p : problems) all += "\n  " + p;
    EXPECT_TRUE(problems.empty()) << problems.size() << " disagreements with " << dir << ":" << all;
}

}  // namespace
