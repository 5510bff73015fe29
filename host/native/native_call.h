// Calls a C function through a pointer whose shape is known only at run time. The
// host describes each handler's shape from its declaration and calls it with exactly
// those C types, so a plugin whose handler has another shape gets wrong values, as it
// would in the real host. One implementation uses libffi; another can replace it.
#pragma once

#include <memory>
#include <vector>

#include "host/runtime/types.h"
#include "sdk/rb_types.h"

namespace hostsim {

// Eight bytes that hold any argument or result of the C types the host uses.
union NativeSlot {
    int8_t i8;
    uint8_t u8;
    int16_t i16;
    uint16_t u16;
    int32_t i32;
    uint32_t u32;
    int64_t i64;
    uint64_t u64;
    float f;
    double d;
    void * p;
};
static_assert(sizeof(NativeSlot) == 8);

struct NativeSignature {
    CType result = CType::Void;
    std::vector<CType> parameters;
};

class NativeCaller {
public:
    virtual ~NativeCaller() = default;
    // `arguments[i]` holds the value of parameter i in the member of its C type; the
    // result lands in the member of the result's C type.
    virtual void Call(REALproc function, const NativeSignature & signature,
                      const std::vector<NativeSlot> & arguments, NativeSlot & result) = 0;
};

std::unique_ptr<NativeCaller> MakeNativeCaller();

} // namespace hostsim
