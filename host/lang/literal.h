// A constant written in host-language text: a default parameter value or a script literal.
#pragma once

#include <cstdint>
#include <string>

namespace hostsim {

struct Literal {
    enum class Kind { Integer, UnsignedInteger, Real, String, Boolean, Nil, Color };
    Kind kind = Kind::Nil;
    int64_t integer = 0;  // Integer and Boolean (0 or 1)
    uint64_t unsignedInteger = 0; // UnsignedInteger and Color
    double real = 0;
    std::string text;
};

} // namespace hostsim
