// The object tree: look-up by address, filtering by class, and the
// out-of-line members of the object classes.
#include <storlib/Adapter.h>
#include <storlib/Battery.h>
#include <storlib/Channel.h>
#include <storlib/Chunk.h>
#include <storlib/Enclosure.h>
#include <storlib/HardDrive.h>
#include <storlib/LogicalDrive.h>
#include <storlib/Progress.h>
#include <storlib/SASConnector.h>
#include <storlib/SASPhy.h>
#include <storlib/SESElement.h>
#include <storlib/StorEvent.h>
#include <storlib/SystemConfig.h>

#include <algorithm>
#include <functional>

namespace storlib {

std::string Addr::toString() const {
    return std::to_string(adapter_) + "_" + std::to_string(channel_) + "_" + std::to_string(device_) +
           "_" + std::to_string(logicalDrive_) + "_" + std::to_string(extended_);
}

size_t AddrHash::operator()(const Addr& a) const noexcept {
    size_t h = std::hash<uint64_t>()(a.getExtendedID());
    for (uint32_t v : {a.getAdapterID(), a.getChannelID(), a.getDeviceID(), a.getLogicalDriveID()})
        h = h * 1000003u ^ std::hash<uint32_t>()(v);
    return h;
}

RaidObject::~RaidObject() = default;

bool RaidObject::isA(std::string_view className) const noexcept { return className == "RaidObject"; }

bool RaidObject::isBelow(const RaidObject* ancestor) const noexcept {
    for (const RaidObject* p = parent_; p; p = p->parent_)
        if (p == ancestor) return true;
    return false;
}

const RaidObject* RaidObject::findBelow(const Addr& addr) const {
    if (addr_ == addr) return this;
    for (const RaidObject* c : children_)
        if (const RaidObject* hit = c->findBelow(addr)) return hit;
    return nullptr;
}

const RaidObject* RaidObject::getObject(const Addr& addr) const {
    const RaidObject* root = this;
    while (root->parent_) root = root->parent_;
    if (const auto* config = dynamic_cast<const SystemConfig*>(root)) {
        auto it = config->index_.find(addr);
        if (it == config->index_.end()) return nullptr;
        if (it->second == this || it->second->isBelow(this)) return it->second;
    }
    return findBelow(addr);
}

FilterCollection::FilterCollection(const RaidObject& from, std::string_view className) {
    for (const RaidObject* c : from.getChildren()) collect(*c, className);
}

FilterCollection::FilterCollection(const RaidObject* from, std::string_view className) {
    if (from)
        for (const RaidObject* c : from->getChildren()) collect(*c, className);
}

void FilterCollection::collect(const RaidObject& node, std::string_view className) {
    if (node.isA(className)) items_.push_back(&node);
    for (const RaidObject* c : node.getChildren()) collect(*c, className);
}

SystemConfig::SystemConfig() : RaidObject(Addr()) {}
SystemConfig::~SystemConfig() = default;

const Adapter* SystemConfig::getAdapter(size_t index) const {
    return index < getChildren().size() ? getChildren()[index]->as<Adapter>() : nullptr;
}

int Adapter::getFeature(uint32_t featureId) const noexcept {
    for (const FeatureEntry& f : data_.features)
        if (f.id == featureId) return f.value;
    return 0;
}

uint32_t StorEvent::getDetail(int index) const noexcept {
    switch (index) {
    case 0: return data_.detail1;
    case 1: return data_.detail2;
    case 2: return data_.detail3;
    default: return 0;
    }
}

Adapter::~Adapter() = default;
Channel::~Channel() = default;
PhysicalDevice::~PhysicalDevice() = default;
HardDrive::~HardDrive() = default;
Enclosure::~Enclosure() = default;
SES2EnclosureDevice::~SES2EnclosureDevice() = default;
SESElement::~SESElement() = default;
EnclosureFan::~EnclosureFan() = default;
EnclosurePowerSupply::~EnclosurePowerSupply() = default;
EnclosureTemperatureSensor::~EnclosureTemperatureSensor() = default;
EnclosureSlot::~EnclosureSlot() = default;
LogicalDrive::~LogicalDrive() = default;
Chunk::~Chunk() = default;
Battery::~Battery() = default;
SASPhy::~SASPhy() = default;
SASConnector::~SASConnector() = default;
Progress::~Progress() = default;

}  // namespace storlib
