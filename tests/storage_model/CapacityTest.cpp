// Capacity bookkeeping: for every controller the primordial pool holds the
// capacity of its drives that are neither failed nor missing, its remaining
// space is exactly its remaining extents, and what the pools allocated from
// it consume plus what remains is all of it - on the demo and minimal
// systems, and after drives fail or are pulled.
#include <map>

#include <storlib/LogicalDriveSpec.h>
#include <storlib/Simulator.h>
#include <storlib/SystemGenerator.h>

#include "storage_model/StorageModelFixture.h"

namespace vex::storagemodel {
namespace {

struct Books {
    std::uint64_t total = 0, remaining = 0;
    std::uint64_t drives = 0;           // primordial extents in the pool
    std::uint64_t remainingExtents = 0;
    std::uint64_t consumed = 0;         // by the pools allocated from it
    std::uint64_t sourcePools = 0;      // by logical drives beyond the size limit
    std::uint64_t chunks = 0;           // concrete extents of pools
};

class CapacityTest : public StorageModelTest {
protected:
    std::map<std::string, Books> books() {
        std::map<std::string, Books> out;
        for (const Instance& pool : enumerate("VEX_PrimordialStoragePool")) {
            Books& b = out[text(pool, "InstanceID")];
            b.total = number(pool, "TotalManagedSpace");
            b.remaining = number(pool, "RemainingManagedSpace");
            for (const ObjectPath& drive : associatorNames(pool.path, "VEX_PrimordialAssociatedComponentExtent")) {
                const Response r = cimom().getInstance(drive);
                EXPECT_EQ(r.instances.size(), 1u) << drive.toString();
                for (const Instance& d : r.instances) b.drives += number(d, "NumberOfBlocks") * number(d, "BlockSize");
            }
        }
        for (const Instance& extent : enumerate("VEX_RemainingStorageExtent")) {
            out[text(extent, "SystemName")].remainingExtents +=
                number(extent, "NumberOfBlocks") * number(extent, "BlockSize");
        }
        const Response allocations = cimom().enumerateInstances(ObjectPath(datapath::kImplNs,
                                                                           "VEX_ConcretePoolAllocatedFromPrimordialPool"));
        EXPECT_TRUE(allocations.ok()) << allocations.status.toString();
        for (const Instance& a : allocations.instances) {
            out[text(end(a, "Antecedent"), "InstanceID")].consumed += number(a, "SpaceConsumed");
        }
        for (const Instance& view : enumerate("VEX_SourceStoragePoolView")) {
            const std::string id = text(view, "SPInstanceID");
            out["vexController_" + id.substr(0, id.find('_'))].sourcePools += number(view, "SPSpaceConsumed");
        }
        return out;
    }

    void expectBalanced() {
        const std::map<std::string, Books> all = books();
        EXPECT_FALSE(all.empty());
        for (const auto& [system, b] : all) {
            SCOPED_TRACE(system);
            EXPECT_EQ(b.total, b.drives);
            EXPECT_EQ(b.remaining, b.remainingExtents);
            EXPECT_EQ(b.consumed + b.sourcePools + b.remaining, b.total);
        }
    }

