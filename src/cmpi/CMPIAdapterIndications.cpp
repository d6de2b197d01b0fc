// The provider side of indications: the subscription count, the thread
// context for the framework's event threads, and delivery.
#include "cmpi/CMPIAdapter.h"
#include "cmpi/CMPIAdapterSupport.h"
#include "cmpi/CMPIHelper.h"
#include "cmpi/CmpiCalls.h"

namespace vex::cim::adap::cmpi {

std::atomic<bool> m_subscription{false};
std::atomic<int> CMPIAdapter::m_numOfSubscriptions{0};

namespace {

bool attach(const CMPIBroker* broker, const CMPIContext* threadContext) {
    return broker->bft->attachThread != nullptr &&
           calls::ok(broker->bft->attachThread(broker, threadContext));
}

bool deliver(const CMPIBroker* broker, const CMPIContext* threadContext,
             const fwf::CIMInstance& instance, const CMPIInstance* ci) {
    return broker->bft->deliverIndication != nullptr &&
           calls::ok(broker->bft->deliverIndication(broker, threadContext,
                                                    instance.getNameSpace().c_str(), ci));
}

// Embedded instances (SourceInstance of the life-cycle indications) are not
// instance property types of the conversion: the indication is converted
// without them and each is set as a CMPI_instance of its own.
bool setEmbedded(CMPIInstance* ci, const fwf::CIMProperty& property, const CMPIBroker* broker) {
    const std::vector<fwf::CIMInstance> values = property.getInstanceValue().getValues();
    if (values.empty()) {
        return true;
    }
    CMPIValue value;
    value.inst = CMPIHelper::FrameworkInstanceToCMPIInstance(values.front(), broker, nullptr);
    return value.inst != nullptr && ci->ft->setProperty != nullptr &&
           calls::ok(ci->ft->setProperty(ci, property.getName().c_str(), &value, CMPI_instance));
}

CMPIInstance* toCmpi(const fwf::CIMInstance& instance, const CMPIBroker* broker) {
    try {
        const std::vector<fwf::CIMProperty> properties = instance.getPropertyList();
        std::vector<const char*> plain;
        std::vector<const fwf::CIMProperty*> embedded;
        for (const fwf::CIMProperty& property : properties) {
            if (property.getType() == fwf::CIM_INSTANCE) {
                embedded.push_back(&property);
            } else {
                plain.push_back(property.getName().c_str());
            }
        }
        if (embedded.empty()) {
            return CMPIHelper::FrameworkInstanceToCMPIInstance(instance, broker, nullptr);
        }
        plain.push_back(nullptr);
        CMPIInstance* ci = CMPIHelper::FrameworkInstanceToCMPIInstance(instance, broker, plain.data());
        for (const fwf::CIMProperty* property : embedded) {
            if (ci == nullptr || !setEmbedded(ci, *property, broker)) {
                return nullptr;
            }
        }
        return ci;
    } catch (...) {
        return nullptr;
    }
}

}  // namespace

void CMPIAdapter::EnableIndications(CMPIIndicationMI*, const CMPIContext* ctx, const CMPIBroker*,
                                    CMPIStatus*) {
    support::OperationTrace trace("EnableIndications");
    setContext(ctx);
    if (++m_numOfSubscriptions == 1) {
        m_subscription.store(true);
    }
    TkzLogMsg(TKZ_LOG_INFO, "CMPIAdapter::EnableIndications --> m_subscription = %d",
              m_subscription.load() ? 1 : 0);
}

// No lower bound: the object manager balances its calls.
void CMPIAdapter::DisableIndications(CMPIIndicationMI*, const CMPIContext* ctx, const CMPIBroker*,
                                     CMPIStatus*) {
    support::OperationTrace trace("DisableIndications");
    setContext(ctx);
    if (--m_numOfSubscriptions == 0) {
        m_subscription.store(false);
    }
}

void CMPIAdapter::ActivateFilter(CMPIIndicationMI*, const CMPIContext* ctx, const CMPISelectExp*,
                                 const char*, const CMPIObjectPath*, CMPIBoolean,
                                 const CMPIBroker* broker, CMPIStatus*) {
    support::OperationTrace trace("ActivateFilter");
    setContext(ctx);
    setBroker(broker);
    setThreadContext(broker, ctx);
    if (getThreadContext() == nullptr) {
        resetThreadContextToContext(ctx);
    }
}

void CMPIAdapter::DeActivateFilter(CMPIIndicationMI*, const CMPIContext*, const CMPISelectExp*,
                                   const char*, const CMPIObjectPath*, CMPIBoolean,
                                   const CMPIBroker*, CMPIStatus*) {
    support::OperationTrace trace("DeActivateFilter");
}

void CMPIAdapter::MustPoll(CMPIIndicationMI*, const CMPIContext*, const CMPISelectExp*,
                           const char*, const CMPIObjectPath*, const CMPIBroker*,
                           CMPIStatus* status) {
    support::OperationTrace trace("MustPoll");
    if (status != nullptr) {
        *status = calls::status(CMPI_RC_OK);
    }
}

void CMPIAdapter::AuthorizeFilter(CMPIIndicationMI*, const CMPIContext*, const CMPISelectExp*,
                                  const char*, const CMPIObjectPath*, const char*,
                                  const CMPIBroker*, CMPIStatus* status) {
    support::OperationTrace trace("AuthorizeFilter");
    if (status != nullptr) {
        *status = calls::status(CMPI_RC_OK);
    }
}

// Runs on the framework's event threads; the thread is attached for each
// delivery and left attached.
bool CMPIAdapter::DeliverIndication(CIMInstance& instance) {
    CMPIAdapter* adapter = getInstance();
    if (adapter == nullptr) {
        TkzLogMsg(TKZ_LOG_ERROR, "Failed to get CMPIAdapter singleton instance");
        return false;
    }
    if (m_numOfSubscriptions.load() == 0) {
        // Nobody listens: dropping the indication is a success. The count
        // has no lower bound (a disable the object manager sends twice takes
        // it below zero), and only zero means nobody.
        TkzLogMsg(TKZ_LOG_INFO, "No subscription to service indications");
        return true;
    }
    const CMPIBroker* broker = adapter->getBroker();
    const CMPIContext* context = adapter->getContext();
    if (broker == nullptr || broker->bft == nullptr || context == nullptr) {
        TkzLogMsg(TKZ_LOG_ERROR, "NULL broker or context");
        return false;
    }
    const CMPIContext* threadContext = adapter->getThreadContext();
    if (threadContext == nullptr || threadContext == context) {
        // No context was prepared for our threads (no filter activated yet).
        TkzLogMsg(TKZ_LOG_INFO, "Could not deliver indication");
        TkzLogMsg(TKZ_LOG_INFO, "#***#Thread Context not equal to Original Context");
        return false;
    }
    if (!attach(broker, threadContext)) {
        TkzLogMsg(TKZ_LOG_ERROR, "Failed to attach context to new thread");
        return false;
    }
    CMPIInstance* ci = toCmpi(instance, broker);
    if (ci == nullptr) {
        TkzLogMsg(TKZ_LOG_ERROR, "Failed to convert CMPI Instance to Framework Instance");
        return false;
    }
    if (!deliver(broker, threadContext, instance, ci)) {
        TkzLogMsg(TKZ_LOG_ERROR, "Failed to deliver indication");
        return false;
    }
    return true;
}

}  // namespace vex::cim::adap::cmpi
