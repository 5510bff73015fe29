#include "host/lang/lexer.h"

#include <cctype>
#include <cerrno>
#include <cstdlib>

namespace hostsim {

std::string SourceError::Describe() const
{
    return "line " + std::to_string(where_.line) + ", column " + std::to_string(where_.column) +
           ": " + what();
}

bool EqualsIgnoringCase(std::string_view a, std::string_view b)
{
    if (a.size() != b.size())
        return false;
    for (size_t i = 0; i < a.size(); ++i)
        if (std::tolower(static_cast<unsigned char>(a[i])) != std::tolower(static_cast<unsigned char>(b[i])))
            return false;
    return true;
}

std::string LowerCase(std::string_view text)
{
    std::string out(text);
    for (char & c : out)
        c = static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
    return out;
}

bool Token::Is(TokenKind k, std::string_view t) const
{
    return kind == k && text == t;
}

bool Token::IsWord(std::string_view word) const
{
    return kind == TokenKind::Identifier && EqualsIgnoringCase(text, word);
}

namespace {

const int kHexBase = 16;
const int kDecimalBase = 10;

class Lexer {
public:
    explicit Lexer(std::string_view text) : text_(text) {}

    std::vector<Token> Run()
    {
        while (pos_ < text_.size()) {
            char c = text_[pos_];
            if (c == '\n') {
                Emit(TokenKind::EndOfLine, "\n");
                Advance();
            } else if (c == ' ' || c == '\t' || c == '\r') {
                Advance();
            } else if (c == '\'' || (c == '/' && Peek(1) == '/')) {
                SkipToLineEnd();
            } else if (std::isalpha(static_cast<unsigned char>(c)) || c == '_') {
                Word();
            } else if (std::isdigit(static_cast<unsigned char>(c)) ||
                       (c == '.' && std::isdigit(static_cast<unsigned char>(Peek(1))))) {
                Number();
            } else if (c == '&' && (Peek(1) == 'h' || Peek(1) == 'H' || Peek(1) == 'c' || Peek(1) == 'C')) {
                Hex();
            } else if (c == '"') {
                Quoted();
            } else {
                Symbol();
            }
        }
        start_ = Here();
        Emit(TokenKind::EndOfText, "");
        return std::move(tokens_);
    }

private:
    char Peek(size_t ahead) const { return pos_ + ahead < text_.size() ? text_[pos_ + ahead] : '\0'; }

    SourcePosition Here() const { return {line_, column_}; }

    void Advance()
    {
        if (text_[pos_] == '\n') {
            ++line_;
            column_ = 1;
        } else {
            ++column_;
        }
        ++pos_;
    }

    void Emit(TokenKind kind, std::string text)
    {
        Token t;
        t.kind = kind;
        t.text = std::move(text);
        t.where = kind == TokenKind::EndOfLine ? Here() : start_;
        tokens_.push_back(std::move(t));
    }

    void SkipToLineEnd()
    {
        while (pos_ < text_.size() && text_[pos_] != '\n')
            Advance();
    }

    bool AtLineStart() const
    {
        return tokens_.empty() || tokens_.back().kind == TokenKind::EndOfLine;
    }

    void Word()
    {
        start_ = Here();
        size_t begin = pos_;
        while (pos_ < text_.size() && (std::isalnum(static_cast<unsigned char>(text_[pos_])) || text_[pos_] == '_'))
            Advance();
        std::string word(text_.substr(begin, pos_ - begin));
        if (word == "_" && RestOfLineIsBlank()) {
            // A continuation: the line break that follows does not end the statement.
            SkipToLineEnd();
            if (pos_ < text_.size())
                Advance();
            return;
        }
        if (AtLineStart() && EqualsIgnoringCase(word, "rem")) {
            SkipToLineEnd();
            return;
        }
        Emit(TokenKind::Identifier, word);
    }

    bool RestOfLineIsBlank() const
    {
        for (size_t i = pos_; i < text_.size() && text_[i] != '\n'; ++i) {
            char c = text_[i];
            if (c == '\'' || (c == '/' && i + 1 < text_.size() && text_[i + 1] == '/'))
                return true;
            if (c != ' ' && c != '\t' && c != '\r')
                return false;
        }
        return true;
    }

