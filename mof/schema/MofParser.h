// Reads the class declarations of a MOF text: the subset the provider's own
// MOF files use (pragmas, qualifier lists, classes with properties,
// references and methods). Instances and qualifier declarations are not
// part of it.
#ifndef VEX_MOF_MOFPARSER_H
#define VEX_MOF_MOFPARSER_H

#include <string>
#include <vector>

#include "MofLexer.h"
#include "MofModel.h"

namespace vex::mof {

// The classes of text in declaration order; throws MofError ("file:line:
// what") on anything outside the subset.
std::vector<ClassDecl> parseMof(const std::string& text, const std::string& source);

}  // namespace vex::mof

#endif
