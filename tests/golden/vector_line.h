// Reading and writing the lines of the golden-vector files:
//   op <TAB> input ... <TAB> -> <TAB> output ...
// Values are N:<info>:<exponent words>:<mantissa words> in hex, most significant first.
#ifndef GOLDEN_VECTOR_LINE_H
#define GOLDEN_VECTOR_LINE_H

#include <cstdint>
#include <cstdio>
#include <cstring>
#include <stdexcept>
#include <string>
#include <vector>

#include <ttmath/ttmath.h>

namespace golden {

struct Line {
    std::string op;
    std::vector<std::string> inputs;
    std::vector<std::string> outputs; // without the ref: and fix: fields
    std::string ref;                  // the ref: field without its prefix, or empty
    bool far_exponents_fix = false;
};

// Splits a line; returns false for comments and blank lines.
bool ParseLine(const std::string & text, Line & line);

// Token payloads; each throws std::runtime_error on a malformed token.
std::string Payload(const std::string & token, const char * prefix);
std::int64_t ParseSigned(const std::string & token);     // i:
std::uint64_t ParseUnsigned(const std::string & token);  // u:
double ParseDouble(const std::string & token);           // d:
bool ParseBool(const std::string & token);               // b:
std::string ParseJsonString(const std::string & token);  // s:
void ParseWords(const std::string & hex, ttmath::uint * words, std::size_t count);

std::string FormatWords(const ttmath::uint * words, std::size_t count);
std::string FormatCode(const char * prefix, std::uint64_t code); // c:, e:
std::string FormatSigned(std::int64_t v);
std::string FormatUnsigned(std::uint64_t v);
std::string FormatDouble(double v);
std::string FormatBool(bool v);
std::string FormatJsonString(const std::string & s);

template<class Big>
Big ParseValue(const std::string & token)
{
    std::string body = Payload(token, "N:");
    std::size_t c1 = body.find(':'), c2 = body.find(':', c1 + 1);
    if (c1 != 2 || c2 == std::string::npos)
        throw std::runtime_error("malformed value: " + token);
    Big x;
    x.info = static_cast<unsigned char>(std::stoul(body.substr(0, 2), nullptr, 16));
    ParseWords(body.substr(c1 + 1, c2 - c1 - 1), x.exponent.table, x.exponent.Size());
    ParseWords(body.substr(c2 + 1), x.mantissa.table, x.mantissa.Size());
    return x;
}

template<class Big>
std::string FormatValue(const Big & x)
{
    char info[8];
    std::snprintf(info, sizeof info, "%02x", static_cast<unsigned>(x.info));
    return std::string("N:") + info + ":" + FormatWords(x.exponent.table, x.exponent.Size()) + ":" +
           FormatWords(x.mantissa.table, x.mantissa.Size());
}

} // namespace golden

#endif