    void Number()
    {
        start_ = Here();
        size_t begin = pos_;
        bool real = false;
        while (std::isdigit(static_cast<unsigned char>(Peek(0))))
            Advance();
        if (Peek(0) == '.' && std::isdigit(static_cast<unsigned char>(Peek(1)))) {
            real = true;
            Advance();
            while (std::isdigit(static_cast<unsigned char>(Peek(0))))
                Advance();
        }
        if ((Peek(0) == 'e' || Peek(0) == 'E') &&
            (std::isdigit(static_cast<unsigned char>(Peek(1))) ||
             ((Peek(1) == '+' || Peek(1) == '-') && std::isdigit(static_cast<unsigned char>(Peek(2)))))) {
            real = true;
            Advance();
            Advance();
            while (std::isdigit(static_cast<unsigned char>(Peek(0))))
                Advance();
        }
        std::string digits(text_.substr(begin, pos_ - begin));
        if (real) {
            Emit(TokenKind::Real, digits);
            tokens_.back().real = std::strtod(digits.c_str(), nullptr);
            return;
        }
        EmitInteger(digits, kDecimalBase);
    }

    void Hex()
    {
        start_ = Here();
        Advance();
        bool color = Peek(0) == 'c' || Peek(0) == 'C';
        Advance();
        size_t begin = pos_;
        while (std::isxdigit(static_cast<unsigned char>(Peek(0))))
            Advance();
        if (pos_ == begin)
            throw SourceError(start_, std::string(color ? "&c" : "&h") + " must be followed by hexadecimal digits");
        EmitInteger(std::string(text_.substr(begin, pos_ - begin)), kHexBase);
        tokens_.back().isColor = color;
    }

    void EmitInteger(const std::string & digits, int base)
    {
        errno = 0;
        unsigned long long value = std::strtoull(digits.c_str(), nullptr, base);
        if (errno == ERANGE)
            throw SourceError(start_, "the number " + digits + " does not fit in 64 bits");
        Emit(TokenKind::Integer, digits);
        tokens_.back().integer = value;
        // Decimal literals above the largest Int64 need UInt64; hex literals keep
        // their bit pattern as Int64, as the host reads &hFFFFFFFFFFFFFFFF as -1.
        tokens_.back().isUnsigned = base == kDecimalBase && value > static_cast<uint64_t>(INT64_MAX);
    }

    void Quoted()
    {
        start_ = Here();
        Advance();
        std::string content;
        for (;;) {
            if (pos_ >= text_.size() || text_[pos_] == '\n')
                throw SourceError(start_, "the string is not closed with a quote");
            if (text_[pos_] == '"') {
                if (Peek(1) == '"') {
                    content += '"';
                    Advance();
                    Advance();
                    continue;
                }
                Advance();
                break;
            }
            content += text_[pos_];
            Advance();
        }
        Emit(TokenKind::String, content);
    }

    void Symbol()
    {
        start_ = Here();
        static const char * const kTwoCharacter[] = {"<>", "<=", ">="};
        for (const char * s : kTwoCharacter) {
            if (text_[pos_] == s[0] && Peek(1) == s[1]) {
                Advance();
                Advance();
                Emit(TokenKind::Symbol, s);
                return;
            }
        }
        static const std::string_view kOneCharacter = "(),.=<>+-*/\\^";
        char c = text_[pos_];
        if (kOneCharacter.find(c) == std::string_view::npos) {
            std::string shown = std::isprint(static_cast<unsigned char>(c)) ? std::string(1, c) : "byte " + std::to_string(static_cast<unsigned char>(c));
            throw SourceError(start_, "unexpected character " + shown);
        }
        Advance();
        Emit(TokenKind::Symbol, std::string(1, c));
    }

    std::string_view text_;
    size_t pos_ = 0;
    int line_ = 1;
    int column_ = 1;
    SourcePosition start_;
    std::vector<Token> tokens_;
};

} // namespace

std::vector<Token> Tokenize(std::string_view text)
{
    return Lexer(text).Run();
}

} // namespace hostsim
