// The border of every handler the host calls: no native exception may leave it. A
// standard exception becomes the closest host exception, anything else a
// RuntimeException, and the handler then returns its neutral value (null, 0, false).
#pragma once

#include "plugin/exceptions.h"

namespace zqt {

template <class Body>
auto Guarded(Body && body) noexcept -> decltype(body())
{
    using Result = decltype(body());
    try {
        return body();
    } catch (const std::exception & e) {
        RaiseRuntimeException(e);
    } catch (...) {
        RaiseUnnamedException();
    }
    return Result();
}

} // namespace zqt
