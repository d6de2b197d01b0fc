// Tokens of a MOF text: identifiers, string and number literals and the
// punctuation of class declarations. Comments and white space are skipped.
#ifndef VEX_MOF_MOFLEXER_H
#define VEX_MOF_MOFLEXER_H

#include <cstddef>
#include <stdexcept>
#include <string>
#include <vector>

namespace vex::mof {

// A syntax error, "file:line: what".
class MofError : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

enum class TokenKind { Identifier, String, Number, Punct, End };

struct Token {
    TokenKind kind = TokenKind::End;
    std::string text;  // a string's text without quotes and with escapes resolved
    int line = 0;
    std::size_t offset = 0;  // where the token starts in the source
};

// The tokens of text, ending with an End token; throws MofError on an
// unterminated string or comment or a character MOF does not use.
std::vector<Token> tokenize(const std::string& text, const std::string& source);

}  // namespace vex::mof

#endif
