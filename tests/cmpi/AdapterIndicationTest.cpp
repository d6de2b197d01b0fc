// Delivery of indications from the framework's threads, with the whole
// provider linked into the test program and a cmpihost broker behind the
// adapter.
#include <gtest/gtest.h>

#include <cmpihost/Host.h>

#include <thread>

#include "LogCapture.h"
#include "cmpi/CMPIAdapter.h"

namespace vex::cmpitest {
namespace {

namespace fwf = vex::cim::fwf;
using vex::cim::adap::cmpi::CMPIAdapter;

constexpr const char* kNs = "root/tkz/vex/smi_15";

fwf::CIMInstance indication() {
    fwf::CIMInstance inst;
    inst.setPath(fwf::CIMObjectPath("", kNs, "VEX_EventIndication", {}));
    inst.addProperty(fwf::CIMProperty("Description", fwf::CIMValue<std::string>("drive failed"),
                                      false, fwf::CIM_STRING, false));
    return inst;
}

class AdapterIndicationTest : public ::testing::Test {
protected:
    void SetUp() override {
        adapter = CMPIAdapter::getInstance();
        ASSERT_NE(adapter, nullptr);
        adapter->setBroker(host.broker());
        adapter->setContext(nullptr);
        adapter->resetThreadContextToContext(nullptr);
        while (CMPIAdapter::subscriptionCount() > 0) {
            disable();
        }
        clearLog();
        host.clearUpcalls();
    }

    void enable() {
        host.runInRequest([&](const CMPIBroker* broker, const CMPIContext* ctx) {
            CMPIStatus status{CMPI_RC_OK, nullptr};
            adapter->EnableIndications(nullptr, ctx, broker, &status);
        });
    }
    void disable() {
        host.runInRequest([&](const CMPIBroker* broker, const CMPIContext* ctx) {
            CMPIStatus status{CMPI_RC_OK, nullptr};
            adapter->DisableIndications(nullptr, ctx, broker, &status);
        });
    }
    void activateFilter() {
        host.runInRequest([&](const CMPIBroker* broker, const CMPIContext* ctx) {
            CMPIStatus status{CMPI_RC_OK, nullptr};
            adapter->ActivateFilter(nullptr, ctx, nullptr, "VEX_EventIndication", nullptr, 1,
                                    broker, &status);
        });
    }
    // As the framework does: from a thread of its own.
    static bool deliverFromEventThread(fwf::CIMInstance instance) {
        bool delivered = false;
        std::thread worker([&] { delivered = CMPIAdapter::DeliverIndication(instance); });
        worker.join();
        return delivered;
    }

    cmpihost::Host host;
    CMPIAdapter* adapter = nullptr;
};

TEST_F(AdapterIndicationTest, WithoutSubscriptionTheIndicationIsDroppedAsASuccess) {
    activateFilter();
    host.clearUpcalls();
    EXPECT_TRUE(deliverFromEventThread(indication()));
    EXPECT_TRUE(host.upcalls().empty());
    EXPECT_EQ(host.indications().count(), 0u);
    EXPECT_TRUE(loggedAt(5, "No subscription to service indications"));
}

TEST_F(AdapterIndicationTest, DeliveryStaysOnUntilEverySubscriptionIsGone) {
    activateFilter();
    enable();
    enable();
    disable();
    EXPECT_TRUE(loggedAt(5, "CMPIAdapter::EnableIndications --> m_subscription = 1"));
    ASSERT_TRUE(deliverFromEventThread(indication()));
    ASSERT_EQ(host.indications().count(), 1u);
    cmpihost::DeliveredIndication delivered = host.indications().all().front();
    EXPECT_EQ(delivered.nameSpace, kNs);
    EXPECT_TRUE(delivered.attached);
    EXPECT_EQ(delivered.indication.className(), "VEX_EventIndication");
    EXPECT_NE(delivered.indication.property("Description"), nullptr);

    disable();
    EXPECT_TRUE(deliverFromEventThread(indication()));
    EXPECT_EQ(host.indications().count(), 1u);
    // Only a count of exactly zero silences delivery; one disable too many
    // leaves it below zero, and indications go out again.
    disable();
    EXPECT_TRUE(deliverFromEventThread(indication()));
    EXPECT_EQ(host.indications().count(), 2u);
    enable();
}

TEST_F(AdapterIndicationTest, FailuresOnTheWayAreReported) {
    enable();
    EXPECT_FALSE(deliverFromEventThread(indication())) << "no filter activated yet";
    EXPECT_TRUE(loggedAt(5, "Could not deliver indication"));
    EXPECT_TRUE(loggedAt(5, "#***#Thread Context not equal to Original Context"));

    activateFilter();
    host.indications().setAnswer(CMPI_RC_ERR_FAILED);
    EXPECT_FALSE(deliverFromEventThread(indication()));
    EXPECT_TRUE(loggedAt(2, "Failed to deliver indication"));

    fwf::CIMInstance broken = indication();
    broken.addProperty(fwf::CIMProperty("Severity", fwf::CIMValue<std::string>("high"), false,
                                        fwf::CIM_UINT16, false));
    EXPECT_FALSE(deliverFromEventThread(broken));
    EXPECT_TRUE(loggedAt(2, "Failed to convert CMPI Instance to Framework Instance"));
}

}  // namespace
}  // namespace vex::cmpitest
