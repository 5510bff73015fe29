#include "plugin/platform/trace_output.h"

#include <cstdio>

namespace zqt {

void WriteTraceLine(const char * text)
{
    std::fprintf(stderr, "%s\n", text);
    std::fflush(stderr);
}

} // namespace zqt
