// Principal: what the "CMPIPrincipal" context entry of a request holds.
//  - user(name): a CMPI_string with the login name (OpenPegasus, and sfcb
//    with basic authentication);
//  - nullChars(): a CMPI_string whose getCharPtr gives NULL (sfcb with
//    authentication switched off);
//  - absent(): no such entry at all.
#ifndef CMPIHOST_PRINCIPAL_H
#define CMPIHOST_PRINCIPAL_H

#include <string>

namespace cmpihost {

struct Principal {
    enum class Kind { Name, NullChars, Absent };

    Kind kind = Kind::Name;
    std::string name = "root";

    static Principal user(std::string n) { return {Kind::Name, std::move(n)}; }
    static Principal nullChars() { return {Kind::NullChars, {}}; }
    static Principal absent() { return {Kind::Absent, {}}; }
};

}  // namespace cmpihost

#endif
