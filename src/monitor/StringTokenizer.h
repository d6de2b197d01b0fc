// StringTokenizer: splits a text into the tokens between delimiter characters.
// Runs of delimiters count as one: empty tokens are never returned.
#ifndef VEX_MONITOR_STRINGTOKENIZER_H
#define VEX_MONITOR_STRINGTOKENIZER_H

#include <string>

namespace vex::monitor {

class StringTokenizer {
public:
    StringTokenizer(std::string text, std::string delimiters);

    // Tokens still to come.
    int countTokens() const;
    bool hasMoreTokens() const;
    // The next token; "" when there is none.
    std::string nextToken();

private:
    std::string::size_type skipDelimiters(std::string::size_type from) const;

    std::string m_text;
    std::string m_delimiters;
    std::string::size_type m_position = 0;
};

}  // namespace vex::monitor

#endif
