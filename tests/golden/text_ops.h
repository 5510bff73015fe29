// Handlers for text conversion: tostring (value and record to code and text) and
// fromstring (text and record to code, value, stop offset and whether a digit was read),
// compared field for field. The vectors' records have one group separator for both
// parts of a number; it is given to group and group2 alike.
#ifndef GOLDEN_TEXT_OPS_H
#define GOLDEN_TEXT_OPS_H

#include <map>
#include <string>

#include "outcome.h"
#include "vector_line.h"

namespace golden {

// conv:base=..,scient=..,... with every field of the record, each exactly once.
inline ttmath::Conv ParseConv(const std::string & token)
{
    typedef std::map<std::string, std::string> Fields;
    Fields fields;
    std::string body = Payload(token, "conv:");
    std::size_t start = 0;
    while (start <= body.size()) {
        std::size_t comma = body.find(',', start);
        std::string item = body.substr(start, comma == std::string::npos ? std::string::npos : comma - start);
        std::size_t eq = item.find('=');
        if (eq == std::string::npos || !fields.emplace(item.substr(0, eq), item.substr(eq + 1)).second)
            throw std::runtime_error("malformed record: " + token);
        if (comma == std::string::npos)
            break;
        start = comma + 1;
    }
    auto take = [&](const char * name) {
        Fields::iterator it = fields.find(name);
        if (it == fields.end())
            throw std::runtime_error(std::string("record without ") + name + ": " + token);
        std::string v = it->second;
        fields.erase(it);
        return v;
    };
    auto unsigned_field = [&](const char * name) { return static_cast<ttmath::uint>(std::stoll(take(name))); };
    auto signed_field = [&](const char * name) { return static_cast<ttmath::sint>(std::stoll(take(name))); };
    auto bool_field = [&](const char * name) { return std::stoll(take(name)) != 0; };

    ttmath::Conv c;
    c.base = unsigned_field("base");
    c.scient = bool_field("scient");
    c.scient_from = signed_field("scient_from");
    c.base_round = bool_field("base_round");
    c.round = signed_field("round");
    c.trim_zeroes = bool_field("trim_zeroes");
    c.comma = unsigned_field("comma");
    c.comma2 = unsigned_field("comma2");
    c.group = unsigned_field("group");
    c.group2 = c.group;
    c.group_digits = unsigned_field("group_digits");
    c.group_exp = unsigned_field("group_exp");
    if (!fields.empty())
        throw std::runtime_error("unknown field " + fields.begin()->first + " in " + token);
    return c;
}

template<class Big>
struct TextOps {
    // tostring a conv -> c s
    static Outcome ToString(const Line & l)
    {
        Big a = ParseValue<Big>(l.inputs.at(0));
        std::string text;
        ttmath::uint c = a.ToString(text, ParseConv(l.inputs.at(1)));
        return CompareOutputs(l, {FormatCode("c:", c), FormatJsonString(text)});
    }

    // fromstring s conv -> c N at b, on a fresh object
    static Outcome FromString(const Line & l)
    {
        std::string text = ParseJsonString(l.inputs.at(0));
        ttmath::Conv conv = ParseConv(l.inputs.at(1));
        Big x;
        const char * after = nullptr;
        bool value_read = false;
        ttmath::uint c = x.FromString(text, conv, &after, &value_read);
        std::int64_t at = after ? static_cast<std::int64_t>(after - text.c_str()) : -1;
        return CompareOutputs(l, {FormatCode("c:", c), FormatValue(x), "at:" + std::to_string(at),
                                  FormatBool(value_read)});
    }

    static const HandlerMap & Table()
    {
        static const HandlerMap table = {
            {"tostring", &ToString},
            {"fromstring", &FromString},
        };
        return table;
    }
};

} // namespace golden

#endif
