#include "base/bound_units.hpp"

#include <gtest/gtest.h>

namespace korven::base {
namespace {

// The blank at which no line ends is written "_" here.
std::string unite(std::string_view testo) {
    std::string letto = unitaUnite(testo);
    for (std::size_t i; (i = letto.find("\u00a0")) != std::string::npos;) letto.replace(i, 2, "_");
    return letto;
}

TEST(UnitaUnite, BindsANumberToItsUnitAndThePartsOfAUnitToEachOther) {
    EXPECT_EQ(unite("mancano 35.1 kN m/m; al limite: 0-10 m"),
              "mancano 35.1_kN_m/m; al limite: 0-10_m");
    EXPECT_EQ(unite("EJ 120000 kN m²"), "EJ 120000_kN_m²");
    EXPECT_EQ(unite("EJ 12340 kN m²/m, diversa"), "EJ 12340_kN_m²/m, diversa");
    EXPECT_EQ(unite("usata: 80.1 %, (15.00 > 12.50 kN/m²)"),
              "usata: 80.1_%, (15.00 > 12.50_kN/m²)");
    EXPECT_EQ(unite("12.3 mm"), "12.3_mm");
    EXPECT_EQ(unite("Momento [kN m/m]"), "Momento [kN_m/m]");
    EXPECT_EQ(unite("k = 2843.8 kN/m/m, p = P + 1 kN/m"), "k = 2843.8_kN/m/m, p = P + 1_kN/m");
}

TEST(UnitaUnite, LeavesWordsThatBeginLikeAUnit) {
    EXPECT_EQ(unite("fase 3 mai, 2 tiranti, 4 m/s, 1 m³"), "fase 3 mai, 2 tiranti, 4 m/s, 1 m³");
    EXPECT_EQ(unite("kN m"), "kN m");
    EXPECT_EQ(unite(" m"), " m");
    EXPECT_EQ(unite("3 "), "3 ");
    EXPECT_EQ(unite(""), "");
}

TEST(UnitaUnite, ChangesNothingThatIsBoundAlready) {
    EXPECT_EQ(unitaUnite(unitaUnite("4 m e 5 kN m")), unitaUnite("4 m e 5 kN m"));
}

TEST(ParoleUnite, PartsALineAtTheBlanksThatBindNothing) {
    using Parole = std::vector<std::string_view>;
    EXPECT_EQ(paroleUnite("di 0.74 kN m/m, 20 % e 3 mesi"),
              (Parole{"di", "0.74 kN m/m,", "20 %", "e", "3", "mesi"}));
    EXPECT_EQ(paroleUnite("a  b "), (Parole{"a", "", "b", ""}));
    EXPECT_EQ(paroleUnite("(fase 2, z = 8.10 m)"), (Parole{"(fase", "2,", "z = 8.10 m)"}));
    EXPECT_EQ(paroleUnite("momento [kN m/m]"), (Parole{"momento", "[kN m/m]"}));
    EXPECT_EQ(paroleUnite("taglio 1.40 \u00b7 215.3 = 301.4 kN/m, 2 \u00b7 b"),
              (Parole{"taglio", "1.40 \u00b7 215.3 = 301.4 kN/m,", "2", "\u00b7", "b"}));
    EXPECT_EQ(paroleUnite("x = -1, y = a"), (Parole{"x = -1,", "y", "=", "a"}));
    EXPECT_EQ(paroleUnite("4 m"), Parole{"4 m"});
    EXPECT_EQ(paroleUnite(""), Parole{""});
}

}  // namespace
}  // namespace korven::base
