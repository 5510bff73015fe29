// The number of digits in a base b that a binary exponent k stands for:
// n = ceil(k * log_b(2)), the smallest n with b^n >= 2^k. Text conversion divides a value
// by b^n to bring its digits into the mantissa, so n must be exact: one too large loses a
// digit. It is computed in integers from log_b(2) held to enough fractional bits, not in
// floating point, where k * log_b(2) (k up to 2^511) comes within 2^-513 of an integer.
#ifndef TTMATH_DIGIT_EXPONENT_H
#define TTMATH_DIGIT_EXPONENT_H

#include "int.h"

namespace ttmath {
namespace text {

// log_b(2) * 2^log_two_fraction_bits, truncated, for the bases whose digits are not
// groups of bits; most significant word first.
const uint log_two_fraction_words = 18;
const uint log_two_fraction_bits = log_two_fraction_words * 64;

struct LogOfTwo {
    uint base;
    uint words[log_two_fraction_words];
};

const LogOfTwo log_of_two[] = {
    {3,
     {0xa1849cc1a9a9e94eull, 0x043eaf7791f52142ull, 0x090a48ddb0de33c5ull, 0x7074a123bd97132aull,
      0x019a5e2de55659a4ull, 0xeade149f01338f22ull, 0x2e42c9ecaca075c9ull, 0xf460df0c67cebf49ull,
      0x5f3be292bdeca1bcull, 0x0eb0f7f0c1e4b954ull, 0xe991ffab32fca20eull, 0xefb7d3ef42ce73a7ull,
      0x0321c20a5baf01bdull, 0xcff00d5b428ffc84ull, 0x06092e7793f4ca85ull, 0x2fe4d0a4c70f1c9aull,
      0xc9c962d06371e32cull, 0xd274ca599332fc6aull}},
    {5,
     {0x6e40d1a4143dcb94ull, 0x33d522368f0d1d89ull, 0x40584d3d310b8061ull, 0x14506c8cffabaad3ull,
      0x9a68ad64938b7e55ull, 0x555e3560bb36bb8full, 0x163511d2fdb332d5ull, 0x829f3dc6d4dcebbdull,
      0xb9ec56cd15145da9ull, 0xedce74ad3989c9b0ull, 0x6a0ae1794b89a7e1ull, 0x386c2f7105461b0cull,
      0xda904ccbbc9b36c3ull, 0x9becbe494f4f0a6full, 0x4f41eede683e948full, 0x2d80719069f8e09aull,
      0x5125834d8b44599bull, 0xd9a426309046bc6cull}},
    {6,
     {0x6308c91b702a7cf4ull, 0xff85a5c1b80aaa91ull, 0x8a2cae211bb63e21ull, 0xf709317384556271ull,
      0x53c6ebdefe18efffull, 0x76802fdd5e8c9da8ull, 0x1828376023a6cfc8ull, 0x86c64aa3331fd784ull,
      0x6c8914398d2192b0ull, 0x03ed45ee687b0e83ull, 0x70bcdcc29daddf2aull, 0x4dea0e4ff24e7120ull,
      0x4aec9b822106abf8ull, 0x34fb9628c55b4a12ull, 0x517e37d7cb1845bfull, 0x04e9daaa40065a2aull,
      0x57be54abdc2d1c46ull, 0x8b99a9e10c5f4abcull}},
    {7,
     {0x5b3064eb3aa6d388ull, 0x9bd82cc11a7209d2ull, 0x1e1e26dce5b2b5b9ull, 0x9980ac3a30f2990eull,
      0x4f9e7f450627eadaull, 0xad6f6e1f4d3e7ddcull, 0x3dd05ac796b7192cull, 0xc0d169b38d64ad30ull,
      0x032098c3b02bdbc4ull, 0xe92bedcfd631f475ull, 0x0287a6f9ae8c06dbull, 0xf4ec3dc3cb79d863ull,
      0x9e9a15810bef23b8ull, 0xdb6937bf3ada911eull, 0x667fda18c8868cabull, 0x4c862483d025fa44ull,
      0x2b2540bbca9a8a4bull, 0x42f65e76b86df6c4ull}},
    {9,
     {0x50c24e60d4d4f4a7ull, 0x021f57bbc8fa90a1ull, 0x0485246ed86f19e2ull, 0xb83a5091decb8995ull,
      0x00cd2f16f2ab2cd2ull, 0x756f0a4f8099c791ull, 0x172164f656503ae4ull, 0xfa306f8633e75fa4ull,
      0xaf9df1495ef650deull, 0x07587bf860f25caaull, 0x74c8ffd5997e5107ull, 0x77dbe9f7a16739d3ull,
      0x8190e1052dd780deull, 0xe7f806ada147fe42ull, 0x0304973bc9fa6542ull, 0x97f2685263878e4dull,
      0x64e4b16831b8f196ull, 0x693a652cc9997e35ull}},
    {10,
     {0x4d104d427de7fbccull, 0x47c4acd605be48bcull, 0x13569862a1e8f9a4ull, 0xc52f37935be631e5ull,
      0x943516c0c8cfd5e8ull, 0x4f2e5e399a38de89ull, 0x48a39a4ad8c5c90full, 0x2c5a93fa92a96966ull,
      0x2fc1bef7012aae5eull, 0x4e78e8c862030172ull, 0xe9361397ef38817aull, 0x75c8894d8ac96ceeull,
      0x0246bf52cf58a9ecull, 0x058419e2ca0d5c10ull, 0xb51b3dc09e7a647dull, 0xef7518bbe47c4655ull,
      0x5ffc0050ad6c33aeull, 0xa8d285fba1ab2d6eull}},
    {11,
     {0x4a00270775914e88ull, 0x70b466920e51e1f7ull, 0xffb081ec66f6c1e5ull, 0x9ce87b296e096409ull,
      0x4a4e2726ad134b7bull, 0x97d2ec87193bb103ull, 0xefb307020ff47752ull, 0x2d76389eb3937645ull,
      0x4b1a6644c0698798ull, 0xd2bbab4be95a17dcull, 0xa68bc1c9a5a3e025ull, 0xd7d7a810d252af84ull,
      0xf89e5479e2fb9fffull, 0x769d7f5ee0b2069aull, 0x8d14013842bc3f99ull, 0xb210c827af7ec528ull,
      0xda8eb5ca9835e4daull, 0x0b344c547d944a5eull}},
    {12,
     {0x4768ce0d05818e12ull, 0x7f122e2f4c79f9caull, 0xcada9779fa551f76ull, 0xa5f5183c675b0afeull,
      0x8382f1497aa99a1eull, 0x5d5e50c8bfdc5ec9ull, 0x50db6e9f5f155dd1ull, 0xca63227d8553404cull,
      0x4d48951e21ac5f1bull, 0x5ff76eaa52f808abull, 0xfa3a521c973c30e9ull, 0x745b4f27f1c6d150ull,
      0x57ef0ea8ab3fc399ull, 0xcf30df2789b924d0ull, 0x2716fa97271734c9ull, 0xf00ac6b3d5b2c81eull,
      0x6a605dfca05c5769ull, 0x64c67606722efc0cull}},
    {13,
     {0x452e53e365907bdaull, 0x2bf75000cfb72251ull, 0x39bd7ac4868ca6a3ull, 0x3fc553d13e181d12ull,
      0x58a8969df52695a4ull, 0xd38e0112ff1f577dull, 0x2c40054371d77b1cull, 0x74dcd1daa5b4c69dull,
      0xa23849ffa5a46e29ull, 0x83152b446b659e98ull, 0xb169337c46b369caull, 0xd4ca4e44ebef56edull,
      0x0f84d6e5d9672851ull, 0xb7555f23bf281be6ull, 0xa5e3a52bd60f1f2aull, 0xe88db9360ad4e4ccull,
      0xf731b554829be770ull, 0xa646427e6f249f21ull}},
    {14,
     {0x433cfffb4b5aae55ull, 0xc2d2e89586d2b763ull, 0xde00f47ce216659bull, 0xe28a1da339266b45ull,
      0x2d64967ebe12df0cull, 0x862079d7b2eddfd2ull, 0xeea8c8fd4d6f0fabull, 0x2f7bf2261c6888d1ull,
      0x64379951453d6c03ull, 0x2ed6ce00be604629ull, 0xc9eb067937a472e0ull, 0xb7fc9a625a8a0eccull,
      0x014559655e7f0dacull, 0x6cbd8449c948f408ull, 0x662e3553af716745ull, 0xc49ec9747df69a38ull,
      0x2be170847b3ce910ull, 0x5374b58c0769680aull}},
    {15,
     {0x41867711b4f85355ull, 0x37bbdca4fca609deull, 0x324183196c5d392dull, 0xb16aa9689393e11aull,
      0xf4479027f2f49475ull, 0xdf74122109a21f01ull, 0x111b0c63744df302ull, 0x8fe45f48cb93ce2eull,
      0xef8bc1b90cfedfb5ull, 0x8f61f99bbc5e8445ull, 0xeff9d9e67d701627ull, 0x87996871b2459898ull,
      0x3fd5b6cde1e1d0aeull, 0x3d5f972b300af3cfull, 0xeea8f88ff0760e03ull, 0xc3dda334def41220ull,
      0x8a321ef83225034bull, 0xcd9adaf081f458fcull}}
};

// The fraction bits cover exponents of this many words: for |k| < 2^(64e - 1) the error
// of the truncated constant, below |k| * 2^-1152 <= 2^-(64e + 65) for e up to this, stays
// far below the distance of k * log_b(2) from the nearest integer (about 2^-(64e + 2) at
// worst for the exponent widths in use).
const uint max_digit_exponent_words = (log_two_fraction_bits - 64) / 128;

inline const uint * LogOfTwoWords(uint base)
{
    for (const LogOfTwo & entry : log_of_two)
        if (entry.base == base)
            return entry.words;
    return nullptr;
}

// ceil(k * log_b(2)) for a base with an entry in log_of_two. k * log_b(2) is never an
// integer for k != 0 (log_b(2) is irrational), so the ceiling is the floor plus one for
// positive k and minus the floor of |k| * log_b(2) for negative k.
template<uint exp_words>
Int<exp_words + 1> DigitExponent(const Int<exp_words> & k, uint base)
{
    static_assert(exp_words <= max_digit_exponent_words, "log_b(2) is not held to enough bits");
    Int<exp_words + 1> n;
    n.SetZero();
    const uint * log_two = LogOfTwoWords(base);
    if (k.IsZero() || !log_two)
        return n;

    // |k|; the most negative k reads correctly as unsigned after the negation.
    UInt<exp_words> magnitude(k);
    if (k.IsSign()) {
        magnitude.BitNot();
        magnitude.AddOne();
    }

    // |k| * log_two, least significant word first; the integer part is the words from
    // log_two_fraction_words up.
    uint constant[log_two_fraction_words];
    for (uint i = 0; i < log_two_fraction_words; ++i)
        constant[i] = log_two[log_two_fraction_words - 1 - i];
    uint product[log_two_fraction_words + exp_words];
    product[log_two_fraction_words] = kernel::mul_1(product, constant, log_two_fraction_words, magnitude.table[0]);
    for (uint j = 1; j < exp_words; ++j)
        product[log_two_fraction_words + j] =
            kernel::addmul_1(product + j, constant, log_two_fraction_words, magnitude.table[j]);

    for (uint i = 0; i < exp_words; ++i)
        n.table[i] = product[log_two_fraction_words + i];
    if (k.IsSign())
        n.ChangeSign();
    else
        n.AddOne();
    return n;
}

} // namespace text
} // namespace ttmath

#endif
