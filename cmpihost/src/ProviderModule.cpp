#include "ProviderModule.h"

#include "StringObject.h"

namespace cmpihost::detail {

namespace {

const char* const kFactorySuffix[] = {"_Create_InstanceMI", "_Create_AssociationMI",
                                      "_Create_MethodMI", "_Create_IndicationMI"};

template <class MI>
void* callAs(void* factory, const CMPIBroker* b, const CMPIContext* c, CMPIStatus* st) {
    using Factory = MI* (*)(const CMPIBroker*, const CMPIContext*, CMPIStatus*);
    return reinterpret_cast<Factory>(factory)(b, c, st);
}

void* callFactory(MIKind kind, void* factory, const CMPIBroker* b, const CMPIContext* c,
                  CMPIStatus* st) {
    switch (kind) {
    case MIKind::Instance: return callAs<CMPIInstanceMI>(factory, b, c, st);
    case MIKind::Association: return callAs<CMPIAssociationMI>(factory, b, c, st);
    case MIKind::Method: return callAs<CMPIMethodMI>(factory, b, c, st);
    default: return callAs<CMPIIndicationMI>(factory, b, c, st);
    }
}

}  // namespace

const char* kindName(MIKind kind) {
    static const char* const names[] = {"instance", "association", "method", "indication"};
    return names[static_cast<std::size_t>(kind)];
}

ProviderModule::ProviderModule(std::unique_ptr<Library> library, const std::string& providerName)
    : m_library(std::move(library)) {
    for (std::size_t i = 0; i < m_slots.size(); ++i) {
        m_slots[i].factory = m_library->symbol(providerName + kFactorySuffix[i]);
    }
}

bool ProviderModule::hasAnyFactory() const {
    for (const Slot& s : m_slots) {
        if (s.factory != nullptr) {
            return true;
        }
    }
    return false;
}

Status ProviderModule::create(MIKind kind, const CMPIBroker* broker, const CMPIContext* ctx) {
    if (!hasFactory(kind)) {
        return Status{CMPI_RC_ERR_NOT_SUPPORTED,
                      std::string("the provider has no ") + kindName(kind) + " MI factory"};
    }
    CMPIStatus st{CMPI_RC_OK, nullptr};
    void* mi = callFactory(kind, slot(kind).factory, broker, ctx, &st);
    Status result{st.rc, st.msg ? stringText(st.msg) : std::nullopt};
    if (mi == nullptr) {
        if (result.ok()) {
            result = Status{CMPI_RC_ERR_FAILED, std::string("the ") + kindName(kind) +
                                                    " MI factory returned NULL"};
        }
        return result;
    }
    std::lock_guard<std::mutex> lock(m_mutex);
    slot(kind).records.push_back(Record{mi, false});
    return result;
}

void* ProviderModule::current(MIKind kind) const {
    std::lock_guard<std::mutex> lock(m_mutex);
    const auto& records = slot(kind).records;
    return records.empty() ? nullptr : records.back().mi;
}

void* ProviderModule::ensure(MIKind kind, const CMPIBroker* broker,
                             const std::function<const CMPIContext*()>& factoryContext,
                             Status& failure) {
    if (void* mi = current(kind)) {
        return mi;
    }
    std::lock_guard<std::mutex> first(m_firstCallMutex);
    if (void* mi = current(kind)) {
        return mi;
    }
    failure = create(kind, broker, factoryContext());
    return current(kind);
}

int ProviderModule::calls(MIKind kind) const {
    std::lock_guard<std::mutex> lock(m_mutex);
    return static_cast<int>(slot(kind).records.size());
}

void ProviderModule::settle(MIKind kind, void* mi) {
    std::lock_guard<std::mutex> lock(m_mutex);
    auto& records = slot(kind).records;
    for (auto it = records.rbegin(); it != records.rend(); ++it) {
        if (it->mi == mi && !it->settled) {
            it->settled = true;
            return;
        }
    }
}

std::vector<std::pair<MIKind, void*>> ProviderModule::unsettled() const {
    std::lock_guard<std::mutex> lock(m_mutex);
    std::vector<std::pair<MIKind, void*>> out;
    for (std::size_t k = 0; k < m_slots.size(); ++k) {
        const auto& records = m_slots[k].records;
        for (auto it = records.rbegin(); it != records.rend(); ++it) {
            if (!it->settled) {
                out.emplace_back(static_cast<MIKind>(k), it->mi);
            }
        }
    }
    return out;
}

}  // namespace cmpihost::detail
