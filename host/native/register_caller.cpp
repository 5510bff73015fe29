// The native caller without libffi, for the calling conventions of the builds made off
// macOS: System V on x86-64, AAPCS64 on Linux and the Microsoft x64 convention.
//
// Every argument and result the host passes is a scalar of at most eight bytes, so a
// call can go through one fixed prototype per convention. The argument values are
// sorted into the places the convention gives them: integers and pointers, widened to
// eight bytes, into the integer registers; Single and Double values into the
// floating-point registers (a Single in the low four bytes, where the convention keeps
// it); what finds no register, eight bytes a value, onto the stack in argument order.
// The prototype has more arguments than any callee reads; the caller owns the argument
// registers and the stack area, so the surplus is harmless. Results come back the same
// way: integers from the first integer register, floating-point values from the first
// floating-point register.
//
// Apple's arm64 convention packs stack arguments by their own size, which one prototype
// cannot model: builds for macOS use the libffi caller.
#include <array>
#include <cstring>
#include <stdexcept>
#include <type_traits>
#include <utility>

#include "host/native/native_call.h"

#if defined(__APPLE__)
#error "the register caller does not model Apple's arm64 convention; build with libffi"
#endif

namespace hostsim {

namespace {

using Word = uint64_t;
template <size_t> using WordAt = Word;
template <size_t> using RealAt = double;

// Stack slots a call may fill: twenty arguments on every convention.
constexpr size_t kStackSlots = 16;

bool IsFloatingPoint(CType c)
{
    return c == CType::Float || c == CType::Double;
}

// An integer or pointer argument as the full register the convention fills.
Word Widened(CType c, const NativeSlot & slot)
{
    switch (c) {
    case CType::Int8: return static_cast<Word>(static_cast<int64_t>(slot.i8));
    case CType::UInt8: return slot.u8;
    case CType::Int16: return static_cast<Word>(static_cast<int64_t>(slot.i16));
    case CType::UInt16: return slot.u16;
    case CType::Int32: return static_cast<Word>(static_cast<int64_t>(slot.i32));
    case CType::UInt32: return slot.u32;
    case CType::Float: {
        uint32_t bits;
        std::memcpy(&bits, &slot.f, sizeof bits);
        return bits;
    }
    default: return slot.u64;
    }
}

double BitsAsDouble(Word bits)
{
    double d;
    std::memcpy(&d, &bits, sizeof d);
    return d;
}

Word DoubleBits(double d)
{
    Word bits;
    std::memcpy(&bits, &d, sizeof bits);
    return bits;
}

// The callee's result, read from the integer or the floating-point result register.
void StoreResult(CType c, Word integerResult, double realResult, NativeSlot & out)
{
    out.u64 = 0;
    switch (c) {
    case CType::Void: break;
    case CType::Int8: out.i8 = static_cast<int8_t>(integerResult); break;
    case CType::UInt8: out.u8 = static_cast<uint8_t>(integerResult); break;
    case CType::Int16: out.i16 = static_cast<int16_t>(integerResult); break;
    case CType::UInt16: out.u16 = static_cast<uint16_t>(integerResult); break;
    case CType::Int32: out.i32 = static_cast<int32_t>(integerResult); break;
    case CType::UInt32: out.u32 = static_cast<uint32_t>(integerResult); break;
    case CType::Float: {
        const uint32_t bits = static_cast<uint32_t>(DoubleBits(realResult));
        std::memcpy(&out.f, &bits, sizeof bits);
        break;
    }
    case CType::Double: out.d = realResult; break;
    default: out.u64 = integerResult; break;
    }
}

[[noreturn]] void TooManyArguments()
{
    throw std::runtime_error("the call has more arguments than the native caller can place");
}

#if defined(_WIN64)

// Microsoft x64: the first four arguments go by position into RCX, RDX, R8, R9 or
// XMM0 to XMM3 as their type says; the rest go onto the stack. One prototype a
// combination of register kinds: bit i of Kinds set puts argument i in XMMi.
constexpr size_t kPositionalRegisters = 4;
constexpr unsigned kKindCombinations = 1u << kPositionalRegisters;

template <unsigned Kinds, size_t I>
using Positional = std::conditional_t<((Kinds >> I) & 1u) != 0, double, Word>;

template <class T>
T AsRegister(Word bits)
{
    if constexpr (std::is_same_v<T, double>)
        return BitsAsDouble(bits);
    else
        return bits;
}

template <class R, unsigned Kinds, size_t... S>
R CallPositional(REALproc function, const std::array<Word, kPositionalRegisters> & registers,
                 const std::array<Word, kStackSlots> & stack, std::index_sequence<S...>)
{
    using Shape = R (*)(Positional<Kinds, 0>, Positional<Kinds, 1>, Positional<Kinds, 2>, Positional<Kinds, 3>,
                        WordAt<S>...);
    return reinterpret_cast<Shape>(function)(
        AsRegister<Positional<Kinds, 0>>(registers[0]), AsRegister<Positional<Kinds, 1>>(registers[1]),
        AsRegister<Positional<Kinds, 2>>(registers[2]), AsRegister<Positional<Kinds, 3>>(registers[3]), stack[S]...);
}

template <class R, unsigned... K>
R CallByKinds(unsigned kinds, REALproc function, const std::array<Word, kPositionalRegisters> & registers,
              const std::array<Word, kStackSlots> & stack, std::integer_sequence<unsigned, K...>)
{
    using Call = R (*)(REALproc, const std::array<Word, kPositionalRegisters> &, const std::array<Word, kStackSlots> &,
                       std::make_index_sequence<kStackSlots>);
    static constexpr Call calls[] = {&CallPositional<R, K>...};
    return calls[kinds](function, registers, stack, std::make_index_sequence<kStackSlots>{});
}

class RegisterCaller : public NativeCaller {
public:
    void Call(REALproc function, const NativeSignature & signature, const std::vector<NativeSlot> & arguments,
              NativeSlot & result) override
    {
        std::array<Word, kPositionalRegisters> registers{};
        std::array<Word, kStackSlots> stack{};
        unsigned kinds = 0;
        size_t stackUsed = 0;
        for (size_t i = 0; i < signature.parameters.size(); ++i) {
            const CType c = signature.parameters[i];
            const Word bits = Widened(c, arguments[i]);
            if (i < kPositionalRegisters) {
                registers[i] = bits;
                if (IsFloatingPoint(c))
                    kinds |= 1u << i;
            } else {
                if (stackUsed == kStackSlots)
                    TooManyArguments();
                stack[stackUsed++] = bits;
            }
        }
        const auto every = std::make_integer_sequence<unsigned, kKindCombinations>{};
        Word integerResult = 0;
        double realResult = 0;
        if (IsFloatingPoint(signature.result))
            realResult = CallByKinds<double>(kinds, function, registers, stack, every);
        else
            integerResult = CallByKinds<Word>(kinds, function, registers, stack, every);
        StoreResult(signature.result, integerResult, realResult, result);
    }
};

#else

// System V x86-64 and AAPCS64: integers and floating-point values fill their own
// registers independently, in argument order; overflow of either goes onto the stack
// in argument order.
#if defined(__x86_64__)
constexpr size_t kIntegerRegisters = 6;
#elif defined(__aarch64__)
constexpr size_t kIntegerRegisters = 8;
#else
#error "the register caller knows x86-64 and arm64 only"
#endif
constexpr size_t kFloatRegisters = 8;

template <class R, size_t... I, size_t... F, size_t... S>
R CallSorted(REALproc function, const std::array<Word, kIntegerRegisters> & integers,
             const std::array<Word, kFloatRegisters> & reals, const std::array<Word, kStackSlots> & stack,
             std::index_sequence<I...>, std::index_sequence<F...>, std::index_sequence<S...>)
{
    using Shape = R (*)(WordAt<I>..., RealAt<F>..., WordAt<S>...);
    return reinterpret_cast<Shape>(function)(integers[I]..., BitsAsDouble(reals[F])..., stack[S]...);
}

class RegisterCaller : public NativeCaller {
public:
    void Call(REALproc function, const NativeSignature & signature, const std::vector<NativeSlot> & arguments,
              NativeSlot & result) override
    {
        std::array<Word, kIntegerRegisters> integers{};
        std::array<Word, kFloatRegisters> reals{};
        std::array<Word, kStackSlots> stack{};
        size_t integersUsed = 0, realsUsed = 0, stackUsed = 0;
        for (size_t i = 0; i < signature.parameters.size(); ++i) {
            const CType c = signature.parameters[i];
            const Word bits = Widened(c, arguments[i]);
            if (IsFloatingPoint(c) && realsUsed < kFloatRegisters)
                reals[realsUsed++] = bits;
            else if (!IsFloatingPoint(c) && integersUsed < kIntegerRegisters)
                integers[integersUsed++] = bits;
            else if (stackUsed < kStackSlots)
                stack[stackUsed++] = bits;
            else
                TooManyArguments();
        }
        const auto i = std::make_index_sequence<kIntegerRegisters>{};
        const auto f = std::make_index_sequence<kFloatRegisters>{};
        const auto s = std::make_index_sequence<kStackSlots>{};
        Word integerResult = 0;
        double realResult = 0;
        if (IsFloatingPoint(signature.result))
            realResult = CallSorted<double>(function, integers, reals, stack, i, f, s);
        else
            integerResult = CallSorted<Word>(function, integers, reals, stack, i, f, s);
        StoreResult(signature.result, integerResult, realResult, result);
    }
};

#endif

} // namespace

std::unique_ptr<NativeCaller> MakeNativeCaller()
{
    return std::make_unique<RegisterCaller>();
}

} // namespace hostsim
