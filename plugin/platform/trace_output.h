// Where the debug trace goes: the platform's log on Apple systems, standard error
// elsewhere. One call writes one line.
#pragma once

namespace zqt {

void WriteTraceLine(const char * text);

} // namespace zqt
