// Splits host-language text into tokens. Keywords come out as identifiers; the parsers
// compare them without regard to letter case, as the host language does.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "host/lang/source_error.h"

namespace hostsim {

enum class TokenKind {
    Identifier,
    Integer,   // `integer` holds the value; `isUnsigned` when it needs 64 unsigned bits, `isColor` for &c
    Real,
    String,    // `text` holds the content with "" turned into "
    Symbol,    // `text` holds one of ( ) , . = <> < > <= >= + - * / \ ^
    EndOfLine,
    EndOfText,
};

struct Token {
    TokenKind kind = TokenKind::EndOfText;
    std::string text;
    uint64_t integer = 0;
    bool isUnsigned = false;
    bool isColor = false;   // written &cRRGGBB
    double real = 0;
    SourcePosition where;

    bool Is(TokenKind k, std::string_view t) const;
    // An identifier equal to `word` ignoring letter case.
    bool IsWord(std::string_view word) const;
    bool IsSymbol(std::string_view symbol) const { return Is(TokenKind::Symbol, symbol); }
};

// Throws SourceError on a character or literal it cannot read.
std::vector<Token> Tokenize(std::string_view text);

bool EqualsIgnoringCase(std::string_view a, std::string_view b);
std::string LowerCase(std::string_view text);

} // namespace hostsim
