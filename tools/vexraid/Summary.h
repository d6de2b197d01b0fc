// What a storage administrator looks at first: the controllers, drives,
// pools, volumes and running jobs with their states, one table each, made
// from the view classes (one instance per object with the properties of
// its parts) and the job class.
#ifndef VEXRAID_SUMMARY_H
#define VEXRAID_SUMMARY_H

#include <cmpihost/Instance.h>

#include <nlohmann/json.hpp>

#include <string>
#include <vector>

namespace vexraid {

struct SummarySource {
    std::vector<cmpihost::Instance> controllers;  // VEX_ControllerView
    std::vector<cmpihost::Instance> drives;       // VEX_DiskDriveView
    std::vector<cmpihost::Instance> pools;        // VEX_ConcreteStoragePoolView
    std::vector<cmpihost::Instance> settings;     // VEX_PrimordialFixedStorageSettings (RAID level)
    std::vector<cmpihost::Instance> volumes;      // VEX_StorageVolumeView
    std::vector<cmpihost::Instance> jobs;         // VEX_ConcreteJob
};

struct SummarySection {
    std::string title;
    std::vector<std::string> header;
    std::vector<std::vector<std::string>> rows;
};

std::vector<SummarySection> summarize(const SummarySource& source);

// "Controllers (2)" and its table, then the next section.
std::string summaryText(const std::vector<SummarySection>& sections);
// {"controllers": [{"NAME": ..., ...}], ...}: section titles lower-cased.
nlohmann::json summaryJson(const std::vector<SummarySection>& sections);

}  // namespace vexraid

#endif
