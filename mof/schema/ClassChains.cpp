#include "ClassChains.h"

#include <sstream>
#include <vector>

#include "MofLexer.h"
#include "MofModel.h"

namespace vex::mof {

namespace {

std::vector<std::string> chainOf(const std::string& line) {
    std::vector<std::string> names;
    std::istringstream words(line);
    std::string word;
    bool wantName = true;
    while (words >> word) {
        if (word == ":" && !wantName) {
            wantName = true;
        } else if (wantName && word != ":") {
            names.push_back(word);
            wantName = false;
        } else {
            return {};
        }
    }
    return wantName ? std::vector<std::string>{} : names;
}

}  // namespace

bool ClassChains::add(const std::string& className, const std::string& superClass) {
    const std::string key = lowerCase(className);
    auto found = m_super.find(key);
    if (found == m_super.end() || found->second.empty()) {
        m_super[key] = superClass;
        return true;
    }
    return superClass.empty() || sameName(found->second, superClass);
}

void ClassChains::parse(const std::string& text, const std::string& source) {
    std::istringstream lines(text);
    std::string line;
    for (int number = 1; std::getline(lines, line); ++number) {
        line = line.substr(0, line.find('#'));
        if (line.find_first_not_of(" \t\r") == std::string::npos) {
            continue;
        }
        const std::vector<std::string> chain = chainOf(line);
        const std::string where = source + ":" + std::to_string(number) + ": ";
        if (chain.empty()) {
            throw MofError(where + "expected 'Class : Superclass : ...'");
        }
        for (std::size_t i = 0; i < chain.size(); ++i) {
            const std::string super = i + 1 < chain.size() ? chain[i + 1] : std::string();
            if (!add(chain[i], super)) {
                throw MofError(where + chain[i] + " already has the superclass " +
                               m_super[lowerCase(chain[i])]);
            }
        }
    }
}

bool ClassChains::knows(const std::string& className) const {
    return m_super.count(lowerCase(className)) != 0;
}

std::optional<std::string> ClassChains::superClassOf(const std::string& className) const {
    auto found = m_super.find(lowerCase(className));
    if (found == m_super.end() || found->second.empty()) {
        return std::nullopt;
    }
    return found->second;
}

}  // namespace vex::mof
