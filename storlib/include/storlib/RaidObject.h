// RaidObject: the base of every object the library reports; FilterCollection:
// the objects of one class below a given object.
#pragma once
#include <storlib/Addr.h>
#include <storlib/Export.h>

#include <string_view>
#include <vector>

namespace storlib {
namespace detail { class SnapshotBuilder; }

// Objects form a tree: SystemConfig > Adapter > Channel > HardDrive / SES2EnclosureDevice,
// Adapter > LogicalDrive > Chunk, and so on. Objects are read-only values of
// one configuration snapshot; they live as long as that snapshot does.
class STORLIB_API RaidObject {
public:
    virtual ~RaidObject();
    RaidObject(const RaidObject&) = delete;
    RaidObject& operator=(const RaidObject&) = delete;

    // The class name: "Adapter", "HardDrive", "LogicalDrive", "Chunk", ...
    virtual const char* getClassName() const noexcept = 0;
    // True when the object's class is className or derives from it
    // (a HardDrive is a "PhysicalDevice"; every object is a "RaidObject").
    virtual bool isA(std::string_view className) const noexcept;

    const Addr& getAddr() const noexcept { return addr_; }
    const RaidObject* getParent() const noexcept { return parent_; }
    const std::vector<const RaidObject*>& getChildren() const noexcept { return children_; }

    // This object or the first object below it whose address is exactly addr,
    // or null. From the SystemConfig root the look-up takes constant time.
    const RaidObject* getObject(const Addr& addr) const;

    template <class T> const T* as() const noexcept { return dynamic_cast<const T*>(this); }

protected:
    explicit RaidObject(const Addr& addr) : addr_(addr) {}

private:
    friend class detail::SnapshotBuilder;
    const RaidObject* findBelow(const Addr& addr) const;
    bool isBelow(const RaidObject* ancestor) const noexcept;

    Addr addr_;
    const RaidObject* parent_ = nullptr;
    std::vector<const RaidObject*> children_;
};

// Declares the class name of a RaidObject subclass and its place in the class chain.
#define STORLIB_OBJECT_CLASS(Name, Base)                                         \
public:                                                                          \
    static constexpr const char* kClassName = #Name;                             \
    const char* getClassName() const noexcept override { return kClassName; }    \
    bool isA(std::string_view n) const noexcept override { return n == kClassName || Base::isA(n); }

// The objects below `from` (depth first, in the library's listing order) that
// are of class className or derive from it.
class STORLIB_API FilterCollection {
public:
    FilterCollection(const RaidObject& from, std::string_view className);
    FilterCollection(const RaidObject* from, std::string_view className);

    size_t size() const noexcept { return items_.size(); }
    bool empty() const noexcept { return items_.empty(); }
    const RaidObject* elementAt(size_t i) const { return items_.at(i); }
    template <class T> const T* elementAt(size_t i) const { return items_.at(i)->as<T>(); }

    std::vector<const RaidObject*>::const_iterator begin() const noexcept { return items_.begin(); }
    std::vector<const RaidObject*>::const_iterator end() const noexcept { return items_.end(); }

private:
    void collect(const RaidObject& node, std::string_view className);
    std::vector<const RaidObject*> items_;
};

}  // namespace storlib
