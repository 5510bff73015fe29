// The library's text settings as the text methods build them: from a conversion object,
// and the separator characters taken from host strings.
#pragma once

#include <ttmath/ttmath.h>

#include "sdk/records.h"

namespace zqt {

// A separator: the first byte of the string read as ASCII, sign-extended to a word as
// a signed 8-bit value. Nil and empty strings give 0, which means none.
ttmath::uint SeparatorChar(REALstring s);

// Overwrites the first eleven settings of `target` with those of `conversion`, field by
// field and without range checks (the library refuses what it cannot use). A nil
// conversion raises NilObjectException naming the parameter and `methodName` and
// answers false, with `target` untouched.
bool GetConv(REALobject conversion, ttmath::Conv & target, const char * methodName);

} // namespace zqt
