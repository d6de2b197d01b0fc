// MessageFormat: the default text of getMessage/getMessage2 with its
// inserts "$0" ... "$9" replaced by the (type, value) pairs that follow the
// count (the CMFmt* macros). An insert of a type the macros do not produce
// ends the reading of inserts.
#ifndef CMPIHOST_SRC_MESSAGEFORMAT_H
#define CMPIHOST_SRC_MESSAGEFORMAT_H

#include <cmpidt.h>

#include <cstdarg>
#include <string>

namespace cmpihost::detail {

std::string formatMessage(const char* defMsg, CMPICount count, va_list args);

}  // namespace cmpihost::detail

#endif
