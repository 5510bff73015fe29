// The built-in constants pi, e, ln 2 and ln 10: their leading 2048 bits, truncated
// (not rounded), most significant word first. A mantissa of M words takes the top M
// words, so every precision up to 2048 bits holds the truncated constant.
#ifndef TTMATH_CONSTANTS_H
#define TTMATH_CONSTANTS_H

namespace ttmath {
namespace constants {

const uint constant_words = 32;

const uint pi_words[constant_words] = {
    0xc90fdaa22168c234ull, 0xc4c6628b80dc1cd1ull, 0x29024e088a67cc74ull, 0x020bbea63b139b22ull,
    0x514a08798e3404ddull, 0xef9519b3cd3a431bull, 0x302b0a6df25f1437ull, 0x4fe1356d6d51c245ull,
    0xe485b576625e7ec6ull, 0xf44c42e9a637ed6bull, 0x0bff5cb6f406b7edull, 0xee386bfb5a899fa5ull,
    0xae9f24117c4b1fe6ull, 0x49286651ece45b3dull, 0xc2007cb8a163bf05ull, 0x98da48361c55d39aull,
    0x69163fa8fd24cf5full, 0x83655d23dca3ad96ull, 0x1c62f356208552bbull, 0x9ed529077096966dull,
    0x670c354e4abc9804ull, 0xf1746c08ca18217cull, 0x32905e462e36ce3bull, 0xe39e772c180e8603ull,
    0x9b2783a2ec07a28full, 0xb5c55df06f4c52c9ull, 0xde2bcbf695581718ull, 0x3995497cea956ae5ull,
    0x15d2261898fa0510ull, 0x15728e5a8aaac42dull, 0xad33170d04507a33ull, 0xa85521abdf1cba64ull,
};

const uint e_words[constant_words] = {
    0xadf85458a2bb4a9aull, 0xafdc5620273d3cf1ull, 0xd8b9c583ce2d3695ull, 0xa9e13641146433fbull,
    0xcc939dce249b3ef9ull, 0x7d2fe363630c75d8ull, 0xf681b202aec4617aull, 0xd3df1ed5d5fd6561ull,
    0x2433f51f5f066ed0ull, 0x856365553ded1af3ull, 0xb557135e7f57c935ull, 0x984f0c70e0e68b77ull,
    0xe2a689daf3efe872ull, 0x1df158a136ade735ull, 0x30acca4f483a797aull, 0xbc0ab182b324fb61ull,
    0xd108a94bb2c8e3fbull, 0xb96adab760d7f468ull, 0x1d4f42a3de394df4ull, 0xae56ede76372bb19ull,
    0x0b07a7c8ee0a6d70ull, 0x9e02fce1cdf7e2ecull, 0xc03404cd28342f61ull, 0x9172fe9ce98583ffull,
    0x8e4f1232eef28183ull, 0xc3fe3b1b4c6fad73ull, 0x3bb5fcbc2ec22005ull, 0xc58ef1837d1683b2ull,
    0xc6f34a26c1b2effaull, 0x886b4238611fcfdcull, 0xde355b3b6519035bull, 0xbc34f4def99c0238ull,
};

const uint ln2_words[constant_words] = {
    0xb17217f7d1cf79abull, 0xc9e3b39803f2f6afull, 0x40f343267298b62dull, 0x8a0d175b8baafa2bull,
    0xe7b876206debac98ull, 0x559552fb4afa1b10ull, 0xed2eae35c1382144ull, 0x27573b291169b825ull,
    0x3e96ca16224ae8c5ull, 0x1acbda11317c387eull, 0xb9ea9bc3b136603bull, 0x256fa0ec7657f74bull,
    0x72ce87b19d6548caull, 0xf5dfa6bd38303248ull, 0x655fa1872f20e3a2ull, 0xda2d97c50f3fd5c6ull,
    0x07f4ca11fb5bfb90ull, 0x610d30f88fe551a2ull, 0xee569d6dfc1efa15ull, 0x7d2e23de1400b396ull,
    0x17460775db8990e5ull, 0xc943e732b479cd33ull, 0xcccc4e659393514cull, 0x4c1a1e0bd1d6095dull,
    0x25669b333564a337ull, 0x6a9c7f8a5e148e82ull, 0x074db6015cfe7aa3ull, 0x0c480a5417350d2cull,
    0x955d5179b1e17b9dull, 0xae313cdb6c606cb1ull, 0x078f735d1b2db31bull, 0x5f50b5185064c18bull,
};

const uint ln10_words[constant_words] = {
    0x935d8dddaaa8ac16ull, 0xea56d62b82d30a28ull, 0xe28fecf9da5df90eull, 0x83c61e8201f02d72ull,
    0x962f02d7b1a8105cull, 0xcc70cbc02c5f0d68ull, 0x2c622418410be2daull, 0xfb8f788402e516d6ull,
    0x782cf8a28a8c911eull, 0x765aa6c3b0d831fbull, 0xef66ceb04ab3c6faull, 0x5161bb49d219c7bbull,
    0xca67b35b23605085ull, 0x8e93368d44789c4full, 0x5b08b057d5ede20full, 0x469ea58e9305e981ull,
    0xe2478fcaad3aee98ull, 0x9cd5b42e6a271619ull, 0xa47ecb26978c5d4full, 0xdb1d28ea57d4fdc0ull,
    0xe40bf3cc1e14126aull, 0x45765cde268339dbull, 0xf47fa96deb271060ull, 0xaf88486ea9b7401eull,
    0x3dfd3c51748e6d6eull, 0x3848c8d25faf1bcaull, 0xe88047f17b0d9b50ull, 0xa949eaaadf69e8a5ull,
    0xf77e37604e943960ull, 0xe38a5700ffde2db1ull, 0xad6bfbffd821ba0aull, 0x4cb0466d61ba648eull,
};
// Loads the truncated constant into x with the given exponent relative to -N (the
// number of integer bits of the constant, placed above the binary point).
template<uint exp, uint man>
void Load(Big<exp, man> & x, const uint * table, sint integer_bits)
{
    static_assert(man <= constant_words, "the constant tables hold 2048 bits");
    x.info = 0;
    for (uint i = 0; i < man; ++i)
        x.mantissa.table[man - 1 - i] = table[i];
    x.exponent = Int<exp>(integer_bits - static_cast<sint>(Big<exp, man>::mantissa_bits));
}

} // namespace constants

template<uint exp, uint man>
void Big<exp, man>::SetPi()
{
    constants::Load(*this, constants::pi_words, 2);
}

template<uint exp, uint man>
void Big<exp, man>::Set05Pi()
{
    constants::Load(*this, constants::pi_words, 1);
}

template<uint exp, uint man>
void Big<exp, man>::Set2Pi()
{
    constants::Load(*this, constants::pi_words, 3);
}

template<uint exp, uint man>
void Big<exp, man>::SetE()
{
    constants::Load(*this, constants::e_words, 2);
}

template<uint exp, uint man>
void Big<exp, man>::SetLn2()
{
    constants::Load(*this, constants::ln2_words, 0);
}

template<uint exp, uint man>
void Big<exp, man>::SetLn10()
{
    constants::Load(*this, constants::ln10_words, 2);
}

} // namespace ttmath

#endif
