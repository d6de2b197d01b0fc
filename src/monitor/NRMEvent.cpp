#include "monitor/NRMEvent.h"

#include <cstdio>
#include <utility>

namespace vex::monitor {

namespace {

const char* severityText(int type) {
    if (type == 1) {
        return "ERR";
    }
    if (type == 2) {
        return "WRN";
    }
    return type >= 3 && type <= 7 ? "INF" : "---";
}

const char* objectClassText(int objectClass) {
    static constexpr const char* kNames[] = {"SYS ", "ADPT", "ARR ", "LDRV", "PDRV", "ENCL", "FAN ", "PWSP"};
    return objectClass >= 1 && objectClass <= 8 ? kNames[objectClass - 1] : "UNKN";
}

// One location field: a prefix and the number, or dashes for a number that
// does not apply.
std::string field(const char* prefix, std::uint32_t value, int width) {
    char text[32];
    if (value == storlib::Addr::ANY) {
        std::snprintf(text, sizeof text, "%s%s", prefix, width == 3 ? "---" : "--");
    } else {
        std::snprintf(text, sizeof text, "%s%0*u", prefix, width, value);
    }
    return text;
}

std::string timeText(std::time_t time) {
    char buffer[64];
    struct tm local {};
    if (localtime_r(&time, &local) == nullptr || asctime_r(&local, buffer) == nullptr) {
        return "---";
    }
    std::string text(buffer);
    if (!text.empty() && text.back() == '\n') {
        text.pop_back();
    }
    return text;
}

}  // namespace

NRMEvent::NRMEvent(int code, int type, std::string description, std::string key) {
    reset();
    m_code = code;
    m_type = type;
    m_description = std::move(description);
    m_key = std::move(key);
}

NRMEvent::NRMEvent(int code, int type, std::string description, const storlib::Addr& address,
                   int detail1, int detail2, int detail3, std::string key, std::string adapterSerial)
    : NRMEvent(code, type, std::move(description), std::move(key)) {
    m_address = address;
    m_detail[0] = detail1;
    m_detail[1] = detail2;
    m_detail[2] = detail3;
    m_adapterSerial = std::move(adapterSerial);
}

void NRMEvent::reset() {
    m_time = std::time(nullptr);
    m_code = 0;
    m_type = 0;
    m_description.clear();
    m_objectClass = NRM_OBJ_SYSTEM;
    m_address = storlib::Addr();
    m_key.clear();
    m_adapterSerial.clear();
    m_detail[0] = m_detail[1] = m_detail[2] = 0;
}

std::string NRMEvent::toString() const {
    const std::uint32_t code = m_code < 0 ? storlib::Addr::ANY : static_cast<std::uint32_t>(m_code);
    std::string line = timeText(m_time);
    line += " | ";
    line += severityText(m_type);
    line += " | ";
    line += objectClassText(m_objectClass);
    line += " | ";
    line += field("", code, 3) + field(":A", m_address.getAdapterID(), 2) +
            field("C", m_address.getChannelID(), 2) + field("S", m_address.getDeviceID(), 2) +
            field("L", m_address.getLogicalDriveID(), 3);
    line += " | ";
    line += m_description;
    return line;
}

}  // namespace vex::monitor
