#include "vector_line.h"

#include <cinttypes>

namespace golden {

namespace {

std::vector<std::string> SplitTabs(const std::string & text)
{
    std::vector<std::string> fields;
    std::size_t start = 0;
    for (;;) {
        std::size_t tab = text.find('\t', start);
        fields.push_back(text.substr(start, tab == std::string::npos ? std::string::npos : tab - start));
        if (tab == std::string::npos)
            return fields;
        start = tab + 1;
    }
}

int HexDigit(char c)
{
    if (c >= '0' && c <= '9')
        return c - '0';
    if (c >= 'a' && c <= 'f')
        return c - 'a' + 10;
    if (c >= 'A' && c <= 'F')
        return c - 'A' + 10;
    return -1;
}

} // namespace

bool ParseLine(const std::string & raw, Line & line)
{
    std::string text = raw;
    if (!text.empty() && text.back() == '\r')
        text.pop_back();
    if (text.empty() || text[0] == '#')
        return false;
    std::vector<std::string> fields = SplitTabs(text);
    line = Line();
    line.op = fields[0];
    std::size_t i = 1;
    for (; i < fields.size() && fields[i] != "->"; ++i)
        line.inputs.push_back(fields[i]);
    if (i == fields.size())
        throw std::runtime_error("line without '->'");
    for (++i; i < fields.size(); ++i) {
        const std::string & f = fields[i];
        if (f.compare(0, 4, "ref:") == 0)
            line.ref = f.substr(4);
        else if (f == "fix:far-exponents")
            line.far_exponents_fix = true;
        else
            line.outputs.push_back(f);
    }
    return true;
}

std::string Payload(const std::string & token, const char * prefix)
{
    std::size_t n = std::strlen(prefix);
    if (token.compare(0, n, prefix) != 0)
        throw std::runtime_error(std::string("expected a ") + prefix + " token, got " + token);
    return token.substr(n);
}

std::int64_t ParseSigned(const std::string & token)
{
    return std::stoll(Payload(token, "i:"));
}

std::uint64_t ParseUnsigned(const std::string & token)
{
    return std::stoull(Payload(token, "u:"));
}

double ParseDouble(const std::string & token)
{
    std::uint64_t bits = std::stoull(Payload(token, "d:"), nullptr, 16);
    double d;
    std::memcpy(&d, &bits, sizeof d);
    return d;
}

bool ParseBool(const std::string & token)
{
    std::string p = Payload(token, "b:");
    if (p != "0" && p != "1")
        throw std::runtime_error("malformed boolean: " + token);
    return p == "1";
}

std::string ParseJsonString(const std::string & token)
{
    std::string p = Payload(token, "s:");
    if (p.size() < 2 || p.front() != '"' || p.back() != '"')
        throw std::runtime_error("malformed string: " + token);
    std::string out;
    for (std::size_t i = 1; i + 1 < p.size(); ++i) {
        char c = p[i];
        if (c != '\\') {
            out += c;
            continue;
        }
        char e = p[++i];
        switch (e) {
        case 'n': out += '\n'; break;
        case 't': out += '\t'; break;
        case 'r': out += '\r'; break;
        case 'b': out += '\b'; break;
        case 'f': out += '\f'; break;
        case '"': out += '"'; break;
        case '\\': out += '\\'; break;
        case '/': out += '/'; break;
        case 'u': {
            if (i + 4 >= p.size())
                throw std::runtime_error("malformed escape: " + token);
            int v = 0;
            for (int k = 1; k <= 4; ++k) {
                int h = HexDigit(p[i + k]);
                if (h < 0)
                    throw std::runtime_error("malformed escape: " + token);
                v = v * 16 + h;
            }
            if (v > 0xff)
                throw std::runtime_error("escape beyond one byte: " + token);
            out += static_cast<char>(v);
            i += 4;
            break;
        }
        default:
            throw std::runtime_error("malformed escape: " + token);
        }
    }
    return out;
}

void ParseWords(const std::string & hex, ttmath::uint * words, std::size_t count)
{
    if (hex.size() != count * 16)
        throw std::runtime_error("expected " + std::to_string(count) + " words, got " + hex);
    for (std::size_t w = 0; w < count; ++w) {
        ttmath::uint v = 0;
        for (std::size_t k = 0; k < 16; ++k) {
            int h = HexDigit(hex[w * 16 + k]);
            if (h < 0)
                throw std::runtime_error("bad hex digit in " + hex);
            v = (v << 4) | static_cast<ttmath::uint>(h);
        }
        words[count - 1 - w] = v;
    }
}

std::string FormatWords(const ttmath::uint * words, std::size_t count)
{
    std::string out;
    char buf[24];
    for (std::size_t w = count; w-- > 0;) {
        std::snprintf(buf, sizeof buf, "%016" PRIx64, static_cast<std::uint64_t>(words[w]));
        out += buf;
    }
    return out;
}

std::string FormatCode(const char * prefix, std::uint64_t code)
{
    return prefix + std::to_string(code);
}

std::string FormatSigned(std::int64_t v)
{
    return "i:" + std::to_string(v);
}

std::string FormatUnsigned(std::uint64_t v)
{
    return "u:" + std::to_string(v);
}

std::string FormatDouble(double v)
{
    std::uint64_t bits;
    std::memcpy(&bits, &v, sizeof bits);
    char buf[24];
    std::snprintf(buf, sizeof buf, "d:%016" PRIx64, bits);
    return buf;
}

std::string FormatBool(bool v)
{
    return v ? "b:1" : "b:0";
}

std::string FormatJsonString(const std::string & s)
{
    std::string out = "s:\"";
    char buf[8];
    for (unsigned char c : s) {
        switch (c) {
        case '\n': out += "\\n"; break;
        case '\t': out += "\\t"; break;
        case '\r': out += "\\r"; break;
        case '\b': out += "\\b"; break;
        case '\f': out += "\\f"; break;
        case '"': out += "\\\""; break;
        case '\\': out += "\\\\"; break;
        default:
            if (c < 0x20 || c >= 0x7f) {
                std::snprintf(buf, sizeof buf, "\\u%04x", c);
                out += buf;
            } else {
                out += static_cast<char>(c);
            }
        }
    }
    return out + "\"";
}

} // namespace golden
