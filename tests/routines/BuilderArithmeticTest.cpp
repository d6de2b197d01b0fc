// The logical drive spec builder's level rules and arithmetic.
#include "RoutineTestSupport.h"
#include "controller/routines/RaidLevelMath.h"
#include "controller/routines/StorLibModify.h"

namespace vex::cim::fwf::test {

namespace {

StorLibModify& modify(std::uint32_t source, std::uint32_t target, std::uint32_t legs = 1) {
    StorLibModify& m = *StorLibModify::getInstance();
    m.cleanUp();
    m.setLevels(source, target, legs);
    return m;
}

class BuilderOnControllerTest : public RoutineTest {
protected:
    // Loads logical drive 0 (RAID 5 on 0:0 to 0:2) with a target.
    StorLibModify& loaded(std::uint32_t target, const std::vector<uint32_t>& devices) {
        m_config = library().getSystemConfig();
        const storlib::Adapter* adapter = m_config->getAdapter(0);
        const auto* ld = m_config->getObject(storlib::Addr::logicalDrive(0, 0))->as<storlib::LogicalDrive>();
        std::vector<storlib::ChunkSpec> chunks;
        for (uint32_t d : devices) {
            chunks.emplace_back(storlib::Addr::device(0, 0, d));
        }
        StorLibModify& m = *StorLibModify::getInstance();
        m.loadArguments(adapter, ld, target, 0, chunks);
        return m;
    }
    std::shared_ptr<const storlib::SystemConfig> m_config;
};

}  // namespace

TEST(BuilderArithmeticTest, LevelNamesMatchWithoutCase) {
    EXPECT_EQ(StorLibModify::getRAIDLevelEnum("raid5ee"), 7u);
    EXPECT_EQ(StorLibModify::getRAIDLevelEnum("RAID5EE"), 7u);
    EXPECT_EQ(StorLibModify::getRAIDLevelEnum("SimpleVolume"), 15u);
    EXPECT_EQ(StorLibModify::getRAIDLevelEnum("RAID 5"), 0x7fffffffu);
    EXPECT_EQ(StorLibModify::getRAIDLevelEnum(""), 0x7fffffffu);
}

TEST(BuilderArithmeticTest, MaximumDataSizeFollowsTheLevelAndTheSourceLevel) {
    EXPECT_EQ(modify(5, 5).calculateMaxDataSize(1000, 4, 5, 1), 750u);
    EXPECT_EQ(modify(7, 5).calculateMaxDataSize(1000, 4, 5, 1), 600u);  // the extra stripe of a RAID 5EE source
    EXPECT_EQ(modify(0, 0).calculateMaxDataSize(1000, 4, 0, 1), 1000u);
    EXPECT_EQ(modify(1, 1).calculateMaxDataSize(1001, 2, 1, 1), 500u);
    EXPECT_EQ(modify(16, 16).calculateMaxDataSize(1000, 5, 16, 1), 600u);
    EXPECT_EQ(modify(16, 16).calculateMaxDataSize(1000, 3, 16, 1), 0u);  // no RAID 6 of three drives
    const std::uint64_t size = 6000;
    EXPECT_EQ(modify(11, 11).calculateMaxDataSize(size, 6, 11, 2), 2 * (3 * (size / 6) * 2 / 3));
    EXPECT_EQ(modify(0, 12).calculateMaxDataSize(1000, 4, 12, 1), 0u);
}

TEST(BuilderArithmeticTest, StripesPerMajorCycle) {
    StorLibModify& m = modify(0, 0);
    EXPECT_EQ(m.getMinorDataStripesPerMajorCycle(4, 9), 4u);
    EXPECT_EQ(m.getMinorParityStripesPerMajorCycle(4, 9), 4u);
    EXPECT_EQ(m.getMinorDataStripesPerMajorCycle(4, 3), 3u);
    EXPECT_EQ(m.getMinorParityStripesPerMajorCycle(4, 4), 1u);
    EXPECT_EQ(m.getMinorDataStripesPerMajorCycle(5, 7), 3u);
    EXPECT_EQ(m.getMinorDataStripesPerMajorCycle(6, 19), 4u);
    EXPECT_EQ(m.getMinorParityStripesPerMajorCycle(6, 17), 2u);
    EXPECT_EQ(m.getMinorDataStripesPerMajorCycle(4, 0), 4u);
    EXPECT_EQ(m.getMinorParityStripesPerMajorCycle(4, 0), 0u);
}

TEST(BuilderArithmeticTest, CapabilityIdentifiersOfMigrationsAndExpansions) {
    StorLibModify& m = modify(0, 0);
    EXPECT_EQ(m.getRLMFeature(0, 0), 31u);
    EXPECT_EQ(m.getRLMFeature(0, 5), 33u);
    EXPECT_EQ(m.getRLMFeature(5, 5), 39u);
    EXPECT_EQ(m.getRLMFeature(5, 18), 214u);
    EXPECT_EQ(m.getRLMFeature(16, 18), 218u);
    EXPECT_EQ(m.getRLMFeature(15, 1), 183u);
    EXPECT_TRUE(m.isMirrorSimpleMigration());
    EXPECT_EQ(m.getRLMFeature(1, 15), 76u);
    EXPECT_TRUE(m.isMirrorSimpleMigration());
    EXPECT_EQ(m.getRLMFeature(5, 2), 306u);
    EXPECT_FALSE(m.isMirrorSimpleMigration());
    EXPECT_FALSE(m.isValidRLM(5, 2));
    const std::pair<std::uint32_t, std::uint32_t> oce[] = {{0, 29}, {1, 49}, {2, 50}, {5, 30}, {7, 51}, {9, 53},
                                                          {11, 54}, {16, 52}, {17, 55}, {18, 206}, {15, 306}};
    for (const auto& [level, id] : oce) {
        EXPECT_EQ(StorLibModify::getOCEFeature(level), id) << level;
    }
}

TEST_F(BuilderOnControllerTest, MinimumChunksOfAMigrationKeepTheDataOnItsDrives) {
    EXPECT_EQ(loaded(5, {0, 1, 2, 3}).getMinChunksAllowed(), 3u);   // RAID 5 to RAID 5: n
    EXPECT_EQ(loaded(7, {0, 1, 2}).getMinChunksAllowed(), 4u);      // to RAID 5EE: n + 1
    EXPECT_EQ(loaded(9, {0, 1, 2}).getMinChunksAllowed(), 4u);      // to RAID 10: 2n - 2
    EXPECT_EQ(loaded(0, {0, 1, 2}).getMinChunksAllowed(), 3u);      // to RAID 0: n
    EXPECT_EQ(loaded(5, {3, 4, 5}).getMinChunksAllowed(), 3u);      // disjoint: the level's base
    // RAID 5 to RAID 6: the morph search over the controller's twelve drives.
    const std::uint32_t morph = loaded(16, {0, 1, 2, 3}).getMinChunksAllowed();
    EXPECT_GE(morph, 4u);
    EXPECT_LE(morph, 12u);
    // A failed member is not counted.
    ASSERT_TRUE(simulator().failDrive(storlib::Addr::device(0, 0, 2)).ok());
    EXPECT_EQ(loaded(7, {0, 1, 2}).getMinChunksAllowed(), 4u);  // max(base 4, 2 + 1)
}

// A controller with only the three drives of its RAID 5.
class SmallControllerTest : public BuilderOnControllerTest {
protected:
    std::string systemJson() const override {
        return R"({"controllers": [{"drives": [{"channel": 0, "device": 0, "sizeMB": 1000},
            {"channel": 0, "device": 1, "sizeMB": 1000}, {"channel": 0, "device": 2, "sizeMB": 1000}],
            "logicalDrives": [{"id": 0, "raidLevel": "RAID5", "members": ["0:0", "0:1", "0:2"]}]}]})";
    }
};

TEST_F(SmallControllerTest, AMorphBeyondTheControllersDrivesAsksForOneMore) {
    EXPECT_EQ(loaded(16, {0, 1, 2}).getMinChunksAllowed(), 4u);  // RAID 6 needs four; the controller has three
    EXPECT_EQ(loaded(18, {0, 1, 2}).getMinChunksAllowed(), 4u);
    // And ModifyVD reports it as not enough drives.
    CIMMethodParam in = args();
    withText(in, "SPInstanceID", "0_0");
    withText(in, "VDName", "Device 0");
    withText(in, "RaidLevel", "RAID6");
    withNumber(in, "StripeSize", 0);
    withNumber(in, "InitMethod", 0);
    EXPECT_EQ(call("ModifyVD", in), unsigned{FSAIF_OP_INVALID});
}

}  // namespace vex::cim::fwf::test
