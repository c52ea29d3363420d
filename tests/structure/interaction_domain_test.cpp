#include "structure/interaction_domain.hpp"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <random>

#include "structure/axial_resistance.hpp"
#include "structure/bending_resistance.hpp"
#include "support/sample_sections.hpp"

namespace korven::structure {
namespace {

using project::Sezione;

Sezione diaframmaDiverso() {
    Sezione s = diaframmaSimmetrico();
    s.diametroMonte = 1.2;
    return s;
}

std::vector<Sezione> esempi() {
    return {diaframmaSimmetrico(), diaframmaDiverso(), diaframmaArmatoAValle(),
            paliTubolari(),        palancola(),        paliArmati()};
}

double maggiore(const std::vector<PuntoDominio>& dominio) {
    double M = 0;
    for (const auto& p : dominio) M = std::max({M, -p.MRd1, p.MRd2});
    return M;
}

// The sample in mm: two flats of 200 x 20 mm a wave, less the room of a web, and two webs of 12 mm
// askew, which along the wall are 12 / cos(atan(100 / 190)) = 13.5606 mm; a wave is 4 x 100 + 2 x
// 200 = 800 mm long. Here as widths in mm per metre of wall.
constexpr double anima = 1000.0 / 800 * 2 * 13.560575;    // of the webs, over all 400 mm
constexpr double ala = 1000.0 / 800 * (200 - 13.560575);  // of each flat, over 20 mm
constexpr double H = 400, t = 20;

// A yield strain of 0.0035, where the check stops: no fibre yields before, and the resistance is
// the elastic modulus times the design strength.
TEST(DominioNM, OfASheetPileInPureBendingIsItsModulusTimesTheYieldStrength) {
    Sezione s = palancola();
    s.modEacciaio = 100000;
    s.fyk = 350 * 1.15;
    const double J = anima * H * H * H / 12 + 2 * ala * (t * t * t / 12 + t * 190 * 190);
    const double MRd = J / (H / 2) * 350;
    const auto dominio = dominioNM(s);
    const auto puro =
        std::find_if(dominio.begin(), dominio.end(), [](const auto& p) { return p.Nd == 0; });
    ASSERT_NE(puro, dominio.end());
    EXPECT_NEAR(puro->MRd2, MRd, 0.002 * MRd);
    EXPECT_NEAR(-puro->MRd1, MRd, 0.002 * MRd);
}

// Steel so stiff that every fibre yields: a force N is carried by a band of height N / (fyd webs)
// about the axis, as long as that lies between the flats, and the rest bends:
// M = Mpl - N^2 / (4 fyd webs).
TEST(DominioNM, OfASheetPileThatYieldsAllOverIsThePlasticOne) {
    Sezione s = palancola();
    s.modEacciaio = 2e8;
    const double fyd = 430 / 1.15;
    const double Mpl = fyd * (anima * H * H / 4 + 2 * ala * t * 190);
    int confrontati = 0;
    for (const auto& p : dominioNM(s)) {
        if (std::abs(p.Nd) > fyd * anima * (H - 2 * t)) continue;
        ++confrontati;
        const double atteso = Mpl - p.Nd * p.Nd / (4 * fyd * anima);
        EXPECT_NEAR(p.MRd2, atteso, 0.004 * Mpl) << p.Nd;
        EXPECT_NEAR(-p.MRd1, atteso, 0.004 * Mpl) << p.Nd;
    }
    EXPECT_GE(confrontati, 3);
}

TEST(DominioNM, OfASymmetricSectionIsSymmetric) {
    for (const Sezione& s : {diaframmaSimmetrico(), paliTubolari(), palancola(), paliArmati()}) {
        const auto dominio = dominioNM(s);
        for (const auto& p : dominio) EXPECT_NEAR(p.MRd2, -p.MRd1, 1e-3 * maggiore(dominio));
    }
}

TEST(DominioNM, ReachesFromTheForceThatTearsToTheOneThatCrushes) {
    for (const Sezione& s : esempi()) {
        const auto dominio = dominioNM(s);
        const auto forze = resistenzeAssiali(s);
        ASSERT_GE(dominio.size(), 10U);
        ASSERT_LE(dominio.size(), massimoPuntiDominio);
        EXPECT_NEAR(dominio.front().Nd, -forze.trazione, 1e-4 * forze.trazione);
        EXPECT_NEAR(dominio.back().Nd, forze.compressione, 1e-4 * forze.compressione);
        for (const auto* p : {&dominio.front(), &dominio.back()})
            EXPECT_NEAR(p->MRd1, p->MRd2, 1e-3 * maggiore(dominio));
    }
}

// At the squash load all concrete is at 0.85 fcd and all steel at fyd. Their forces turn about the
// middle of the plain area: 600 x 1000 mm of concrete, 5 bars of 24 mm at 62 mm from the downhill
// face, 238 mm below mid-depth.
TEST(DominioNM, EndsOffTheAxisWhereTheBarsDifferFromFaceToFace) {
    const Sezione s = diaframmaArmatoAValle();
    const double As = 5 * std::acos(-1.0) * 12 * 12;
    const double trazione = As * 430 / 1.15;
    const auto dominio = dominioNM(s);
    // In tension the bars alone pull, 238 mm from the middle: they bend the wall as a positive
    // moment does.
    EXPECT_NEAR(dominio.front().MRd1, -trazione * 238, 1e-3 * trazione * 238);
    EXPECT_GT(dominio.back().MRd1, 0);
}

TEST(DominioNM, HasTheVeryResistancesOfTheBendingCheck) {
    for (const Sezione& s : esempi())
        for (const auto& p : dominioNM(s)) {
            MomentiResistenti MRd;
            momentiResistenti(s, p.sforzoNormale, MRd);
            EXPECT_EQ(p.MRd1, MRd[1]);
            EXPECT_EQ(p.MRd2, MRd[2]);
            EXPECT_NEAR(p.Nd, 1.4 * 10000 * p.sforzoNormale, 1e-6 * std::abs(p.Nd) + 1e-9);
        }
}

TEST(DominioNM, IsConvexButForADentOfTheStrainLimits) {
    for (const Sezione& s : esempi()) {
        const auto d = dominioNM(s);
        // A curvature has fourteen binary digits. And where no bar is stretched, the limit of the
        // elongation, which is no yielding, leaves a dent.
        const bool ferriOvunque = !s.tipoDiaframma || s.diametroMonte > 0;
        const double rumore = (ferriOvunque ? 1e-3 : 6e-3) * maggiore(d);
        for (std::size_t i = 1; i + 1 < d.size(); ++i) {
            ASSERT_LT(d[i - 1].Nd, d[i].Nd);
            const double quota = (d[i].Nd - d[i - 1].Nd) / (d[i + 1].Nd - d[i - 1].Nd);
            EXPECT_GE(d[i].MRd2, std::lerp(d[i - 1].MRd2, d[i + 1].MRd2, quota) - rumore);
            EXPECT_LE(d[i].MRd1, std::lerp(d[i - 1].MRd1, d[i + 1].MRd1, quota) + rumore);
        }
    }
}

TEST(DominioNM, LeavesNoBendBetweenItsPoints) {
    std::mt19937 caso(7);
    for (const Sezione& s : esempi()) {
        const auto d = dominioNM(s);
        std::uniform_real_distribution<double> forza(d.front().Nd, d.back().Nd);
        for (int i = 0; i < 20; ++i) {
            const double Nd = forza(caso);
            const auto dopo =
                std::find_if(d.begin() + 1, d.end() - 1, [=](const auto& p) { return p.Nd >= Nd; });
            const auto prima = dopo - 1;
            const double quota = (Nd - prima->Nd) / (dopo->Nd - prima->Nd);
            MomentiResistenti MRd;
            momentiResistenti(s, Nd / 1.4 / 10000, MRd);
            EXPECT_NEAR(std::lerp(prima->MRd1, dopo->MRd1, quota), MRd[1], 0.01 * maggiore(d));
            EXPECT_NEAR(std::lerp(prima->MRd2, dopo->MRd2, quota), MRd[2], 0.01 * maggiore(d));
        }
    }
}

TEST(DominioNM, OfAPileWithoutBarsBeginsAtNoForce) {
    Sezione s = paliArmati();
    s.armNumLong = 0.8;
    const auto dominio = dominioNM(s);
    ASSERT_FALSE(dominio.empty());
    EXPECT_EQ(dominio.front().Nd, 0);
    EXPECT_NEAR(dominio.front().MRd2, 0, 0.01 * maggiore(dominio));
}

TEST(DominioNM, IsEmptyForASectionThatIsNotDefinedOrBeyondAllNumbers) {
    EXPECT_TRUE(dominioNM({}).empty());
    Sezione s = diaframmaSimmetrico();
    s.fck = 0;
    EXPECT_TRUE(dominioNM(s).empty());
    s = palancola();
    s.fyk = s.modEacciaio = std::numeric_limits<double>::max();
    EXPECT_TRUE(dominioNM(s).empty());
}

}  // namespace
}  // namespace korven::structure
