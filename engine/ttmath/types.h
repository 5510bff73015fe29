// Basic types, flags and codes of the numeric core.
#ifndef TTMATH_TYPES_H
#define TTMATH_TYPES_H

#include <cstdint>

#define TTMATH_MAJOR_VER 0
#define TTMATH_MINOR_VER 9
#define TTMATH_REVISION_VER 4
#define TTMATH_PRERELEASE_VER 1

// The core always works with 64-bit words, on every processor, so that results are
// the same everywhere. The x86-64 assembly kernels are used with GCC and Clang on
// x86-64 unless TTMATH_NOASM asks for the portable C++ kernels.
#if !defined(TTMATH_NOASM) && defined(__x86_64__) && (defined(__GNUC__) || defined(__clang__))
#define TTMATH_ASM_X86_64 1
#endif

#define TTMATH_PLATFORM64 1
#define TTMATH_BITS_PER_UINT 64u
#define TTMATH_UINT_HIGHEST_BIT 0x8000000000000000ull
#define TTMATH_UINT_MAX_VALUE 0xffffffffffffffffull
#define TTMATH_BITS(min_bits) (((min_bits)-1) / TTMATH_BITS_PER_UINT + 1)

// Keeps a rarely taken path out of the inlined common one.
#if defined(__GNUC__) || defined(__clang__)
#define TTMATH_NOINLINE __attribute__((noinline))
#else
#define TTMATH_NOINLINE
#endif

// Flag bits of Big::info.
#define TTMATH_BIG_SIGN 128
#define TTMATH_BIG_NAN 64
#define TTMATH_BIG_ZERO 32

// Words of the built-in constant tables, and the series limit of the functions.
#define TTMATH_BUILTIN_VARIABLES_SIZE 128
#define TTMATH_ARITHMETIC_MAX_LOOP 10000

// Products of at least this many words use Karatsuba's method.
#define TTMATH_USE_KARATSUBA_MULTIPLICATION_FROM_SIZE 3

namespace ttmath {

typedef std::uint64_t uint;
typedef std::int64_t sint;

enum LibTypeCode {
    asm_vc_32 = 0,
    asm_gcc_32,
    asm_vc_64,
    asm_gcc_64,
    no_asm_32,
    no_asm_64
};

enum ErrorCode {
    err_ok = 0,
    err_nothing_has_read,
    err_unknown_character,
    err_unexpected_final_bracket,
    err_stack_not_clear,
    err_unknown_variable,
    err_division_by_zero,
    err_interrupt,
    err_overflow,
    err_unknown_function,
    err_unknown_operator,
    err_unexpected_semicolon_operator,
    err_improper_amount_of_arguments,
    err_improper_argument,
    err_unexpected_end,
    err_internal_error,
    err_incorrect_name,
    err_incorrect_value,
    err_variable_exists,
    err_variable_loop,
    err_functions_loop,
    err_must_be_only_one_value,
    err_object_exists,
    err_unknown_object,
    err_still_calculating,
    err_in_short_form_used_function,
    err_percent_from,
    err_assignment_requires_variable
};

// Lets a long calculation be interrupted; the core's own calculations never are.
class StopCalculating {
public:
    virtual bool WasStopSignal() const volatile { return false; }
    virtual ~StopCalculating() {}
};

} // namespace ttmath

#endif
