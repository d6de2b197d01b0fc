#include "MofLexer.h"

#include <cctype>
#include <cstring>

namespace vex::mof {

namespace {

class Lexer {
public:
    Lexer(const std::string& text, const std::string& source) : m_text(text), m_source(source) {}

    std::vector<Token> run() {
        std::vector<Token> tokens;
        while (skipBlanksAndComments()) {
            tokens.push_back(next());
        }
        tokens.push_back(Token{TokenKind::End, "", m_line, m_pos});
        return tokens;
    }

private:
    [[noreturn]] void fail(const std::string& what) const {
        throw MofError(m_source + ":" + std::to_string(m_line) + ": " + what);
    }

    char peek(std::size_t ahead = 0) const {
        return m_pos + ahead < m_text.size() ? m_text[m_pos + ahead] : '\0';
    }

    void advance() {
        if (m_text[m_pos] == '\n') {
            ++m_line;
        }
        ++m_pos;
    }

    // False at the end of the text.
    bool skipBlanksAndComments() {
        while (m_pos < m_text.size()) {
            if (std::isspace(static_cast<unsigned char>(peek()))) {
                advance();
            } else if (peek() == '/' && peek(1) == '/') {
                while (m_pos < m_text.size() && peek() != '\n') advance();
            } else if (peek() == '/' && peek(1) == '*') {
                skipBlockComment();
            } else {
                return true;
            }
        }
        return false;
    }

    void skipBlockComment() {
        const int start = m_line;
        advance();
        advance();
        while (!(peek() == '*' && peek(1) == '/')) {
            if (m_pos >= m_text.size()) {
                m_line = start;
                fail("unterminated comment");
            }
            advance();
        }
        advance();
        advance();
    }

    Token next() {
        Token token{TokenKind::Punct, "", m_line, m_pos};
        const char c = peek();
        if (std::isalpha(static_cast<unsigned char>(c)) || c == '_') {
            token.kind = TokenKind::Identifier;
            while (std::isalnum(static_cast<unsigned char>(peek())) || peek() == '_') {
                token.text += peek();
                advance();
            }
        } else if (c == '"') {
            token.kind = TokenKind::String;
            token.text = stringLiteral();
        } else if (std::isdigit(static_cast<unsigned char>(c)) || ((c == '-' || c == '+') && std::isdigit(static_cast<unsigned char>(peek(1))))) {
            token.kind = TokenKind::Number;
            do {
                token.text += peek();
                advance();
            } while (std::isalnum(static_cast<unsigned char>(peek())) || peek() == '.');
        } else if (std::strchr("[](){},;:=#", c) != nullptr && c != '\0') {
            token.text = std::string(1, c);
            advance();
        } else {
            fail(std::string("unexpected character '") + c + "'");
        }
        return token;
    }

    std::string stringLiteral() {
        std::string out;
        advance();  // opening quote
        while (peek() != '"') {
            if (m_pos >= m_text.size() || peek() == '\n') {
                fail("unterminated string");
            }
            if (peek() == '\\') {
                advance();
                out += escaped(peek());
            } else {
                out += peek();
            }
            advance();
        }
        advance();  // closing quote
        return out;
    }

    char escaped(char c) const {
        switch (c) {
            case 'n': return '\n';
            case 't': return '\t';
            case 'r': return '\r';
            case '"': return '"';
            case '\'': return '\'';
            case '\\': return '\\';
            default: fail(std::string("unknown escape \\") + c);
        }
    }

    const std::string& m_text;
    const std::string& m_source;
    std::size_t m_pos = 0;
    int m_line = 1;
};

}  // namespace

std::vector<Token> tokenize(const std::string& text, const std::string& source) {
    return Lexer(text, source).run();
}

}  // namespace vex::mof
