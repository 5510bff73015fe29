#include "host/runtime/formatting.h"

#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <string>

namespace hostsim {

namespace {

const int kSignificantDigits = 7;
const int64_t kCurrencyScale = 10000;
const int kCurrencyDecimals = 4;

// The text from the first non-blank character, as a NUL-terminated copy.
std::string Trimmed(std::string_view text)
{
    size_t i = 0;
    while (i < text.size() && (text[i] == ' ' || text[i] == '\t'))
        ++i;
    return std::string(text.substr(i));
}

bool IsHex(const std::string & t)
{
    return t.size() > 2 && t[0] == '&' && (t[1] == 'h' || t[1] == 'H');
}

} // namespace

std::string FormatReal(double v)
{
    if (std::isnan(v))
        return "NAN";
    if (std::isinf(v))
        return v < 0 ? "-INF" : "INF";
    char buffer[64];
    std::snprintf(buffer, sizeof buffer, "%.*g", kSignificantDigits, v);
    std::string s = buffer;
    size_t e = s.find('e');
    if (e == std::string::npos)
        return s;
    // "1.234568e+07" -> "1.234568e+7"
    std::string mantissa = s.substr(0, e);
    char sign = s[e + 1];
    std::string digits = s.substr(e + 2);
    while (digits.size() > 1 && digits[0] == '0')
        digits.erase(0, 1);
    return mantissa + "e" + sign + digits;
}

std::string FormatCurrency(int64_t scaled)
{
    bool negative = scaled < 0;
    uint64_t magnitude = negative ? 0 - static_cast<uint64_t>(scaled) : static_cast<uint64_t>(scaled);
    uint64_t whole = magnitude / kCurrencyScale;
    uint64_t fraction = magnitude % kCurrencyScale;
    std::string s = (negative ? "-" : "") + std::to_string(whole);
    if (fraction) {
        char buffer[16];
        std::snprintf(buffer, sizeof buffer, "%0*llu", kCurrencyDecimals, static_cast<unsigned long long>(fraction));
        std::string f = buffer;
        while (f.back() == '0')
            f.pop_back();
        s += "." + f;
    }
    return s;
}

double ParseReal(std::string_view text)
{
    std::string t = Trimmed(text);
    if (IsHex(t))
        return static_cast<double>(static_cast<int64_t>(std::strtoull(t.c_str() + 2, nullptr, 16)));
    return std::strtod(t.c_str(), nullptr);
}

int64_t ParseInteger(std::string_view text)
{
    std::string t = Trimmed(text);
    if (IsHex(t))
        return static_cast<int64_t>(std::strtoull(t.c_str() + 2, nullptr, 16));
    char * end = nullptr;
    long long v = std::strtoll(t.c_str(), &end, 10);
    if (end && (*end == '.' || *end == 'e' || *end == 'E'))
        return static_cast<int64_t>(std::trunc(std::strtod(t.c_str(), nullptr)));
    return v;
}

uint64_t ParseUnsigned(std::string_view text)
{
    std::string t = Trimmed(text);
    if (IsHex(t))
        return std::strtoull(t.c_str() + 2, nullptr, 16);
    if (!t.empty() && t[0] == '-')
        return static_cast<uint64_t>(ParseInteger(t));
    return std::strtoull(t.c_str(), nullptr, 10);
}

} // namespace hostsim
