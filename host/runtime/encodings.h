// Conversion of string bytes between the host's text encodings: UTF-8, ASCII, UTF-16
// and UTF-32 (host order, big- and little-endian) and the 8-bit Mac Roman, ISO Latin-1
// and Windows Latin-1. Bytes tagged "unknown" convert only when they are plain ASCII.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace hostsim {

bool IsKnownEncoding(uint32_t encoding);
std::string EncodingName(uint32_t encoding);

// Decodes `bytes` into code points; false when they are not valid in `encoding`.
bool DecodeText(std::string_view bytes, uint32_t encoding, std::u32string & out);
// Encodes code points; a character the target cannot hold makes it fail, or, with
// `substitute`, becomes '?'.
bool EncodeText(const std::u32string & text, uint32_t encoding, bool substitute, std::string & out);
bool ConvertText(std::string_view bytes, uint32_t from, uint32_t to, bool substitute, std::string & out);

// Code units of 16 or 32 bits in the host's own byte order.
bool HostIsLittleEndian();

} // namespace hostsim
