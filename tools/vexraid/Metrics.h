// The RAID state in the Prometheus text exposition format (version 0.0.4),
// for node_exporter's textfile collector or any scraper: one "# HELP" and
// "# TYPE" per family, states as enum-style gauges (one series per possible
// state, 1 on the current one), units in the names.
#ifndef VEXRAID_METRICS_H
#define VEXRAID_METRICS_H

#include <string>

#include "RaidState.h"

namespace vexraid {

// The whole exposition of a successful reading (vexraid_scrape_success 1).
std::string metricsText(const RaidState& state, double scrapeSeconds);
// The exposition of a failed reading: vexraid_scrape_success 0 only.
std::string failedMetricsText(double scrapeSeconds);

// A label value as the format writes it between quotes: \\, \" and \n.
std::string escapeLabelValue(const std::string& value);

// Writes text to path atomically: a temporary file in the same directory,
// flushed, then renamed over path. Throws std::runtime_error (path kept
// untouched) when it cannot.
void writeFileAtomically(const std::string& path, const std::string& text);

}  // namespace vexraid

#endif
