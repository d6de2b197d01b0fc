// The caller's role check for extrinsic methods and modifications: the login
// name from the request's "CMPIPrincipal" must belong to a password-file line
// whose primary group is 0. Enumerations, gets and association requests are
// not checked.
#ifndef VEX_CMPI_CMPIADAPTERACCESS_H
#define VEX_CMPI_CMPIADAPTERACCESS_H

#include <cmpidt.h>
#include <cmpift.h>

#include <string>

namespace vex::cim::adap::cmpi {

class CMPIAdapter;

namespace access {

// How reading the principal went.
enum class PrincipalRead {
    Read,           // `user` holds the login name (possibly empty)
    NoEntry,        // the context has no usable "CMPIPrincipal" entry
    NoCharacters    // the entry's string object cannot be read
};

// The login name: the principal's text up to its first blank.
//
// sfcb without authentication hands a string object whose characters are
// NULL. That is an object manager that does not authenticate, not a broken
// string: it reads as an empty user name, which the check lets pass like any
// object manager running without authentication. Only a string object that
// cannot be used at all (missing, without table, or failing getCharPtr), or
// an entry of another type, is refused as NoCharacters.
PrincipalRead readUserName(const CMPIContext* ctx, std::string& user);

// True when the caller may run a method or modify an instance. Otherwise the
// status is set: rc 1 "Failed to get context entry type CMPIPrinciple",
// rc 1 "Failed to get CharsPtr from string username", or rc 2 with the user
// name followed by " : is not a member of Administrator/root".
bool callerMayChange(CMPIAdapter& adapter, const CMPIContext* ctx, const CMPIBroker* broker,
                     CMPIStatus* status);

}  // namespace access
}  // namespace vex::cim::adap::cmpi

#endif
