// Parses script text into a Program. Errors carry the line and column.
#pragma once

#include <string_view>

#include "host/script/ast.h"

namespace hostsim {

// The text ended inside a block (If without End If, ...): more lines may complete it.
class IncompleteInput : public SourceError {
public:
    using SourceError::SourceError;
};

Program ParseProgram(std::string_view text);

} // namespace hostsim
