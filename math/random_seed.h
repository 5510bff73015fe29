// The C library's generator, which Rand draws from, is seeded once at load, and only
// inside a built application: in the IDE it runs unseeded.
#pragma once

namespace zqt {

// Seeds the generator with the time and the process id when the host answers that it
// is a built application; does nothing in the IDE or when the host cannot tell.
void SeedRandomInRuntime();

} // namespace zqt
