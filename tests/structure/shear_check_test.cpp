#include "structure/shear_check.hpp"

#include <gtest/gtest.h>

#include <cmath>
#include <numbers>
#include <string>
#include <utility>
#include <vector>

#include "support/sample_sections.hpp"

namespace korven::structure {
namespace {

using project::Sezione;
using std::numbers::pi;

// Pile of 800 mm, 12 bars of 24 mm, cover 60 mm; stirrups of 10 mm every 200 mm.
Sezione paloStaffato() {
    Sezione s = paliArmati();
    s.armDiamStaffe = 1;
    s.armPassoStaffe = 20;
    return s;
}

std::vector<std::string> righe(const ConfrontoTaglio& c) {
    const auto chiavi = righeRotturaTaglio(c);
    return {chiavi.begin(), chiavi.end()};
}

const std::string bielle = "Rottura delle bielle di calcestruzzo compresse";
const std::string anima = "Rottura dell'armatura d'anima";

// By hand: d = 728, bw = 800, tauRd = 0.25 x 0.7 x 0.3 x 25^(2/3) / 1.6 = 0.280543, k = 0.872,
// Asl = 12 pi 12^2 = 5428.67, rhoL = 0.00932121; Vrd1 = tauRd k (1.2 + 40 rhoL) 582400 = 224091;
// nu = 0.575, Vrd2 = 0.5 x 0.575 x 15.625 x 800 x 0.9 x 728;
// Vrd3 = Vrd1 + 373.913 x 728 x 0.9 x 2 pi 25 / 200.
TEST(VerificaTaglio, MatchesTheHandCalculation) {
    const TaglioResistente r = verificaTaglio(paloStaffato(), 0);
    EXPECT_NEAR(r.Vrd2, 2354625, 1e-6);
    EXPECT_NEAR(r.Vrd3, 416503.7908677715, 1e-6);
}

// 500 kN on pi 400^2 + 5428.67 (200000/30000 - 1) = 533418 mm2 press with 0.937352 N/mm2, which
// adds tauRd k 0.15 sigmaCp bw d: the term is inside the bracket.
TEST(VerificaTaglio, AxialCompressionRaisesTheConcreteShareAndTensionLowersIt) {
    const double senza = verificaTaglio(paloStaffato(), 0).Vrd3;
    const TaglioResistente r = verificaTaglio(paloStaffato(), 500000);
    EXPECT_NEAR(r.Vrd3, 436536.11526884197, 1e-6);
    EXPECT_NEAR(r.Vrd3 - senza, 0.28054292875164555 * 0.872 * 0.15 * 0.937352425861615 * 800 * 728,
                1e-6);
    EXPECT_NEAR(verificaTaglio(paloStaffato(), -500000).Vrd3, 2 * senza - r.Vrd3, 1e-6);
    EXPECT_EQ(r.Vrd2, verificaTaglio(paloStaffato(), 0).Vrd2);
}

// Vrd2 = 0.5 nu (fck / 1.6) bw 0.9 d
TEST(VerificaTaglio, StrutFactorFallsToOneHalfAtAStrengthOf40AndStaysThere) {
    const std::pair<double, double> casi[] = {{20, 0.6}, {30, 0.55}, {39, 0.505}, {40, 0.5},
                                              {41, 0.5}, {60, 0.5},  {200, 0.5}};
    for (auto [fck, nu] : casi) {
        Sezione s = paloStaffato();
        s.fck = fck;
        EXPECT_NEAR(verificaTaglio(s, 0).Vrd2 / (0.5 * fck / 1.6 * 800 * 0.9 * 728), nu, 1e-12)
            << fck;
    }
}

// Without bars and stirrups worth counting, Vrd3 / (tauRd 1.2 bw d) is k = 1.6 - d / 1000.
TEST(VerificaTaglio, DepthFactorHasNoLowerBoundAndTurnsNegativeBeyond1600) {
    for (double profondita : {500.0, 600.0, 800.0, 1600.0, 1800.0}) {
        Sezione s = paloStaffato();
        s.armNumLong = 1e-12;
        s.armDiamStaffe = 1e-9;
        s.armDiamPalo = profondita / 10 + 6 + 1.2;
        const double bw = 10 * s.armDiamPalo;
        const double k = verificaTaglio(s, 0).Vrd3 / (0.28054292875164555 * 1.2 * bw * profondita);
        EXPECT_NEAR(k, 1.6 - profondita / 1000, 1e-9) << profondita;
    }
}

TEST(VerificaTaglio, BeyondADepthOf1600TheConcreteTakesFromTheStirrups) {
    Sezione s = paloStaffato();
    s.armDiamPalo = 200;  // d = 1928
    const double staffe = 430 / 1.15 * 1928 * 0.9 * 2 * pi * 25 / 200;
    EXPECT_LT(verificaTaglio(s, 0).Vrd3, staffe);
}

// rhoL has no upper bound: each bar adds tauRd k 40 Asl, the hundredth as much as the first.
TEST(VerificaTaglio, TakesTheBarsAsStoredAndWithoutAnUpperBound) {
    auto vrd3 = [](double numero) {
        Sezione s = paloStaffato();
        s.armNumLong = numero;
        return verificaTaglio(s, 0).Vrd3;
    };
    const double barra = 0.28054292875164555 * 0.872 * 40 * pi * 144;
    EXPECT_NEAR(vrd3(13) - vrd3(12), barra, 1e-6);
    EXPECT_NEAR(vrd3(101) - vrd3(100), barra, 1e-6);
    EXPECT_NEAR(vrd3(12) - vrd3(1.2), 10.8 * barra, 1e-6);  // not whole, and not times ten
}

TEST(VerificaTaglio, PileWithoutEffectiveDepthCarriesNothingRatherThanNoValue) {
    Sezione s = paloStaffato();
    s.armDiamPalo = 7.5;
    s.armCopriferro = 6.5;
    s.armDiamLong = 2;  // d = 0
    const TaglioResistente r = verificaTaglio(s, 0);
    EXPECT_EQ(r.Vrd2, 0);
    EXPECT_EQ(r.Vrd3, 0);
    EXPECT_EQ(righe(confrontaTaglio(r, 100, 1)).size(), 2u);
}

TEST(ConfrontaTaglio, SetsResistanceAndDesignShearOfOneMetreSideBySide) {
    // piles every 125 cm; 12 t/m
    const ConfrontoTaglio c = confrontaTaglio({.Vrd2 = 2500000, .Vrd3 = 400000}, 125, 12);
    EXPECT_DOUBLE_EQ(c.Vrd2, 2000);
    EXPECT_DOUBLE_EQ(c.Vrd3, 320);
    EXPECT_DOUBLE_EQ(c.taglioMassimo, 120);
    EXPECT_EQ(c.fsAzioni, 1.4);
    EXPECT_DOUBLE_EQ(c.Vsd, 168);
}

TEST(RigheRotturaTaglio, SayNothingWhenTheCheckPasses) {
    EXPECT_TRUE(
        righe({.Vrd2 = 200, .Vrd3 = 150, .taglioMassimo = 0, .fsAzioni = 1.4, .Vsd = 100}).empty());
}

TEST(RigheRotturaTaglio, ShearEqualToTheResistanceIsNoFailure) {
    EXPECT_TRUE(
        righe({.Vrd2 = 100, .Vrd3 = 100, .taglioMassimo = 0, .fsAzioni = 1.4, .Vsd = 100}).empty());
    EXPECT_EQ(righe({.Vrd2 = 100,
                     .Vrd3 = std::nextafter(100.0, 0.0),
                     .taglioMassimo = 0,
                     .fsAzioni = 1.4,
                     .Vsd = 100}),
              std::vector{anima});
}

TEST(RigheRotturaTaglio, TestStrutsAndReinforcementIndependently) {
    auto con = [](double Vrd2, double Vrd3) {
        return righe({.Vrd2 = Vrd2, .Vrd3 = Vrd3, .taglioMassimo = 0, .fsAzioni = 1.4, .Vsd = 100});
    };
    EXPECT_EQ(con(90, 110), std::vector{bielle});
    EXPECT_EQ(con(110, 90), std::vector{anima});
    EXPECT_EQ(con(90, 80), (std::vector{bielle, anima}));
}

}  // namespace
}  // namespace korven::structure
