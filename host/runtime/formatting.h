// Text of values as the host's Str function writes them, and numbers read back from
// text as Val does.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace hostsim {

// Up to seven significant digits; exponent form "1.234568e+7" for large and small numbers.
std::string FormatReal(double v);
// Up to four decimals, no trailing zeros: 15000 ten-thousandths is "1.5".
std::string FormatCurrency(int64_t scaled);
// The numeric prefix of `text` (leading blanks skipped; "12abc" is 12, "abc" is 0),
// including &h hexadecimal.
double ParseReal(std::string_view text);
// As ParseReal, but whole numbers keep all 64 bits.
int64_t ParseInteger(std::string_view text);
uint64_t ParseUnsigned(std::string_view text);

} // namespace hostsim
