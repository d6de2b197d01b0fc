// Property tables. Each object class lists its properties once, as
// X(type, member, getter, default); the list declares the plain data record
// of the class and its getters.
#pragma once

#define STORLIB_PROPERTY_MEMBER(type, member, getter, init) type member = init;
#define STORLIB_PROPERTY_GETTER(type, member, getter, init) \
    const type& getter() const noexcept { return data_.member; }
