#include "MofParser.h"

#include <set>

namespace vex::mof {

namespace {

const std::set<std::string> kIntrinsicTypes = {
    "boolean", "string", "char16", "datetime", "uint8",  "uint16", "uint32",
    "uint64",  "sint8",  "sint16", "sint32",   "sint64", "real32", "real64"};

class Parser {
public:
    Parser(const std::string& text, const std::string& source)
        : m_text(text), m_source(source), m_tokens(tokenize(text, source)) {}

    std::vector<ClassDecl> run() {
        std::vector<ClassDecl> classes;
        while (current().kind != TokenKind::End) {
            if (isPunct("#")) {
                skipPragma();
            } else {
                classes.push_back(classDecl());
            }
        }
        return classes;
    }

private:
    const Token& current() const { return m_tokens[m_index]; }
    bool isPunct(const char* p) const { return current().kind == TokenKind::Punct && current().text == p; }
    bool isWord(const char* w) const { return current().kind == TokenKind::Identifier && sameName(current().text, w); }

    [[noreturn]] void fail(const std::string& what) const {
        const std::string seen = current().kind == TokenKind::End ? "end of text" : "'" + current().text + "'";
        throw MofError(m_source + ":" + std::to_string(current().line) + ": " + what + ", found " + seen);
    }

    const Token& take() {
        const Token& t = m_tokens[m_index];
        if (t.kind != TokenKind::End) {
            ++m_index;
        }
        return t;
    }

    void expect(const char* punct) {
        if (!isPunct(punct)) {
            fail(std::string("expected '") + punct + "'");
        }
        take();
    }

    std::string identifier(const char* what) {
        if (current().kind != TokenKind::Identifier) {
            fail(std::string("expected ") + what);
        }
        return take().text;
    }

    // #pragma name ( "value" )
    void skipPragma() {
        take();
        if (!isWord("pragma")) {
            fail("expected 'pragma'");
        }
        take();
        identifier("pragma name");
        expect("(");
        while (!isPunct(")")) {
            if (current().kind == TokenKind::End) fail("unterminated pragma");
            take();
        }
        take();
    }

    // A literal value: strings next to each other form one.
    std::string literal() {
        if (current().kind == TokenKind::String) {
            std::string text;
            while (current().kind == TokenKind::String) {
                text += take().text;
            }
            return text;
        }
        if (current().kind == TokenKind::Number || current().kind == TokenKind::Identifier) {
            return take().text;
        }
        fail("expected a value");
    }

    std::vector<std::string> literalList() {
        std::vector<std::string> values;
        expect("{");
        if (!isPunct("}")) {
            values.push_back(literal());
            while (isPunct(",")) {
                take();
                values.push_back(literal());
            }
        }
        expect("}");
        return values;
    }

    Qualifier qualifier() {
        Qualifier q{identifier("qualifier name"), {}};
        if (isPunct("(")) {
            take();
            q.values.push_back(literal());
            expect(")");
        } else if (isPunct("{")) {
            q.values = literalList();
        }
        return q;
    }

    std::vector<Qualifier> qualifierList() {
        std::vector<Qualifier> list;
        if (!isPunct("[")) {
            return list;
        }
        take();
        list.push_back(qualifier());
        while (isPunct(",")) {
            take();
            list.push_back(qualifier());
        }
        expect("]");
        return list;
    }

    // An intrinsic type, or "ClassName REF".
    MofType type() {
        MofType t;
        t.name = identifier("a type");
        if (isWord("REF")) {
            take();
            t.isRef = true;
        } else if (kIntrinsicTypes.count(lowerCase(t.name)) == 0) {
            --m_index;
            fail("unknown type");
        } else {
            t.name = lowerCase(t.name);
        }
        return t;
    }

    // "[]" or "[n]" after a name.
    bool arraySuffix() {
        if (!isPunct("[")) {
            return false;
        }
        take();
        if (current().kind == TokenKind::Number) {
            take();
        }
        expect("]");
        return true;
    }

    Parameter parameter() {
        Parameter p;
        p.qualifiers = qualifierList();
        p.type = type();
        p.name = identifier("parameter name");
        p.type.isArray = arraySuffix();
        return p;
    }

    void methodRest(ClassDecl& cls, std::vector<Qualifier> qualifiers, MofType returnType, std::string name) {
        Method m{std::move(name), std::move(returnType), {}, std::move(qualifiers)};
        expect("(");
        if (!isPunct(")")) {
            m.parameters.push_back(parameter());
            while (isPunct(",")) {
                take();
                m.parameters.push_back(parameter());
            }
        }
        expect(")");
        expect(";");
        cls.methods.push_back(std::move(m));
    }

    void defaultValue() {
        take();  // '='
        if (isPunct("{")) {
            literalList();
        } else {
            literal();
        }
    }

    void feature(ClassDecl& cls) {
        std::vector<Qualifier> qualifiers = qualifierList();
        const int line = current().line;
        MofType t = type();
        std::string name = identifier("property or method name");
        if (isPunct("(")) {
            methodRest(cls, std::move(qualifiers), std::move(t), std::move(name));
            return;
        }
        t.isArray = arraySuffix();
        if (isPunct("=")) {
            defaultValue();
        }
        expect(";");
        cls.properties.push_back(Property{std::move(name), std::move(t), std::move(qualifiers), line});
    }

    ClassDecl classDecl() {
        ClassDecl cls;
        const std::size_t start = current().offset;
        cls.qualifiers = qualifierList();
        cls.line = current().line;
        if (!isWord("class")) {
            fail("expected 'class'");
        }
        take();
        cls.name = identifier("class name");
        if (isPunct(":")) {
            take();
            cls.superClass = identifier("superclass name");
        }
        expect("{");
        while (!isPunct("}")) {
            if (current().kind == TokenKind::End) fail("expected '}'");
            feature(cls);
        }
        take();
        const std::size_t end = current().offset + 1;
        expect(";");
        cls.source = m_source;
        cls.text = m_text.substr(start, end - start);
        return cls;
    }

    const std::string& m_text;
    const std::string& m_source;
    std::vector<Token> m_tokens;
    std::size_t m_index = 0;
};

}  // namespace

std::vector<ClassDecl> parseMof(const std::string& text, const std::string& source) {
    return Parser(text, source).run();
}

}  // namespace vex::mof
