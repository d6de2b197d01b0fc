#include "framework/TableAssociation.h"

#include <algorithm>
#include <unordered_map>

#include "framework/CIMException.h"
#include "framework/CommonFunctions.h"
#include "framework/FrameworkFacade.h"
#include "platform/Tkz.h"

namespace vex::cim::fwf {

namespace {

using KeyIndex = std::unordered_map<std::string, std::vector<std::size_t>>;

std::vector<std::string> keysOf(const EndKey& key, const CIMInstance& instance) {
    std::vector<std::string> keys;
    joinKeysOf(key, instance, keys);
    return keys;
}

// Positions of the instances by each of their keys, in enumeration order.
KeyIndex indexByKeys(const EndKey& key, const std::vector<CIMInstance>& instances) {
    KeyIndex index;
    for (std::size_t i = 0; i < instances.size(); ++i) {
        std::vector<std::string> keys = keysOf(key, instances[i]);
        std::sort(keys.begin(), keys.end());
        keys.erase(std::unique(keys.begin(), keys.end()), keys.end());
        for (std::string& k : keys) {
            index[std::move(k)].push_back(i);
        }
    }
    return index;
}

// The positions an instance with `keys` may be linked to, ascending and once
// each, so that pairs come out in the order of the cross product.
std::vector<std::size_t> probe(const KeyIndex& index, const std::vector<std::string>& keys) {
    std::vector<std::size_t> hits;
    for (const std::string& k : keys) {
        const auto found = index.find(k);
        if (found != index.end()) {
            hits.insert(hits.end(), found->second.begin(), found->second.end());
        }
    }
    if (keys.size() > 1) {
        std::sort(hits.begin(), hits.end());
        hits.erase(std::unique(hits.begin(), hits.end()), hits.end());
    }
    return hits;
}

bool keysMeet(const std::vector<std::string>& a, const std::vector<std::string>& b) {
    for (const std::string& k : a) {
        if (std::find(b.begin(), b.end(), k) != b.end()) {
            return true;
        }
    }
    return false;
}

bool classListHas(const std::string& classList, const std::string& className) {
    const unsigned int count = CommonFunctions::getStringCount(classList);
    for (unsigned int i = 0; i < count; ++i) {
        if (CommonFunctions::equalsIgnoreCase(CommonFunctions::getStringAt(classList, i),
                                              className)) {
            return true;
        }
    }
    return false;
}

// The served instance a path names, when it is exactly the one an end
// enumeration would hold for it.
bool fetchSource(const CIMObjectPath& source, CIMInstance& out) {
    FrameworkFacade* facade = FrameworkFacade::getInstance();
    if (facade == nullptr || facade->getPlugIn(source.getClassName()) == nullptr) {
        return false;
    }
    std::vector<CIMInstance> found;
    try {
        CIMObjectPath request = source;
        facade->getCIMInstance(request, found);
    } catch (const CIMException&) {
        return false;
    }
    if (found.size() != 1 || !(found[0].getPath() == source)) {
        return false;
    }
    out = std::move(found[0]);
    return true;
}

}  // namespace

bool TableAssociation::MatchInstances(CIMInstance& antecedent, CIMInstance& dependent,
                                      std::vector<CIMProperty>& extra) {
    if (!keysMeet(keysOf(m_row.firstKey, antecedent), keysOf(m_row.secondKey, dependent))) {
        return false;
    }
    return m_row.link == nullptr || m_row.link(antecedent, dependent, extra);
}

void TableAssociation::enumerateInstances(CIMObjectPath& classPath, std::vector<CIMInstance>& out,
                                          bool /*flag*/) {
    TkzTrace("Entering AbstractAssociationProviderPlugin::enumerateInstances()");
    try {
        const std::vector<CIMInstance> firsts = enumerateEnd(classPath, m_row.first);
        const std::vector<CIMInstance> seconds = enumerateEnd(classPath, m_row.second);
        const KeyIndex index = indexByKeys(m_row.secondKey, seconds);
        for (const CIMInstance& first : firsts) {
            for (std::size_t i : probe(index, keysOf(m_row.firstKey, first))) {
                std::vector<CIMProperty> extra;
                if (m_row.link == nullptr || m_row.link(first, seconds[i], extra)) {
                    out.push_back(makeAssociationInstance(classPath, first.getPath(),
                                                          seconds[i].getPath(), extra));
                }
            }
        }
    } catch (const CIMException& e) {
        TkzLogMsg(TKZ_LOG_ERROR, "%s :: %s", "enumerateInstances", e.getErrMessage().c_str());
        throw;
    }
    TkzTrace("Exiting AbstractAssociationProviderPlugin::enumerateInstances()");
}

std::vector<CIMInstance> TableAssociation::candidateLinks(const CIMObjectPath& source,
                                                          CIMObjectPath& assocPath) {
    const bool atFirst = classListHas(m_row.first, source.getClassName());
    const bool atSecond = classListHas(m_row.second, source.getClassName());
    if (!atFirst && !atSecond) {
        return {};  // no instance of the association can refer to it
    }
    CIMInstance origin;
    if (atFirst == atSecond || !fetchSource(source, origin)) {
        return AbstractAssociationProviderPlugin::candidateLinks(source, assocPath);
    }
    // Only the other end is enumerated, and only its instances whose keys
    // meet the source's are linked.
    const std::vector<CIMInstance> others =
        enumerateEnd(assocPath, atFirst ? m_row.second : m_row.first);
    const KeyIndex index = indexByKeys(atFirst ? m_row.secondKey : m_row.firstKey, others);
    std::vector<CIMInstance> links;
    for (std::size_t i : probe(index, keysOf(atFirst ? m_row.firstKey : m_row.secondKey, origin))) {
        const CIMInstance& first = atFirst ? origin : others[i];
        const CIMInstance& second = atFirst ? others[i] : origin;
        std::vector<CIMProperty> extra;
        if (m_row.link == nullptr || m_row.link(first, second, extra)) {
            links.push_back(
                makeAssociationInstance(assocPath, first.getPath(), second.getPath(), extra));
        }
    }
    return links;
}

}  // namespace vex::cim::fwf
