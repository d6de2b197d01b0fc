// A simulated system in a private state directory, with the clock stopped.
#pragma once
#include <storlib/HardDrive.h>
#include <storlib/Names.h>
#include <storlib/LogicalDrive.h>
#include <storlib/Progress.h>
#include <storlib/Simulator.h>
#include <storlib/StorLib.h>

#include <gtest/gtest.h>

#include <string>

namespace storlibtest {

// Eight 100 GB SAS drives 0:0..0:7 on one controller, no logical drives.
extern const char* const kEightDrives;

class SimFixture : public ::testing::Test {
protected:
    void SetUp() override;
    void TearDown() override;

    // Writes `text` as a description file in the test directory; returns its path.
    std::string writeFile(const std::string& name, const std::string& text);
    storlib::Options options(const std::string& systemFile) const;
    // Opens `lib` on a description given as text (manual clock).
    void openSystem(const std::string& json);
    void reopen();

    std::shared_ptr<const storlib::SystemConfig> config();
    const storlib::HardDrive* drive(uint32_t channel, uint32_t device);
    const storlib::LogicalDrive* ld(uint32_t id);
    const storlib::Progress* task(storlib::TaskType type);
    uint32_t createLd(storlib::RaidLevel level, std::initializer_list<uint32_t> devices, uint64_t sizeMB = 0);

    std::string dir_;
    std::string systemFile_;
    storlib::StorLib lib_;
    storlib::Simulator sim_{lib_};
    std::shared_ptr<const storlib::SystemConfig> held_;
};

inline storlib::Addr drv(uint32_t device, uint32_t channel = 0) { return storlib::Addr(0, channel, device); }
inline storlib::Addr ldAddr(uint32_t id) { return storlib::Addr::logicalDrive(0, id); }

}  // namespace storlibtest
