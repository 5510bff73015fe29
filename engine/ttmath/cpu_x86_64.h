// Processor features that the x86-64 kernels may use beyond the base instruction set,
// read once with CPUID. Every kernel that needs them has a twin for any x86-64
// processor, with identical results.
#ifndef TTMATH_CPU_X86_64_H
#define TTMATH_CPU_X86_64_H

namespace ttmath {
namespace x86_64_kernels {

// CPUID leaf 7 (sub-leaf 0) reports BMI2 (MULX) in bit 8 of EBX and ADX (ADCX, ADOX)
// in bit 19.
const unsigned cpuid_extended_features = 7;
const unsigned bmi2_bit = 1u << 8;
const unsigned adx_bit = 1u << 19;

inline bool detect_mulx_adx()
{
    unsigned max_leaf, ebx, ecx, edx;
    __asm__("cpuid" : "=a"(max_leaf), "=b"(ebx), "=c"(ecx), "=d"(edx) : "a"(0u), "c"(0u));
    if (max_leaf < cpuid_extended_features)
        return false;
    unsigned eax;
    __asm__("cpuid" : "=a"(eax), "=b"(ebx), "=c"(ecx), "=d"(edx) : "a"(cpuid_extended_features), "c"(0u));
    const unsigned wanted = bmi2_bit | adx_bit;
    return (ebx & wanted) == wanted;
}

// Whether the kernels use MULX, ADCX and ADOX. It is false until the program's static
// initialisation has run (the base kernels serve until then), and tests may set it to
// false to exercise the kernels that every x86-64 processor runs.
inline bool use_mulx_adx = detect_mulx_adx();

} // namespace x86_64_kernels
} // namespace ttmath

#endif
