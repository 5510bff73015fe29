#include "host/runtime/encodings.h"

#include <cstring>
#include <cstdio>

#include "host/runtime/eight_bit_tables.h"
#include "sdk/encodings.h"

namespace hostsim {

namespace {

const char32_t kAsciiLimit = 0x80;
const char32_t kLatin1Limit = 0x100;
const char32_t kUpperHalfStart = 0x80;
const char32_t kLargestCodePoint = 0x10FFFF;
const char32_t kSurrogateFirst = 0xD800;
const char32_t kLowSurrogateFirst = 0xDC00;
const char32_t kSurrogateLast = 0xDFFF;
const char32_t kSupplementaryStart = 0x10000;
const int kSurrogateShift = 10;
const char32_t kSurrogateMask = 0x3FF;
const char32_t kReplacement = '?';

enum class Family { Unknown, Ascii, Utf8, Utf16, Utf32, EightBit };

struct EncodingInfo {
    uint32_t code;
    const char * name;
    Family family;
    bool bigEndian;          // for UTF-16/32 with a stated order
    bool hostOrder;          // UTF-16/32 without a stated order
    const char32_t * upper;  // 8-bit table, or null for Latin-1 (identity)
};

const EncodingInfo kEncodings[] = {
    {kREALTextEncodingUTF8, "UTF-8", Family::Utf8, false, false, nullptr},
    {kREALTextEncodingASCII, "ASCII", Family::Ascii, false, false, nullptr},
    {kREALTextEncodingUTF16, "UTF-16", Family::Utf16, false, true, nullptr},
    {kREALTextEncodingUTF16BE, "UTF-16BE", Family::Utf16, true, false, nullptr},
    {kREALTextEncodingUTF16LE, "UTF-16LE", Family::Utf16, false, false, nullptr},
    {kREALTextEncodingUTF32, "UTF-32", Family::Utf32, false, true, nullptr},
    {kREALTextEncodingUTF32BE, "UTF-32BE", Family::Utf32, true, false, nullptr},
    {kREALTextEncodingUTF32LE, "UTF-32LE", Family::Utf32, false, false, nullptr},
    {kREALTextEncodingMacRoman, "MacRoman", Family::EightBit, false, false, kMacRomanUpperHalf},
    {kREALTextEncodingLatin1, "ISO Latin-1", Family::EightBit, false, false, nullptr},
    {kREALTextEncodingWindowsLatin1, "Windows Latin-1", Family::EightBit, false, false, kWindowsLatin1UpperHalf},
    {kREALTextEncodingUnknown, "no encoding", Family::Unknown, false, false, nullptr},
};

const EncodingInfo * Find(uint32_t code)
{
    for (const EncodingInfo & e : kEncodings)
        if (e.code == code)
            return &e;
    return nullptr;
}

bool BigEndianUnits(const EncodingInfo & e)
{
    return e.hostOrder ? !HostIsLittleEndian() : e.bigEndian;
}

uint32_t ReadUnit(const unsigned char * p, size_t size, bool bigEndian)
{
    uint32_t v = 0;
    for (size_t i = 0; i < size; ++i) {
        const int kBitsPerByte = 8;
        size_t index = bigEndian ? i : size - 1 - i;
        v = (v << kBitsPerByte) | p[index];
    }
    return v;
}

void WriteUnit(std::string & out, uint32_t v, size_t size, bool bigEndian)
{
    const int kBitsPerByte = 8;
    const uint32_t kByteMask = 0xFF;
    for (size_t i = 0; i < size; ++i) {
        size_t shift = bigEndian ? (size - 1 - i) * kBitsPerByte : i * kBitsPerByte;
        out += static_cast<char>((v >> shift) & kByteMask);
    }
}

// UTF-8 sequences by length: the lead byte's tag under its mask, and the smallest
// code point that may use this length (shorter forms are invalid).
struct Utf8Form {
    unsigned char leadMask;
    unsigned char leadTag;
    char32_t minimum;
};
const Utf8Form kUtf8Forms[] = {
    {0x80, 0x00, 0x0}, {0xE0, 0xC0, 0x80}, {0xF0, 0xE0, 0x800}, {0xF8, 0xF0, 0x10000},
};
const size_t kUtf8MaxLength = sizeof kUtf8Forms / sizeof kUtf8Forms[0];
const unsigned char kContinuationMask = 0xC0;
const unsigned char kContinuationTag = 0x80;
const int kContinuationBits = 6;
const char32_t kContinuationPayload = 0x3F;

bool DecodeUtf8(std::string_view bytes, std::u32string & out)
{
    size_t i = 0;
    while (i < bytes.size()) {
        unsigned char lead = static_cast<unsigned char>(bytes[i]);
        size_t length = 0;
        while (length < kUtf8MaxLength && (lead & kUtf8Forms[length].leadMask) != kUtf8Forms[length].leadTag)
            ++length;
        if (length == kUtf8MaxLength || i + length >= bytes.size() + (length == 0 ? 1 : 0))
            return false;
        char32_t cp = lead & static_cast<unsigned char>(~kUtf8Forms[length].leadMask);
        for (size_t k = 1; k <= length; ++k) {
            unsigned char c = static_cast<unsigned char>(bytes[i + k]);
            if ((c & kContinuationMask) != kContinuationTag)
                return false;
            cp = (cp << kContinuationBits) | (c & kContinuationPayload);
        }
        if (cp < kUtf8Forms[length].minimum || cp > kLargestCodePoint || (cp >= kSurrogateFirst && cp <= kSurrogateLast))
            return false;
        out += cp;
        i += length + 1;
    }
    return true;
}

void EncodeUtf8(char32_t cp, std::string & out)
{
    size_t length = 0;
    while (length + 1 < kUtf8MaxLength && cp >= kUtf8Forms[length + 1].minimum)
        ++length;
    out += static_cast<char>(kUtf8Forms[length].leadTag | (cp >> (kContinuationBits * length)));
    for (size_t k = length; k > 0; --k)
        out += static_cast<char>(kContinuationTag | ((cp >> (kContinuationBits * (k - 1))) & kContinuationPayload));
}

bool DecodeUtf16(std::string_view bytes, bool bigEndian, std::u32string & out)
{
    const size_t kUnit = 2;
    if (bytes.size() % kUnit != 0)
        return false;
    const unsigned char * p = reinterpret_cast<const unsigned char *>(bytes.data());
    for (size_t i = 0; i < bytes.size(); i += kUnit) {
        char32_t u = ReadUnit(p + i, kUnit, bigEndian);
        if (u >= kSurrogateFirst && u < kLowSurrogateFirst) {
            if (i + 2 * kUnit > bytes.size())
                return false;
            char32_t low = ReadUnit(p + i + kUnit, kUnit, bigEndian);
            if (low < kLowSurrogateFirst || low > kSurrogateLast)
                return false;
            out += kSupplementaryStart + (((u - kSurrogateFirst) << kSurrogateShift) | (low - kLowSurrogateFirst));
            i += kUnit;
        } else if (u >= kLowSurrogateFirst && u <= kSurrogateLast) {
            return false;
        } else {
            out += u;
        }
    }
    return true;
}

} // namespace

bool HostIsLittleEndian()
{
    const uint16_t probe = 1;
    unsigned char first;
    std::memcpy(&first, &probe, 1);
    return first == 1;
}

bool IsKnownEncoding(uint32_t encoding)
{
    return Find(encoding) != nullptr;
}

std::string EncodingName(uint32_t encoding)
{
    if (const EncodingInfo * e = Find(encoding))
        return e->name;
    char buffer[32];
    std::snprintf(buffer, sizeof buffer, "encoding 0x%X", encoding);
    return buffer;
}

bool DecodeText(std::string_view bytes, uint32_t encoding, std::u32string & out)
{
    const EncodingInfo * e = Find(encoding);
    if (!e)
        return false;
    switch (e->family) {
    case Family::Utf8:
        return DecodeUtf8(bytes, out);
    case Family::Utf16:
        return DecodeUtf16(bytes, BigEndianUnits(*e), out);
    case Family::Utf32: {
        const size_t kUnit = 4;
        if (bytes.size() % kUnit != 0)
            return false;
        for (size_t i = 0; i < bytes.size(); i += kUnit) {
            char32_t cp = ReadUnit(reinterpret_cast<const unsigned char *>(bytes.data()) + i, kUnit, BigEndianUnits(*e));
            if (cp > kLargestCodePoint || (cp >= kSurrogateFirst && cp <= kSurrogateLast))
                return false;
            out += cp;
        }
        return true;
    }
    case Family::Ascii:
    case Family::Unknown:
        for (char c : bytes) {
            if (static_cast<unsigned char>(c) >= kAsciiLimit)
                return false;
            out += static_cast<char32_t>(c);
        }
        return true;
    case Family::EightBit:
        for (char c : bytes) {
            unsigned char b = static_cast<unsigned char>(c);
            char32_t cp = b < kUpperHalfStart ? b : e->upper ? e->upper[b - kUpperHalfStart] : b;
            if (cp == 0 && b != 0)
                return false;
            out += cp;
        }
        return true;
    }
    return false;
}

bool EncodeText(const std::u32string & text, uint32_t encoding, bool substitute, std::string & out)
{
    const EncodingInfo * e = Find(encoding);
    if (!e)
        return false;
    for (char32_t cp : text) {
        switch (e->family) {
        case Family::Utf8:
            EncodeUtf8(cp, out);
            break;
        case Family::Utf16:
            if (cp >= kSupplementaryStart) {
                char32_t v = cp - kSupplementaryStart;
                WriteUnit(out, kSurrogateFirst + (v >> kSurrogateShift), 2, BigEndianUnits(*e));
                WriteUnit(out, kLowSurrogateFirst + (v & kSurrogateMask), 2, BigEndianUnits(*e));
            } else {
                WriteUnit(out, cp, 2, BigEndianUnits(*e));
            }
            break;
        case Family::Utf32:
            WriteUnit(out, cp, 4, BigEndianUnits(*e));
            break;
        case Family::Ascii:
        case Family::Unknown:
        case Family::EightBit: {
            int byte = -1;
            if (cp < kAsciiLimit) {
                byte = static_cast<int>(cp);
            } else if (e->family == Family::EightBit) {
                for (char32_t b = 0; b < kUpperHalfStart; ++b) {
                    char32_t mapped = e->upper ? e->upper[b] : b + kUpperHalfStart;
                    if (mapped == cp && (e->upper || cp < kLatin1Limit)) {
                        byte = static_cast<int>(b + kUpperHalfStart);
                        break;
                    }
                }
            }
            if (byte < 0) {
                if (!substitute)
                    return false;
                byte = kReplacement;
            }
            out += static_cast<char>(byte);
            break;
        }
        }
    }
    return true;
}

bool ConvertText(std::string_view bytes, uint32_t from, uint32_t to, bool substitute, std::string & out)
{
    if (from == to && IsKnownEncoding(from)) {
        out.assign(bytes);
        return true;
    }
    std::u32string text;
    return DecodeText(bytes, from, text) && EncodeText(text, to, substitute, out);
}

} // namespace hostsim
