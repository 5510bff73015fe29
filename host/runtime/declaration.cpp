#include "host/runtime/declaration.h"

#include "host/lang/lexer.h"

namespace hostsim {

size_t Signature::RequiredCount() const
{
    size_t n = 0;
    for (const Parameter & p : parameters)
        if (!p.defaultValue)
            ++n;
    return n;
}

bool Signature::SameShape(const Signature & other) const
{
    if (!EqualsIgnoringCase(name, other.name) || parameters.size() != other.parameters.size() ||
        result.has_value() != other.result.has_value() || (result && *result != *other.result))
        return false;
    for (size_t i = 0; i < parameters.size(); ++i) {
        const Parameter & a = parameters[i];
        const Parameter & b = other.parameters[i];
        if (a.type != b.type || a.byRef != b.byRef || a.assigns != b.assigns)
            return false;
    }
    return true;
}

namespace {

class DeclarationParser {
public:
    explicit DeclarationParser(std::string_view text) : tokens_(Tokenize(text)) {}

    Signature Run()
    {
        Signature sig;
        sig.name = ExpectIdentifier("a method name");
        if (Current().IsSymbol("(")) {
            Next();
            if (!Current().IsSymbol(")")) {
                for (;;) {
                    sig.parameters.push_back(ParseParameter());
                    if (!Current().IsSymbol(","))
                        break;
                    Next();
                }
            }
            Expect(")");
        }
        if (Current().IsWord("as")) {
            Next();
            sig.result = ParseType();
        }
        if (Current().kind != TokenKind::EndOfText)
            Fail("unexpected '" + Current().text + "' after the declaration");
        for (size_t i = 0; i + 1 < sig.parameters.size(); ++i)
            if (sig.parameters[i].assigns)
                throw SourceError(Current().where, "only the last parameter may be Assigns");
        return sig;
    }

private:
    const Token & Current() const { return tokens_[pos_]; }
    void Next()
    {
        if (tokens_[pos_].kind != TokenKind::EndOfText)
            ++pos_;
    }
    [[noreturn]] void Fail(const std::string & message) const { throw SourceError(Current().where, message); }

    void Expect(std::string_view symbol)
    {
        if (!Current().IsSymbol(symbol))
            Fail("expected '" + std::string(symbol) + "'");
        Next();
    }

    std::string ExpectIdentifier(const char * what)
    {
        if (Current().kind != TokenKind::Identifier)
            Fail(std::string("expected ") + what);
        std::string s = Current().text;
        Next();
        return s;
    }

    TypeRef ParseType()
    {
        std::string name = ExpectIdentifier("a type name");
        TypeRef type;
        ParseTypeName(name, type);
        if (!InfoOf(type.kind).inDeclarations)
            Fail("the type " + name + " cannot be used in a declaration");
        if (Current().IsSymbol("("))
            Fail("array types are not supported");
        return type;
    }

    Parameter ParseParameter()
    {
        Parameter p;
        for (;;) {
            if (Current().IsWord("byref")) {
                p.byRef = true;
            } else if (Current().IsWord("byval")) {
                p.byRef = false;
            } else if (Current().IsWord("assigns")) {
                p.assigns = true;
            } else if (Current().IsWord("extends")) {
                p.extends = true;
            } else if (Current().IsWord("optional")) {
                // Optional without a default: the host's default value of the type.
            } else if (Current().IsWord("paramarray")) {
                Fail("ParamArray parameters are not supported");
            } else {
                break;
            }
            Next();
        }
        p.name = ExpectIdentifier("a parameter name");
        if (Current().IsSymbol("("))
            Fail("array parameters are not supported");
        if (!Current().IsWord("as"))
            Fail("expected As and a type after parameter " + p.name);
        Next();
        p.type = ParseType();
        if (Current().IsSymbol("=")) {
            Next();
            p.defaultValue = ParseLiteral();
        }
        return p;
    }

    Literal ParseLiteral()
    {
        Literal lit;
        bool negative = false;
        if (Current().IsSymbol("-")) {
            negative = true;
            Next();
        }
        const Token & t = Current();
        if (t.kind == TokenKind::Integer && t.isColor && !negative) {
            lit.kind = Literal::Kind::Color;
            lit.unsignedInteger = t.integer;
        } else if (t.kind == TokenKind::Integer && !t.isUnsigned) {
            lit.kind = Literal::Kind::Integer;
            lit.integer = static_cast<int64_t>(negative ? 0 - t.integer : t.integer);
        } else if (t.kind == TokenKind::Integer && !negative) {
            lit.kind = Literal::Kind::UnsignedInteger;
            lit.unsignedInteger = t.integer;
        } else if (t.kind == TokenKind::Real) {
            lit.kind = Literal::Kind::Real;
            lit.real = negative ? -t.real : t.real;
        } else if (negative) {
            Fail("expected a number after '-'");
        } else if (t.kind == TokenKind::String) {
            lit.kind = Literal::Kind::String;
            lit.text = t.text;
        } else if (t.IsWord("true") || t.IsWord("false")) {
            lit.kind = Literal::Kind::Boolean;
            lit.integer = t.IsWord("true") ? 1 : 0;
        } else if (t.IsWord("nil")) {
            lit.kind = Literal::Kind::Nil;
        } else {
            Fail("expected a constant as the default value");
        }
        Next();
        return lit;
    }

    std::vector<Token> tokens_;
    size_t pos_ = 0;
};

} // namespace

Signature ParseDeclaration(std::string_view text)
{
    return DeclarationParser(text).Run();
}

} // namespace hostsim
