#include "base/number_text.hpp"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <random>
#include <utility>

#include "base/value_error.hpp"

namespace korven::base {
namespace {

// Worked out by hand from the decimal text of each value: seven decimals, half away from zero.
const std::pair<double, const char*> numeriDiFile[] = {
    {0, "0"},
    {-0.0, "0"},
    {1, "1"},
    {-1, "-1"},
    {12, "12"},
    {10, "10"},
    {100, "100"},
    {1000000, "1000000"},
    {0.5, "0.5"},
    {-0.5, "-.5"},
    {1.25, "1.25"},
    {-1.25, "-1.25"},
    {0.1, "0.1"},
    {-0.1, "-.1"},
    {0.3, "0.3"},
    {0.30000000000000004, "0.3"},
    {1.005, "1.005"},
    {2.675, "2.675"},
    {1.123456789, "1.1234568"},
    {-1.123456789, "-1.1234568"},
    {1.12345674, "1.1234567"},
    {1.12345675, "1.1234568"},
    {-1.12345675, "-1.1234568"},
    {1.12345665, "1.1234567"},
    {0.00390625, "0.0039063"},
    {-0.00390625, "-.0039063"},
    {0.01171875, "0.0117188"},
    {0.0000001, "0.0000001"},
    {0.00000005, "0.0000001"},
    {-0.00000005, "-.0000001"},
    {0.000000049, "0"},
    {-0.000000049, "0"},
    {0.0000000499999999, "0"},
    {0.00000015, "0.0000002"},
    {0.00000025, "0.0000003"},
    {-1e-300, "0"},
    {5e-324, "0"},
    {0.9999999, "0.9999999"},
    {0.99999994, "0.9999999"},
    {0.99999995, "1"},
    {-0.99999995, "-1"},
    {9.99999995, "10"},
    {99.99999999, "100"},
    {999999.99999996, "1000000"},
    {123456.7, "123456.7"},
    {8640.4, "8640.4"},
    {1234567.1234567, "1234567.1234567"},
    {12345678.12345678, "12345678.1234568"},
    {123456789, "123456789"},
    {1234567890123, "1234567890123"},
    {123456789012345, "123456789012345"},
    {1234567890123456, "1234567890123456"},
    {9007199254740993, "9007199254740992"},
    {12345678901234568, "12345678901234568"},
    {-12345678901234568, "-12345678901234568"},
    {1e15, "1000000000000000"},
    {1e16, "10000000000000000"},
    {1e22, "10000000000000000000000"},
    {1e-7, "0.0000001"},
    {1e-8, "0"},
    {3.141592653589793, "3.1415927"},
    {2.718281828459045, "2.7182818"},
    {-3.141592653589793, "-3.1415927"},
    {4503599627370495.5, "4503599627370495.5"},
    {0.062499999, "0.0625"},
    {100000000000, "100000000000"},
    {-6123.4567891, "-6123.4567891"},
    {0.33333333333333331, "0.3333333"},
    {0.66666666666666663, "0.6666667"},
    {-0.66666666666666663, "-.6666667"},
};

TEST(FormattaNumero, WritesSevenDecimalsRoundedHalfAwayFromZeroOnTheDecimalText) {
    static_assert(std::size(numeriDiFile) >= 60);
    for (const auto& [valore, testo] : numeriDiFile) EXPECT_EQ(formattaNumero(valore), testo);
}

TEST(FormattaNumero, ReadsBackWithinHalfOfTheSeventhDecimal) {
    std::mt19937_64 caso(7);
    std::uniform_real_distribution<double> mantissa(-1, 1), esponente(-9, 8);
    for (int i = 0; i < 20000; ++i) {
        const double valore = mantissa(caso) * std::pow(10, esponente(caso));
        const std::string testo = formattaNumero(valore);
        const auto riletto = leggiNumero(testo);
        ASSERT_TRUE(riletto) << testo;
        // Half of the seventh decimal, and what a double of this size cannot tell apart.
        EXPECT_LE(std::fabs(*riletto - valore), 0.5e-7 + 3e-16 * std::fabs(valore)) << testo;
        EXPECT_EQ(formattaNumero(*riletto), testo);  // a text once written never changes again
    }
}

TEST(FormattaNumero, RefusesAValueThatIsNotFinite) {
    EXPECT_THROW(static_cast<void>(formattaNumero(std::nan(""))), ErroreValore);
    EXPECT_THROW(static_cast<void>(formattaNumero(std::numeric_limits<double>::infinity())),
                 ErroreValore);
}

TEST(FormattaMaschera, PadsTheIntegerPartAndCutsTheFractionToThePicture) {
    EXPECT_EQ(formattaMaschera(3.14159, "###.##"), "  3.14");
    EXPECT_EQ(formattaMaschera(2, "###"), "  2");
    EXPECT_EQ(formattaMaschera(0, "###.##"), "  0.00");
    EXPECT_EQ(formattaMaschera(123, "###.##"), "123.00");
    EXPECT_EQ(formattaMaschera(0.25, "#.#"), "0.3");
    EXPECT_EQ(formattaMaschera(7, "00"), " 7");
    EXPECT_EQ(formattaMaschera(2.5, "##."), " 3");
}

TEST(FormattaMaschera, LetsALongIntegerPartPushTheFractionOut) {
    EXPECT_EQ(formattaMaschera(1234.5, "###.##"), "1234.5");     // four digits, then two characters
    EXPECT_EQ(formattaMaschera(123456.78, "###.##"), "123456");  // as long as the picture
    EXPECT_EQ(formattaMaschera(1234567.8, "###.##"), "1234567");  // longer: the integer part alone
    EXPECT_EQ(formattaMaschera(1234, "###"), "1234");
}

TEST(FormattaMaschera, RoundsHalfUpAlsoBelowZero) {
    EXPECT_EQ(formattaMaschera(-0.5, "####.###"), "   -.500");
    EXPECT_EQ(formattaMaschera(-2.5, "###"), " -2");
    EXPECT_EQ(formattaMaschera(2.5, "###"), "  3");
    EXPECT_EQ(formattaMaschera(-12.25, "###.#"), "-12.2");
}

TEST(FormattaDecimali, CutsTheFourDecimalTextWithoutRoundingItAgain) {
    EXPECT_EQ(formattaDecimali(0.5, 3), "0.500");
    EXPECT_EQ(formattaDecimali(1250, 2), "1250.00");
    EXPECT_EQ(formattaDecimali(1.239, 2), "1.23");
    EXPECT_EQ(formattaDecimali(1.99999, 2), "2.00");  // the four-decimal text is 2
    EXPECT_EQ(formattaDecimali(1.99994, 2), "1.99");
    EXPECT_EQ(formattaDecimali(0, 2), "0.00");
    EXPECT_EQ(formattaDecimali(100, 2), "100.00");
    EXPECT_EQ(formattaDecimali(1.4, 2), "1.40");
    EXPECT_EQ(formattaDecimali(12.5, 12), "12.500000000000");
    EXPECT_EQ(formattaDecimali(12.5, 0), "12.");
    EXPECT_EQ(formattaDecimali(12.5, -1), "12");
}

TEST(FormattaDecimali, KeepsNoZeroBeforeThePointOfANegativeValue) {
    EXPECT_EQ(formattaDecimali(-0.5, 2), "-.50");
    EXPECT_EQ(formattaDecimali(-0.001, 2), "-.00");
    EXPECT_EQ(formattaDecimali(-0.00004, 2), "0.00");
    EXPECT_EQ(formattaDecimali(-1.5, 2), "-1.50");
}

TEST(TestoNumero, IsPlainDecimalTextOfFifteenDigits) {
    const std::pair<double, const char*> casi[] = {
        {0, "0"},
        {-0.0, "0"},
        {0.5, "0.5"},
        {-0.5, "-0.5"},
        {12, "12"},
        {1e-5, "0.00001"},
        {0.1 + 0.2, "0.3"},
        {123456789.125, "123456789.125"},
        {1.0 / 3, "0.333333333333333"},
        {-2.0 / 3, "-0.666666666666667"},
        {1e20, "100000000000000000000"},
        {12345678901234567., "12345678901234600"},
    };
    for (const auto& [valore, testo] : casi) EXPECT_EQ(testoNumero(valore), testo);
}

TEST(LeggiNumero, TakesTheLongestNumericPrefix) {
    const std::pair<const char*, double> casi[] = {
        {"12", 12}, {"  12", 12},   {"+3", 3},     {"-.5", -0.5},  {".5", 0.5},   {"5.", 5},
        {"1 2", 1}, {"1d3", 1},     {"1e3", 1000}, {"1E-2", 0.01}, {"1e", 1},     {"1e+", 1},
        {"2,5", 2}, {"3.4.5", 3.4}, {"7abc", 7},   {"-0", 0},      {"1e-999", 0}, {"12 \r", 12},
    };
    for (const auto& [testo, valore] : casi) {
        const auto letto = leggiNumero(testo);
        ASSERT_TRUE(letto) << testo;
        EXPECT_DOUBLE_EQ(*letto, valore) << testo;
    }
}

TEST(LeggiNumero, FindsNoneInATextThatBeginsWithNone) {
    for (const char* testo :
         {"", "   ", "abc", "-", "+", ".", "-.", "e5", "--1", "inf", "nan", "1e999", "-1e999"})
        EXPECT_FALSE(leggiNumero(testo)) << testo;
}

TEST(LeggiNumero, TellsTooSmallFromTooLargeByTheFirstDigitThatIsNoZero) {
    const std::string zeri(400, '0');
    const std::pair<std::string, std::optional<double>> casi[] = {
        {"1" + std::string(390, '0'), std::nullopt},
        {"1" + std::string(390, '0') + ".5", std::nullopt},
        {"1" + std::string(390, '0') + "e-390", 1},
        {"1" + zeri + "e-1", std::nullopt},
        {"0." + zeri + "1", 0},
        {"." + zeri + "1e+5", 0},
        {"0." + zeri + "1e5", 0},
        {"0." + zeri + "1e+402", 10},
        {zeri + "." + zeri + "1E+5", 0},
        {zeri + "1e-5", 1e-5},
        {"1e-400", 0},
        {"1e400", std::nullopt},
        {"1e999999999999999999999", std::nullopt},
        {"1e-99999999999999999999", 0},
        {"0e999999999", 0},
        {"0.000e+99999999999999999999", 0},
        {"2e308", std::nullopt},
        {"1e-330", 0},
    };
    for (const auto& [testo, valore] : casi) {
        EXPECT_EQ(leggiNumero(testo), valore) << testo;
        const auto negativo = leggiNumero("-" + testo);
        ASSERT_EQ(negativo.has_value(), valore.has_value()) << testo;
        EXPECT_TRUE(!negativo || std::signbit(*negativo)) << testo;
    }
}

// The oracle shifts the digits by hand: the value is 0.d1d2d3... times a power of ten, and only
// that power decides once it lies outside all doubles.
TEST(LeggiNumero, AgreesWithTheShiftedDigitsForAnyPlaceOfThePointAndAnyExponent) {
    std::mt19937 caso(4);
    const auto fino = [&caso](int massimo) {
        return std::uniform_int_distribution<int>(0, massimo)(caso);
    };
    int vuoti = 0, nulli = 0;
    for (int i = 0; i < 5000; ++i) {
        const int davanti = fino(700), dietro = fino(700), esponente = fino(1600) - 800;
        const int cifra = 1 + fino(8), punto = fino(davanti + 1 + dietro);
        std::string testo = std::string(static_cast<std::size_t>(davanti), '0') +
                            std::to_string(cifra) +
                            std::string(static_cast<std::size_t>(dietro), '0');
        testo.insert(static_cast<std::size_t>(punto), ".");
        const int potenza = punto - davanti - 1 + esponente;  // of the one digit
        const auto letto = leggiNumero(testo + "e" + std::to_string(esponente));
        if (potenza > 308) {
            EXPECT_FALSE(letto) << testo << ' ' << esponente;
            ++vuoti;
        } else if (potenza < -324) {
            EXPECT_EQ(letto, 0) << testo << ' ' << esponente;
            ++nulli;
        } else if (std::abs(potenza) < 308) {
            EXPECT_EQ(letto, std::stod(std::to_string(cifra) + "e" + std::to_string(potenza)));
        }
    }
    EXPECT_GT(vuoti, 500);
    EXPECT_GT(nulli, 500);
}

TEST(SoloUnNumero, LetsBlanksButNothingElseSurroundTheNumber) {
    for (const char* testo : {"50", " 50 ", "-7", "1.5", ".5", "5.", "1e999", "+3"})
        EXPECT_TRUE(soloUnNumero(testo)) << testo;
    for (const char* testo : {"", " ", "50abc", "50,7", "50 60", "cinquanta", "1e", "--1", "."})
        EXPECT_FALSE(soloUnNumero(testo)) << '"' << testo << '"';
}

TEST(TestoDecimali, RoundsHalfAwayFromZeroOnceAndPadsToItsDecimals) {
    const struct {
        double valore;
        int decimali, potenza;
        const char* testo;
    } casi[] = {
        {0, 2, 0, "0.00"},
        {-0.0, 2, 0, "0.00"},
        {1.005, 2, 0, "1.01"},
        {-1.005, 2, 0, "-1.01"},
        {-0.004, 2, 0, "0.00"},
        {-0.005, 2, 0, "-0.01"},
        {0.00004999, 4, 0, "0.0000"},
        {0.00005, 4, 0, "0.0001"},
        {2.99996, 4, 0, "3.0000"},
        {12, 4, 0, "12.0000"},
        {0.0000285, 4, 2, "0.0029"},  // 0.00285 cm
        {0.1234567, 2, 1, "1.23"},    // t m as kN m
        {-99.9996, 2, 1, "-1000.00"},
        {1.5, 0, 0, "2"},
        {-1.5, 0, 0, "-2"},
        {0.25, 0, 1, "3"},
        {1e22, 1, 0, "10000000000000000000000.0"},
    };
    for (const auto& [valore, decimali, potenza, testo] : casi)
        EXPECT_EQ(testoDecimali(valore, decimali, potenza), testo) << valore;
    EXPECT_THROW((void)testoDecimali(std::numeric_limits<double>::infinity(), 2), ErroreValore);
}

TEST(LeggiNumero, RecoversEveryDoubleFromItsShortestText) {
    std::mt19937_64 caso(11);
    std::uniform_real_distribution<double> mantissa(-1, 1), esponente(-14, 14);
    for (int i = 0; i < 5000; ++i) {
        const double valore = mantissa(caso) * std::pow(10, esponente(caso));
        EXPECT_NEAR(*leggiNumero(testoNumero(valore)), valore, std::fabs(valore) * 1e-14);
    }
}

TEST(TutteLeCifre, ReadBackAsTheSameDouble) {
    EXPECT_EQ(tutteLeCifre(0.1 + 0.2), "0.30000000000000004");
    EXPECT_EQ(tutteLeCifre(3), "3");
    EXPECT_EQ(tutteLeCifre(-0.0), "0");
    EXPECT_EQ(tutteLeCifre(std::numeric_limits<double>::infinity()), "");
}

}  // namespace
}  // namespace korven::base
