#include "monitor/ConfigCompare.h"

#include <cstdlib>
#include <cstring>
#include <map>
#include <vector>

#include "monitor/CompareRules.h"
#include "monitor/StringTokenizer.h"

namespace vex::monitor {

namespace {

bool valueMatches(const std::string& actual, const char* wanted) {
    if (wanted[0] == '!') {
        return actual != wanted + 1;
    }
    return actual == wanted;
}

bool isOneOf(const std::string& element, std::initializer_list<const char*> elements) {
    for (const char* name : elements) {
        if (element == name) {
            return true;
        }
    }
    return false;
}

// The objects of the chosen elements, controller first, in snapshot order.
std::vector<const SnapshotObject*> objectsOf(const AdapterSnapshot& adapter,
                                             std::initializer_list<const char*> elements) {
    std::vector<const SnapshotObject*> out;
    if (isOneOf(adapter.controller.element, elements)) {
        out.push_back(&adapter.controller);
    }
    for (const SnapshotObject& o : adapter.objects) {
        if (isOneOf(o.element, elements)) {
            out.push_back(&o);
        }
    }
    return out;
}

long percent(const std::string& text) { return std::strtol(text.c_str(), nullptr, 10); }

bool stepped(const std::string& before, const std::string& after) {
    const long was = percent(before);
    const long is = percent(after);
    return is < 100 && was / 10 != is / 10;
}

Finding findingOf(const CompareRule& rule, const SnapshotObject& object, std::string newValue,
                  std::string oldValue) {
    return Finding{rule.key, &object, std::move(newValue), std::move(oldValue),
                   rule.detail[0] != '\0' ? object.get(rule.detail) : std::string()};
}

void compareOne(const SnapshotObject& old, const SnapshotObject& now, const FindingSink& sink) {
    std::size_t count = 0;
    const CompareRule* rules = compareRules(count);
    for (std::size_t i = 0; i < count; ++i) {
        const CompareRule& rule = rules[i];
        if (now.element != rule.element || !conditionsHold(now, rule.when, &old)) {
            continue;
        }
        if (rule.trigger != Trigger::Became && rule.trigger != Trigger::Changed &&
            rule.trigger != Trigger::Stepped) {
            continue;
        }
        const std::string before = old.get(rule.attribute);
        const std::string after = now.get(rule.attribute);
        if (before == after) {
            continue;
        }
        const bool fires = rule.trigger == Trigger::Changed ||
                           (rule.trigger == Trigger::Became && valueMatches(after, rule.value)) ||
                           (rule.trigger == Trigger::Stepped && stepped(before, after));
        if (fires) {
            sink(findingOf(rule, now, after, before));
        }
    }
}

void presence(const SnapshotObject& object, Trigger trigger, const FindingSink& sink) {
    std::size_t count = 0;
    const CompareRule* rules = compareRules(count);
    for (std::size_t i = 0; i < count; ++i) {
        const CompareRule& rule = rules[i];
        if (rule.trigger == trigger && object.element == rule.element && conditionsHold(object, rule.when)) {
            sink(findingOf(rule, object, {}, {}));
        }
    }
}

}  // namespace

bool conditionsHold(const SnapshotObject& object, const char* conditions, const SnapshotObject* old) {
    StringTokenizer tokens(conditions, ",");
    while (tokens.hasMoreTokens()) {
        const std::string condition = tokens.nextToken();
        const std::string::size_type equals = condition.find('=');
        if (equals == std::string::npos) {
            return false;
        }
        std::string name = condition.substr(0, equals);
        const SnapshotObject* subject = &object;
        if (name.compare(0, 4, "old.") == 0) {
            name.erase(0, 4);
            if (old == nullptr) {
                return false;
            }
            subject = old;
        }
        if (!valueMatches(subject->get(name), condition.c_str() + equals + 1)) {
            return false;
        }
    }
    return true;
}

void compareObjects(const AdapterSnapshot& old, const AdapterSnapshot& now,
                    std::initializer_list<const char*> elements, const FindingSink& sink) {
    std::map<std::string, const SnapshotObject*> before;
    for (const SnapshotObject* o : objectsOf(old, elements)) {
        before.emplace(o->identity(), o);
    }
    for (const SnapshotObject* o : objectsOf(now, elements)) {
        const auto found = before.find(o->identity());
        if (found == before.end()) {
            presence(*o, Trigger::Appeared, sink);
            continue;
        }
        compareOne(*found->second, *o, sink);
        before.erase(found);
    }
    // What is left was there and is gone, reported in the old order.
    for (const SnapshotObject* o : objectsOf(old, elements)) {
        if (before.count(o->identity()) != 0) {
            presence(*o, Trigger::Disappeared, sink);
        }
    }
}

void checkObjects(const AdapterSnapshot& now, std::initializer_list<const char*> elements,
                  const FindingSink& sink) {
    std::size_t count = 0;
    const CompareRule* rules = compareRules(count);
    for (const SnapshotObject* o : objectsOf(now, elements)) {
        for (std::size_t i = 0; i < count; ++i) {
            const CompareRule& rule = rules[i];
            if (rule.onCheck && rule.trigger == Trigger::Became && o->element == rule.element &&
                conditionsHold(*o, rule.when) && valueMatches(o->get(rule.attribute), rule.value)) {
                sink(findingOf(rule, *o, o->get(rule.attribute), {}));
            }
        }
    }
}

}  // namespace vex::monitor
