// DerivedInstancePlugin<Base, Rows, Index>: the one template of the plug-in
// classes whose instances are derived by a row of a table (the storage model
// classes computed from the cache records, the device classes derived from
// the records of one object-cache type). A row names the CIM class and how
// its instances are derived; Base is the kind of derivation and takes the
// row in its constructor: what it derives from, how a get picks the named
// instance and which changes or methods it takes are Base's. A plug-in class
// is one line:
//   class VEX_EnclosureFan final : public DerivedInstancePlugin<CachedRecordClass, kDeviceInstances, kEnclosureFan> {};
#ifndef VEX_FRAMEWORK_DERIVEDINSTANCEPLUGIN_H
#define VEX_FRAMEWORK_DERIVEDINSTANCEPLUGIN_H

#include <cstddef>
#include <type_traits>

namespace vex::cim::fwf {

template <typename Base, const auto* Rows, std::size_t Index>
class DerivedInstancePlugin : public Base {
    static_assert(std::is_constructible_v<Base, decltype(Rows[Index])>,
                  "a derivation base is built from one row of its table");

public:
    DerivedInstancePlugin() : Base(Rows[Index]) {}
};

}  // namespace vex::cim::fwf

#endif
