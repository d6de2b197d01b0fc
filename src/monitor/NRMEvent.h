// NRMEvent: one finding of the RAID event monitor, numbered, classified and
// worded from the message catalogue.
#ifndef VEX_MONITOR_NRMEVENT_H
#define VEX_MONITOR_NRMEVENT_H

#include <ctime>
#include <string>

#include <storlib/Addr.h>

namespace vex::monitor {

// What an event is about.
enum NRMObjectClass {
    NRM_OBJ_SYSTEM = 1,
    NRM_OBJ_ADAPTER = 2,
    NRM_OBJ_ARRAY = 3,
    NRM_OBJ_LOGICAL_DRIVE = 4,
    NRM_OBJ_PHYSICAL_DRIVE = 5,
    NRM_OBJ_ENCLOSURE = 6,
    NRM_OBJ_FAN = 7,
    NRM_OBJ_POWER_SUPPLY = 8
};

// Severity classes: 1 error, 2 warning, 3 to 7 informational; 5 marks a
// configuration change.
enum EnumEventType {
    NRM_EVENT_ERROR = 1,
    NRM_EVENT_WARNING = 2,
    NRM_EVENT_INFO = 3,
    NRM_EVENT_PROGRESS = 4,
    NRM_EVENT_CONFIG_CHANGE = 5
};

class NRMEvent {
public:
    NRMEvent() { reset(); }
    NRMEvent(int code, int type, std::string description, std::string key);
    NRMEvent(int code, int type, std::string description, const storlib::Addr& address, int detail1,
             int detail2, int detail3, std::string key, std::string adapterSerial = {});

    void reset();

    std::time_t getTime() const { return m_time; }
    void setTime(std::time_t time) { m_time = time; }
    int getCode() const { return m_code; }
    void setCode(int code) { m_code = code; }
    int getType() const { return m_type; }
    void setType(int type) { m_type = type; }
    const std::string& getDescription() const { return m_description; }
    void setDescription(std::string text) { m_description = std::move(text); }
    int getObjectClass() const { return m_objectClass; }
    void setObjectClass(int objectClass) { m_objectClass = objectClass; }
    const storlib::Addr& getAddress() const { return m_address; }
    void setAddress(const storlib::Addr& address) { m_address = address; }
    const std::string& getKey() const { return m_key; }
    void setKey(std::string key) { m_key = std::move(key); }
    const std::string& getAdapterSerial() const { return m_adapterSerial; }
    void setAdapterSerial(std::string serial) { m_adapterSerial = std::move(serial); }
    int getDetail(int index) const { return index >= 0 && index < 3 ? m_detail[index] : 0; }

    // The events-log line: time | severity | object class | location | text.
    std::string toString() const;

private:
    std::time_t m_time;
    int m_code;
    int m_type;
    std::string m_description;
    int m_objectClass;
    storlib::Addr m_address;
    std::string m_key;
    std::string m_adapterSerial;
    int m_detail[3];
};

}  // namespace vex::monitor

#endif
