#include "dossier/section_values.hpp"

#include <gtest/gtest.h>

#include <cmath>
#include <utility>
#include <vector>

#include "structure/bending_resistance.hpp"
#include "support/sample_projects.hpp"
#include "support/sample_sections.hpp"

namespace korven::dossier {
namespace {

using project::DatiProgetto;
using project::Sezione;

DatiProgetto muro(const Sezione& sezione, double sforzoNormale = 0) {
    auto dati = test::progettoSemplice();
    dati.sezione = sezione;
    dati.sforzoNormale = sforzoNormale;
    return dati;
}

live::ControlliSezione controlli(const DatiProgetto& dati) {
    return live::controlliSezione(live::calcola(dati, 40), nullptr);
}

ValoriFlessione flessione(const DatiProgetto& dati) {
    const auto v = valoriFlessione(dati, controlli(dati));
    EXPECT_TRUE(v);
    return v.value_or(ValoriFlessione{});
}

// Moment of the internal forces about y = 0, and of the axial force at its place.
double momento(const LatoFlessione& l, const ValoriFlessione& v, int verso) {
    const auto M = [](const Interna& f) { return f.forza * f.y; };
    return verso * (M(l.acciaioTeso) - M(l.acciaioCompresso) - M(l.calcestruzzo) + v.Nd * v.yNd);
}

TEST(ValoriFlessioneTest, AddUpToTheAxialForceAndToTheResistance) {
    for (const Sezione& s :
         {structure::diaframmaSimmetrico(), structure::diaframmaArmatoAValle(),
          structure::paliTubolari(), structure::palancola(), structure::paliArmati()})
        for (const double N : {-20.0, 0.0, 40.0}) {
            const ValoriFlessione v = flessione(muro(s, N));
            const auto MRd = structure::resistenze(s, N);
            EXPECT_NEAR(v.positivo.MRd, -MRd[1], 1e-9 * std::fabs(MRd[1]));
            EXPECT_NEAR(v.negativo.MRd, MRd[2], 1e-9 * std::fabs(MRd[2]));
            for (const auto& [l, verso] : {std::pair(v.positivo, -1), std::pair(v.negativo, 1)}) {
                if (l.MRd == 0) continue;
                EXPECT_NEAR(l.calcestruzzo.forza + l.acciaioCompresso.forza - l.acciaioTeso.forza,
                            v.Nd, 1);
                EXPECT_NEAR(momento(l, v, verso), l.MRd, 1e-9 * std::fabs(l.MRd) + 1);
                EXPECT_NEAR(l.x, v.H * l.epsCompresso / (l.epsCompresso - l.epsTeso), 1e-9);
            }
        }
}

TEST(ValoriFlessioneTest, TurnWithTheFacesOfTheWall) {
    Sezione s = structure::diaframmaSimmetrico();
    s.diametroMonte = 1.6;
    s.copriferroMonte = 7;
    Sezione girata = s;
    std::swap(girata.diametroMonte, girata.diametroValle);
    std::swap(girata.copriferroMonte, girata.copriferroValle);
    const ValoriFlessione v = flessione(muro(s, 15)), g = flessione(muro(girata, 15));
    EXPECT_NE(v.positivo.MRd, v.negativo.MRd);
    EXPECT_NEAR(v.yNd, v.H - g.yNd, 1e-9);
    for (const auto& [uno, altro] :
         {std::pair(v.positivo, g.negativo), std::pair(v.negativo, g.positivo)}) {
        EXPECT_NEAR(uno.MRd, altro.MRd, 1e-6 * uno.MRd);
        EXPECT_NEAR(uno.x, altro.x, 1e-4);
        EXPECT_EQ(uno.limite, altro.limite);
        EXPECT_NEAR(uno.epsCompresso, altro.epsCompresso, 1e-8);
        EXPECT_NEAR(uno.calcestruzzo.forza, altro.calcestruzzo.forza, 2);
        EXPECT_NEAR(uno.calcestruzzo.y, v.H - altro.calcestruzzo.y, 1e-3);
        EXPECT_NEAR(uno.acciaioTeso.forza, altro.acciaioTeso.forza, 2);
        EXPECT_NEAR(uno.acciaioTeso.y, v.H - altro.acciaioTeso.y, 1e-3);
    }
}

// 600 mm of concrete with 2262 mm2 a metre at 62 mm from the stretched face; an integration of the
// parabola-rectangle in 200,000 layers at an elongation of 0.01 at 50 mm, the cover, gives a
// shortening of 0.0020634, x = 94.08 mm, C = T = 845.77 kN at y = 564.53 and 425.03 kN m.
TEST(ValoriFlessioneTest, MatchTheIntegrationOfASectionWithBarsOnOneSide) {
    const ValoriFlessione v = flessione(muro(structure::diaframmaArmatoAValle()));
    EXPECT_NEAR(v.As, 2261.95, 0.01);
    EXPECT_NEAR(v.Ac, 600000 - 2261.95, 0.01);
    EXPECT_DOUBLE_EQ(v.fcd, 15.625);
    EXPECT_DOUBLE_EQ(v.fyd, 430 / 1.15);
    const LatoFlessione& l = v.positivo;
    EXPECT_EQ(l.limite, LimiteSezione::allungamento);
    EXPECT_NEAR(l.epsCompresso, -0.0020634, 3e-6);
    EXPECT_NEAR(l.epsTeso, 0.0110967, 3e-6);
    EXPECT_NEAR(l.x, 94.08, 0.1);
    EXPECT_NEAR(l.calcestruzzo.forza, 845771, 1);
    EXPECT_NEAR(l.calcestruzzo.y, 564.53, 0.1);
    EXPECT_NEAR(l.acciaioTeso.forza, 845771, 1);
    EXPECT_NEAR(l.acciaioTeso.y, 62, 0.3);  // the strips that hold the bars
    EXPECT_NEAR(l.MRd, 425.03e6, 0.002 * 425.03e6);
    EXPECT_LT(v.negativo.MRd, 0.03 * l.MRd);  // no bars there
}

TEST(ValoriFlessioneTest, SetTheDesignMomentBesideTheResistance) {
    const auto dati = muro(structure::diaframmaSimmetrico(), 10);
    const auto c = controlli(dati);
    const ValoriFlessione v = flessione(dati);
    EXPECT_EQ(v.Nd, 140000);
    ASSERT_LT(c.flessione->mMin, 0);
    EXPECT_NEAR(v.negativo.Md, 1.4 * 1e7 * -c.flessione->mMin, 1e-6);
    ASSERT_TRUE(v.negativo.uso);
    EXPECT_DOUBLE_EQ(*v.negativo.uso, v.negativo.Md / v.negativo.MRd);
    EXPECT_EQ(v.negativo.verificato, *v.negativo.uso < 1);
    EXPECT_NEAR(v.negativo.MRd, -1e7 * c.flessione->mrNeg, 1);
}

TEST(ValoriFlessioneTest, HaveNoResistanceBeyondTheAxialForceOfTheSection) {
    const ValoriFlessione v = flessione(muro(structure::diaframmaSimmetrico(), 5000));
    EXPECT_GT(v.Nd, v.assiali.compressione);
    for (const LatoFlessione& l : {v.positivo, v.negativo}) {
        EXPECT_EQ(l.MRd, 0);
        EXPECT_EQ(l.limite, LimiteSezione::nessuno);
        EXPECT_FALSE(l.uso);
    }
}

// Bars on the downhill side alone that 20 t pull at the middle: the section is bent before the wall
// bends it.
TEST(ValoriFlessioneTest, CarryNothingWhereTheAxialForceAloneBendsTheSectionTheOtherWay) {
    const ValoriFlessione v = flessione(muro(structure::diaframmaArmatoAValle(), -20));
    EXPECT_LT(v.negativo.MRd, 0);
    EXPECT_FALSE(v.negativo.uso);
    EXPECT_FALSE(v.negativo.verificato);
    EXPECT_GT(v.positivo.MRd, 0);
}

TEST(ValoriFlessioneTest, AreNoneWithoutASection) {
    const auto dati = test::progettoSemplice();
    EXPECT_FALSE(valoriFlessione(dati, controlli(dati)));
    EXPECT_FALSE(valoriTaglio(dati, controlli(dati)));
    EXPECT_FALSE(
        valoriTaglio(muro(structure::paliArmati()), controlli(muro(structure::paliArmati()))));
}

// The pile of the shear check's own tests, by hand: d = 728, tauRd = 0.280543, k = 0.872,
// Vrd1 = 224091; a pile a metre.
TEST(ValoriTaglioTest, AreThoseOfTheHandCalculation) {
    Sezione s = structure::paliArmati();
    s.armDiamStaffe = 1;
    s.armPassoStaffe = 20;
    const auto dati = muro(s);
    const auto v = valoriTaglio(dati, controlli(dati));
    ASSERT_TRUE(v);
    EXPECT_DOUBLE_EQ(v->palo.d, 728);
    EXPECT_DOUBLE_EQ(v->palo.bw, 800);
    EXPECT_NEAR(v->palo.tauRd, 0.280543, 1e-6);
    EXPECT_NEAR(v->palo.k, 0.872, 1e-12);
    EXPECT_NEAR(v->palo.rhoL, 0.00932121, 1e-8);
    EXPECT_EQ(v->palo.sigmaCp, 0);
    EXPECT_NEAR(v->palo.Vrd1, 224091, 1);
    EXPECT_NEAR(v->palo.nu, 0.575, 1e-12);
    EXPECT_NEAR(v->palo.Asw, 157.0796, 1e-4);
    EXPECT_NEAR(v->palo.Vrd1 + v->palo.Vwd, 416503.79, 0.01);
    EXPECT_NEAR(v->metro.Vrd2, 2354.625, 1e-9);
    EXPECT_EQ(v->interasse, 1000);
    ASSERT_TRUE(v->usoArmatura);
    EXPECT_DOUBLE_EQ(*v->usoArmatura, v->metro.Vsd / v->metro.Vrd3);
    EXPECT_DOUBLE_EQ(*v->usoBielle, v->metro.Vsd / v->metro.Vrd2);
    EXPECT_NEAR(v->metro.Vsd, 14 * std::fabs(live::calcola(dati, 40).estremi.taglio.valore), 1e-9);
}

}  // namespace
}  // namespace korven::dossier
