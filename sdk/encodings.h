// Text-encoding codes of host strings (the classic Mac OS text-encoding values).
#pragma once

#include <cstdint>

enum : uint32_t {
    kREALTextEncodingMacRoman = 0x0000,
    kREALTextEncodingUTF16 = 0x0100,   // no byte order given: host order
    kREALTextEncodingLatin1 = 0x0201,  // ISO 8859-1
    kREALTextEncodingWindowsLatin1 = 0x0500, // code page 1252
    kREALTextEncodingASCII = 0x0600,
    kREALTextEncodingUTF8 = 0x08000100,
    kREALTextEncodingUTF32 = 0x0C000100,
    kREALTextEncodingUTF16BE = 0x10000100,
    kREALTextEncodingUTF16LE = 0x14000100,
    kREALTextEncodingUTF32BE = 0x18000100,
    kREALTextEncodingUTF32LE = 0x1C000100,
    kREALTextEncodingUnknown = 0xFFFF,
};
