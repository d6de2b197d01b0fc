// Small helpers shared across the framework and the plug-ins: case-insensitive
// names, items of delimited lists, property lists and bounded formatting.
#ifndef VEX_FRAMEWORK_COMMONFUNCTIONS_H
#define VEX_FRAMEWORK_COMMONFUNCTIONS_H

#include <string>
#include <vector>

namespace vex::cim::fwf::CommonFunctions {

// ---- names -------------------------------------------------------------------

// Lower-cased copy, ASCII letters only (CIM names are ASCII), independent of
// the process locale. CIM class names are compared this way everywhere.
std::string toLower(const std::string& text);

// toLower(a) == toLower(b), without building the copies.
bool equalsIgnoreCase(const std::string& a, const std::string& b);

// True when toLower(text) contains toLower(part); an empty part is contained.
bool containsIgnoreCase(const std::string& text, const std::string& part);

// ---- delimited lists ---------------------------------------------------------

// Lists of CIM class names (for example both classes at one end of an
// association) are written "VEX_A,VEX_B": a comma, never part of a CIM name,
// separates the items. Identifiers built from numbers use their own separator
// and pass it explicitly ("1_0_3" with '_').
constexpr char kListDelimiter = ',';

// Item `index` (counted from 0) of a delimited list, blanks and tabs around it
// removed; an empty string when the list has fewer items. A list without the
// delimiter has one item, the whole text.
std::string getStringAt(const std::string& list, unsigned int index,
                        char delimiter = kListDelimiter);

// Number of items of a delimited list; 0 for an empty text.
unsigned int getStringCount(const std::string& list, char delimiter = kListDelimiter);

// ---- property lists ----------------------------------------------------------

// The names of a null-terminated property list as the object manager passes
// it. A null list (meaning "all properties") gives an empty vector, like an
// empty list; callers that must tell the two apart test for null first.
std::vector<std::string> propertyListToNames(const char* const* properties);

// ---- formatting --------------------------------------------------------------

// printf-style formatting into a string of whatever length the text needs.
// The format must be a literal; client text goes in as a "%s" argument.
std::string formatString(const char* format, ...) __attribute__((format(printf, 1, 2)));

}  // namespace vex::cim::fwf::CommonFunctions

#endif
