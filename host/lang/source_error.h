// An error in host-language text (a script or a declaration) at a line and column.
#pragma once

#include <stdexcept>
#include <string>

namespace hostsim {

struct SourcePosition {
    int line = 1;
    int column = 1;
};

class SourceError : public std::runtime_error {
public:
    SourceError(SourcePosition where, const std::string & message)
        : std::runtime_error(message), where_(where) {}
    SourcePosition where() const { return where_; }
    // "line 3, column 7: message"
    std::string Describe() const;

private:
    SourcePosition where_;
};

} // namespace hostsim
