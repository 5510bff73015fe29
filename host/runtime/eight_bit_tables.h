// Upper halves (bytes 0x80 to 0xFF) of the 8-bit encodings; 0 marks an unused byte.
#pragma once

namespace hostsim {

extern const char32_t kMacRomanUpperHalf[128];
extern const char32_t kWindowsLatin1UpperHalf[128];

} // namespace hostsim
