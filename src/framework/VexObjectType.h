// Object types that key the object cache. The values are fixed: the cache,
// the plug-ins and the event machinery all speak in these numbers.
#ifndef VEX_FRAMEWORK_VEXOBJECTTYPE_H
#define VEX_FRAMEWORK_VEXOBJECTTYPE_H

namespace vex { namespace cim { namespace fwf {

enum _eVEXObjectType {
    VEX_OBJ_PHYSICAL_DRIVE = 0,     // one per physical device of a controller
    VEX_OBJ_CONTROLLER = 1,         // one per controller, every controller view under its prefix
    VEX_OBJ_STORAGE_VOLUME = 2,     // one per logical drive seen as a volume
    VEX_OBJ_RESERVED_3 = 3,         // no writer; erased by a full rebuild
    VEX_OBJ_CONCRETE_POOL = 4,      // one per logical drive seen as a concrete pool
    VEX_OBJ_SSP_POOL = 5,           // pools routed away from type 4 by the size rule
    VEX_OBJ_RESERVED_6 = 6,
    VEX_OBJ_ENCLOSURE = 7,          // one per SES-2 enclosure device
    VEX_OBJ_SES_ELEMENT = 8,        // one per enclosure-services element
    VEX_OBJ_RESERVED_9 = 9,
    VEX_OBJ_RESERVED_10 = 10,
    VEX_OBJ_RESERVED_11 = 11,
    VEX_OBJ_JOB = 12,               // one per running controller task
    VEX_OBJ_RESERVED_13 = 13,
    VEX_OBJ_EVENT_INDICATION = 14,  // never holds instances; a notification channel
    VEX_OBJ_VOLUME_SETTING = 15,    // settings of existing volumes and pools
    VEX_OBJ_PRIMORDIAL_SETTING = 16,// settings made by CreateSetting on primordial capabilities
    VEX_OBJ_CONCRETE_SETTING = 17   // settings made by CreateSetting on concrete capabilities
};

// What happened to an object between two reads of the controllers.
enum _eVEXEventType {
    VEX_EVENT_CREATED = 0,
    VEX_EVENT_DELETED = 1,
    VEX_EVENT_MODIFIED = 2
};

}}}  // namespace vex::cim::fwf

#endif