    void disturb(std::vector<storlib::Ret> (*what)(storlib::Simulator&)) {
        storlib::Simulator sim(system().library());
        for (const storlib::Ret& done : what(sim)) EXPECT_TRUE(done) << done.getReason();
        restart();
    }
};

TEST_F(CapacityTest, DemoSystemAddsUp) {
    startOn(datapath::shippedSystem("demo.json"));
    expectBalanced();
    // Controller 0: twelve drives; 0:11 and the two spares are free.
    const Books b = books()["vexController_0"];
    EXPECT_GT(b.remaining, 0u);
    EXPECT_EQ(enumerate("VEX_RemainingStorageExtent").size(), 4u);
}

TEST_F(CapacityTest, MinimalSystemIsOneMirrorWithNothingLeft) {
    startOn(datapath::shippedSystem("minimal.json"));
    expectBalanced();
    const Books b = books()["vexController_0"];
    EXPECT_EQ(b.total, 2 * 572204ull * 1024 * 1024);
    EXPECT_EQ(b.remaining, 0u);
    EXPECT_EQ(enumerate("VEX_ConcreteStorageExtent").size(), 2u);
}

TEST_F(CapacityTest, FailedAndPulledDrivesLeaveThePrimordialPool) {
    startOn(datapath::shippedSystem("demo.json"));
    const std::uint64_t before0 = books()["vexController_0"].total;
    const std::uint64_t before1 = books()["vexController_1"].total;
    disturb([](storlib::Simulator& sim) {
        return std::vector<storlib::Ret>{sim.failDrive(storlib::Addr::device(0, 0, 1)),
                                                   sim.pullDrive(storlib::Addr::device(1, 0, 2))};
    });
    expectBalanced();
    EXPECT_EQ(books()["vexController_0"].total, before0 - 1144409ull * 1024 * 1024);
    EXPECT_EQ(books()["vexController_1"].total, before1 - 3814697ull * 1024 * 1024);
}

TEST_F(CapacityTest, ExtentsOfAPoolCoverItsMembers) {
    startOn(datapath::shippedSystem("demo.json"));
    // "Data" (0_1) is a RAID 5 of three drives with a dedicated spare.
    ObjectPath pool(datapath::kImplNs, "VEX_ConcreteStoragePool");
    pool.addKey("InstanceID", cmpihost::Value::string("0_1"));
    const std::vector<ObjectPath> chunks = associatorNames(pool, "VEX_AssociatedComponentExtent");
    ASSERT_EQ(chunks.size(), 3u);
    std::uint64_t bytes = 0;
    for (const ObjectPath& chunk : chunks) {
        const Response r = cimom().getInstance(chunk);
        ASSERT_EQ(r.instances.size(), 1u);
        bytes += number(r.instances[0], "NumberOfBlocks") * number(r.instances[0], "BlockSize");
    }
    const Response p = cimom().getInstance(pool);
    ASSERT_EQ(p.instances.size(), 1u);
    EXPECT_EQ(bytes, number(p.instances[0], "SpaceConsumed"));
    EXPECT_LT(number(p.instances[0], "TotalManagedSpace"), bytes);  // parity
}

TEST_F(CapacityTest, GeneratedSystemsAddUp) {
    for (const storlib::GeneratorParams& params :
         {storlib::GeneratorParams{2, 24, 6, 2, true}, storlib::GeneratorParams{3, 9, 4, 1, false}}) {
        SCOPED_TRACE(params.drivesPerController);
        startOn(params);
        expectBalanced();
        EXPECT_EQ(books().size(), params.controllers);
        EXPECT_EQ(enumerate("VEX_GlobalIsSpare").size() + enumerate("VEX_DedicatedIsSpare").size(),
                  params.controllers * params.sparesPerController);
    }
}

// A volume carved from the middle of a free drive splits its free space in two.
TEST_F(CapacityTest, AChunkInTheMiddleOfAFreeDriveLeavesTwoRemainingExtents) {
    startOn(datapath::shippedSystem("demo.json"));
    const Books before = books()["vexController_0"];
    storlib::LogicalDriveSpec carved;
    carved.raidLevel = storlib::RaidLevel::SimpleVolume;
    carved.chunks.emplace_back(storlib::Addr::device(0, 0, 11), 200000, 100000);
    carved.name = "Carved";
    const storlib::Ret created = system().library().createLogicalDrive(carved);
    ASSERT_TRUE(created) << created.getReason();
    restart();
    expectBalanced();
    const Books after = books()["vexController_0"];
    EXPECT_EQ(after.total, before.total);
    EXPECT_EQ(after.remaining, before.remaining - 100000ull * 1024 * 1024);
    std::vector<std::uint64_t> starts;
    for (const Instance& link : enumerate("VEX_PrimordialToRemainingBasedOn")) {
        if (text(end(link, "Antecedent"), "DeviceID") == "0_0_11") starts.push_back(number(link, "StartingAddress"));
    }
    EXPECT_EQ(starts, (std::vector<std::uint64_t>{0, 300000ull * 2048}));
}

}  // namespace
}  // namespace vex::storagemodel
