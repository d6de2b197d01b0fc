#include "SimFixture.h"

#include <storlib/RaidObject.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>

namespace storlibtest {

const char* const kEightDrives = R"({"controllers": [{"taskRateMBps": 100, "drives": [
  {"channel": 0, "device": 0, "sizeMB": 100000}, {"channel": 0, "device": 1, "sizeMB": 100000},
  {"channel": 0, "device": 2, "sizeMB": 100000}, {"channel": 0, "device": 3, "sizeMB": 100000},
  {"channel": 0, "device": 4, "sizeMB": 100000}, {"channel": 0, "device": 5, "sizeMB": 100000},
  {"channel": 0, "device": 6, "sizeMB": 100000}, {"channel": 0, "device": 7, "sizeMB": 100000}]}]})";

void SimFixture::SetUp() {
    std::string tmpl = (std::filesystem::temp_directory_path() / "storlib-test-XXXXXX").string();
    ASSERT_NE(mkdtemp(tmpl.data()), nullptr);
    dir_ = tmpl;
}

void SimFixture::TearDown() {
    held_.reset();
    lib_.close();
    std::error_code ec;
    std::filesystem::remove_all(dir_, ec);
}

std::string SimFixture::writeFile(const std::string& name, const std::string& text) {
    std::string path = dir_ + "/" + name;
    std::ofstream(path) << text;
    return path;
}

storlib::Options SimFixture::options(const std::string& systemFile) const {
    storlib::Options o;
    o.systemFile = systemFile;
    o.stateDir = dir_ + "/state";
    o.timeScale = 0;
    return o;
}

void SimFixture::openSystem(const std::string& json) {
    systemFile_ = writeFile("system.json", json);
    storlib::Ret r = lib_.open(options(systemFile_));
    ASSERT_TRUE(r) << r.getReason();
}

void SimFixture::reopen() {
    held_.reset();
    lib_.close();
    storlib::Ret r = lib_.open(options(systemFile_));
    ASSERT_TRUE(r) << r.getReason();
}

std::shared_ptr<const storlib::SystemConfig> SimFixture::config() {
    held_ = lib_.getSystemConfig();
    EXPECT_TRUE(held_) << lib_.getLastError().getReason();
    return held_;
}

const storlib::HardDrive* SimFixture::drive(uint32_t channel, uint32_t device) {
    auto c = config();
    return c ? c->getObject(storlib::Addr(0, channel, device))->as<storlib::HardDrive>() : nullptr;
}

const storlib::LogicalDrive* SimFixture::ld(uint32_t id) {
    auto c = config();
    const storlib::RaidObject* o = c ? c->getObject(ldAddr(id)) : nullptr;
    return o ? o->as<storlib::LogicalDrive>() : nullptr;
}

const storlib::Progress* SimFixture::task(storlib::TaskType type) {
    auto c = config();
    for (const storlib::RaidObject* o : storlib::FilterCollection(*c, "Progress"))
        if (o->as<storlib::Progress>()->getTaskType() == type) return o->as<storlib::Progress>();
    return nullptr;
}

uint32_t SimFixture::createLd(storlib::RaidLevel level, std::initializer_list<uint32_t> devices, uint64_t sizeMB) {
    storlib::LogicalDriveSpec spec;
    spec.raidLevel = level;
    spec.dataSizeMB = sizeMB;
    spec.initMethod = storlib::InitMethod::Quick;
    for (uint32_t d : devices) spec.chunks.emplace_back(drv(d));
    uint32_t id = ~0u;
    storlib::Ret r = lib_.createLogicalDrive(spec, &id);
    EXPECT_TRUE(r) << r.getReason();
    return id;
}

}  // namespace storlibtest
