// The native caller built on libffi.
#include <ffi.h>

#include <cstring>
#include <stdexcept>

#include "host/native/native_call.h"

namespace hostsim {

namespace {

ffi_type * FfiType(CType c)
{
    switch (c) {
    case CType::Void: return &ffi_type_void;
    case CType::Int8: return &ffi_type_sint8;
    case CType::UInt8: return &ffi_type_uint8;
    case CType::Int16: return &ffi_type_sint16;
    case CType::UInt16: return &ffi_type_uint16;
    case CType::Int32: return &ffi_type_sint32;
    case CType::UInt32: return &ffi_type_uint32;
    case CType::Int64: return &ffi_type_sint64;
    case CType::UInt64: return &ffi_type_uint64;
    case CType::Float: return &ffi_type_float;
    case CType::Double: return &ffi_type_double;
    case CType::Pointer: return &ffi_type_pointer;
    }
    return &ffi_type_void;
}

// libffi widens integral results narrower than a register to ffi_arg.
void NarrowResult(CType c, const ffi_arg & wide, const unsigned char * raw, NativeSlot & out)
{
    switch (c) {
    case CType::Int8: out.i8 = static_cast<int8_t>(wide); break;
    case CType::UInt8: out.u8 = static_cast<uint8_t>(wide); break;
    case CType::Int16: out.i16 = static_cast<int16_t>(wide); break;
    case CType::UInt16: out.u16 = static_cast<uint16_t>(wide); break;
    case CType::Int32: out.i32 = static_cast<int32_t>(wide); break;
    case CType::UInt32: out.u32 = static_cast<uint32_t>(wide); break;
    default: std::memcpy(&out, raw, sizeof out); break;
    }
}

class FfiCaller : public NativeCaller {
public:
    void Call(REALproc function, const NativeSignature & signature, const std::vector<NativeSlot> & arguments,
              NativeSlot & result) override
    {
        std::vector<ffi_type *> types;
        std::vector<void *> values;
        types.reserve(signature.parameters.size());
        values.reserve(signature.parameters.size());
        for (size_t i = 0; i < signature.parameters.size(); ++i) {
            types.push_back(FfiType(signature.parameters[i]));
            values.push_back(const_cast<NativeSlot *>(&arguments[i]));
        }
        ffi_cif cif;
        if (ffi_prep_cif(&cif, FFI_DEFAULT_ABI, static_cast<unsigned>(types.size()), FfiType(signature.result),
                         types.data()) != FFI_OK)
            throw std::runtime_error("libffi cannot describe this call");
        union {
            ffi_arg wide;
            unsigned char raw[sizeof(NativeSlot)];
        } storage{};
        ffi_call(&cif, function, &storage, values.data());
        result.u64 = 0;
        NarrowResult(signature.result, storage.wide, storage.raw, result);
    }
};

} // namespace

std::unique_ptr<NativeCaller> MakeNativeCaller()
{
    return std::make_unique<FfiCaller>();
}

} // namespace hostsim
