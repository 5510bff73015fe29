// Prints pi, e and 1/3 at both precisions of the numeric core. Decimal digits are
// produced by repeated multiplication of the fraction by ten, which is exact enough
// for the digits shown (a few fewer than the mantissa holds).
#include <cstdio>
#include <string>

#include <ttmath/ttmath.h>

namespace {

// Decimal digits a mantissa of `bits` bits can show without doubt about the last one.
unsigned ShownDigits(unsigned bits)
{
    const double log10_of_2 = 0.30102999566398120;
    const unsigned guard_digits = 3;
    return static_cast<unsigned>(bits * log10_of_2) - guard_digits;
}

template<class Big>
std::string Decimal(const Big & value, unsigned digits)
{
    Big integer(value);
    integer.SkipFraction();
    ttmath::uint whole = 0;
    integer.ToUInt(whole);
    std::string text = std::to_string(whole) + ".";

    Big fraction(value);
    fraction.RemainFraction();
    for (unsigned i = 0; i < digits && !fraction.IsZero(); ++i) {
        const ttmath::uint decimal_base = 10;
        fraction.MulUInt(decimal_base);
        Big digit(fraction);
        digit.SkipFraction();
        ttmath::uint d = 0;
        digit.ToUInt(d);
        text += static_cast<char>('0' + d);
        fraction.RemainFraction();
    }
    return text;
}

template<class Big>
void Show(const char * type_name)
{
    const unsigned digits = ShownDigits(Big::mantissa_bits);
    Big pi, e, third(1);
    pi.SetPi();
    e.SetE();
    third.Div(Big(3));
    std::printf("%s (%u-bit mantissa, back end %s)\n", type_name, static_cast<unsigned>(Big::mantissa_bits),
                Big::LibTypeStr());
    std::printf("  pi  = %s\n", Decimal(pi, digits).c_str());
    std::printf("  e   = %s\n", Decimal(e, digits).c_str());
    std::printf("  1/3 = %s\n", Decimal(third, digits).c_str());
}

} // namespace

int main()
{
    Show<ttmath::Big<1, 4>>("BigNumberZQT");
    Show<ttmath::Big<8, 32>>("BiggerNumberZQT");
    return 0;
}
