#include "studies/plan/random_words.hpp"

#include <gtest/gtest.h>

#include <limits>

namespace korven::studies {
namespace {

// The purpose is the second word of the key, so that any key can be asked for here.
Parole philox(std::uint64_t chiave0, std::uint64_t chiave1, const Parole& contatore) {
    return paroleCasuali(chiave0, static_cast<Scopo>(chiave1), contatore);
}

// Known answers of Philox4x64-10: counters and keys of noughts, of ones, and of the digits of pi.
// The three rows "philox4x64 10" of the file kat_vectors of the generator's authors (Salmon et al.,
// Parallel random numbers: as easy as 1, 2, 3, 2011), as Debian's librandom123-doc 1.14.0 has it;
// numpy.random.Philox, which others wrote, gives the same words.
TEST(ParoleCasuali, AreThoseOfPhilox) {
    EXPECT_EQ(philox(0, 0, {0, 0, 0, 0}), (Parole{0x16554d9eca36314c, 0xdb20fe9d672d0fdc,
                                                  0xd7e772cee186176b, 0x7e68b68aec7ba23b}));
    constexpr auto uni = std::numeric_limits<std::uint64_t>::max();
    EXPECT_EQ(
        philox(uni, uni, {uni, uni, uni, uni}),
        (Parole{0x87b092c3013fe90b, 0x438c3c67be8d0224, 0x9cc7d7c69cd777b6, 0xa09caebf594f0ba0}));
    EXPECT_EQ(
        philox(0x452821e638d01377, 0xbe5466cf34e90c6c,
               {0x243f6a8885a308d3, 0x13198a2e03707344, 0xa4093822299f31d0, 0x082efa98ec4e6c89}),
        (Parole{0xa528f45403e61d95, 0x38c72dbd566e9788, 0xa5a1610e72fd18b5, 0x57bd43b5e52b7fe6}));
}

TEST(ParoleCasuali, DifferByPurposeSeedAndCounter) {
    const Parole una = paroleCasuali(1, Scopo::valori, {7, 0, 0, 0});
    EXPECT_EQ(paroleCasuali(1, Scopo::valori, {7, 0, 0, 0}), una);
    EXPECT_NE(paroleCasuali(2, Scopo::valori, {7, 0, 0, 0}), una);
    EXPECT_NE(paroleCasuali(1, Scopo::scelta, {7, 0, 0, 0}), una);
    EXPECT_NE(paroleCasuali(1, Scopo::valori, {8, 0, 0, 0}), una);
    EXPECT_NE(paroleCasuali(1, Scopo::valori, {7, 1, 0, 0}), una);
}

TEST(TraZeroEUno, LeavesOutBothEndsAndIsSymmetric) {
    constexpr auto ultima = std::numeric_limits<std::uint64_t>::max();
    EXPECT_GT(traZeroEUno(0), 0);
    EXPECT_LT(traZeroEUno(ultima), 1);
    EXPECT_EQ(traZeroEUno(0), 1 - traZeroEUno(ultima));
    constexpr auto unQuarto = std::uint64_t{1} << 62U;
    EXPECT_NEAR(traZeroEUno(unQuarto), 0.25, 1e-15);
}

}  // namespace
}  // namespace korven::studies
