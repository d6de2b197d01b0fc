#include "monitor/ControllerEventRules.h"

#include <storlib/StorEvent.h>

namespace vex::monitor {

namespace {

enum class When { Always, Detail1Not6, Detail3Not0Or5, Detail1Not5, TaskChange };

struct RefreshRow {
    std::uint32_t type;
    When when;
};

const RefreshRow kRefreshRows[] = {
    {4, When::Always},          {8, When::Always},          {32, When::Always},
    {64, When::Always},         {128, When::Always},        {256, When::Always},
    {4096, When::Always},       {4097, When::Always},       {16384, When::Always},
    {8192, When::Detail1Not6},  {32768, When::Detail3Not0Or5},
    {0x20000, When::Always},    {0x40000, When::Always},    {0x80000, When::Always},
    {0x200000, When::Always},   {0x400000, When::Always},   {0x40000b, When::Always},
    {0x100000, When::Detail1Not5},
    {0x2000000, When::Always},  {0x4000000, When::Always},  {0x8000000, When::Always},
    {0x20000000, When::Always}, {0x2000000a, When::Always},
    {0x10000000, When::TaskChange},
};

struct PassThroughRow {
    std::uint32_t type;
    std::uint32_t detail2;  // second detail that must match
    const char* key;
};

// The alarm sounding (second detail 1) has no trace in the configuration.
const PassThroughRow kPassThroughRows[] = {
    {0x8000000, 1, "EVENT_STRATAVOL_CONTROLLER_ALARM"},
};

struct TaskRow {
    std::uint32_t taskType;
    const char* keyBase;
};

const TaskRow kTaskRows[] = {
    {1, "EVENT_STRATAVOL_LD_INIT"},     {2, "EVENT_STRATAVOL_LD_CLEAR"},
    {3, "EVENT_STRATAVOL_LD_REBUILD"},  {4, "EVENT_STRATAVOL_LD_VERIFY"},
    {5, "EVENT_STRATAVOL_LD_REPAIR"},   {6, "EVENT_STRATAVOL_PD_VERIFY"},
    {7, "EVENT_STRATAVOL_PD_CLEAR"},    {8, "EVENT_STRATAVOL_PD_ERASE"},
    {9, "EVENT_STRATAVOL_PD_COPYBACK"}, {10, "EVENT_STRATAVOL_FASTTIER_CHECK"},
    {16, "EVENT_STRATAVOL_LD_RECONFIG"},
};

constexpr std::uint32_t kTaskEvent = 0x10000000;

}  // namespace

bool eventNeedsRefresh(std::uint32_t type, std::uint32_t detail1, std::uint32_t detail2,
                       std::uint32_t detail3) {
    for (const RefreshRow& row : kRefreshRows) {
        if (row.type != type) {
            continue;
        }
        switch (row.when) {
        case When::Always: return true;
        case When::Detail1Not6: return detail1 != 6;
        case When::Detail3Not0Or5: return detail3 != 0 && detail3 != 5;
        case When::Detail1Not5: return detail1 != 5;
        case When::TaskChange: return detail1 == 3 || detail1 == 4 || (detail1 == 2 && detail2 == 16);
        }
    }
    return false;
}

bool eventNeedsRefresh(const storlib::StorEvent& event) {
    return eventNeedsRefresh(event.getType(), event.getDetail(0), event.getDetail(1), event.getDetail(2));
}

const char* passThroughKey(const storlib::StorEvent& event) {
    for (const PassThroughRow& row : kPassThroughRows) {
        if (row.type == event.getType() && row.detail2 == event.getDetail(1)) {
            return row.key;
        }
    }
    return nullptr;
}

std::string taskEventKey(const storlib::StorEvent& event) {
    if (event.getType() != kTaskEvent || (event.getDetail(0) != 1 && event.getDetail(0) != 2)) {
        return {};
    }
    for (const TaskRow& row : kTaskRows) {
        if (row.taskType == event.getDetail(1)) {
            return std::string(row.keyBase) + (event.getDetail(0) == 1 ? "_PROGRESS" : "_STARTED");
        }
    }
    return {};
}

}  // namespace vex::monitor
