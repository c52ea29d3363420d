#include <gtest/gtest.h>

#include <string>

#include "report/annex/section_bench.hpp"

namespace korven::report {
namespace {

using test::conStaffe;
using test::contesto;
using test::muro;
using test::riga;
using test::sezione;
using test::tavola;
using test::testo;

constexpr double kN = 1e3;  // N

// Bars of 24 mm in a ring, cover 60: d = 800 - 60 - 12 = 728 mm.
TEST(CapitoloSezione, FollowsTheShearFromAPileToAMetre) {
    const Contesto c = contesto(muro(conStaffe()));
    const auto p = tavola(sezione(c), "Resistenza a taglio");
    const auto& v = *c.fascicolo->taglio;
    const auto d = riga(p, "Altezza utile");
    EXPECT_EQ(d[2].testo, "800.0 - 60.0 - 24.0 / 2");
    EXPECT_EQ(d[3].numero, 728);
    EXPECT_NEAR(riga(p, "Coefficiente k, senza limite")[3].numero.value_or(0), 0.872, 1e-12);
    EXPECT_NEAR(riga(p, "Area di una staffa, due bracci")[3].numero.value_or(0), 157.0796, 1e-4);
    EXPECT_EQ(riga(p, "Bielle di calcestruzzo, un palo")[3].numero, v.palo.resistente.Vrd2 / kN);
    EXPECT_EQ(riga(p, "Armatura d'anima, un palo")[3].numero, v.palo.resistente.Vrd3 / kN);
    const auto metro = riga(p, "Armatura d'anima, un metro");
    EXPECT_EQ(metro[3].numero, v.metro.Vrd3);
    EXPECT_EQ(metro[1].testo, "VRd3' = VRd3 / i");
    EXPECT_EQ(riga(p, "Taglio di progetto")[3].numero, v.metro.Vsd);
    EXPECT_NEAR(riga(p, "Sfruttamento dell'armatura")[3].numero.value_or(0), 100 * *v.usoArmatura,
                1e-9);
    EXPECT_EQ(tavola(sezione(c), "Verifiche").righe.size(), 4U);
}

TEST(CapitoloSezione, SaysWhereTheShearCheckLeavesItsCode) {
    const Contesto c = contesto(muro(conStaffe(), -20));
    const auto p = tavola(sezione(c), "Dove la verifica si scosta da ENV 1992-1-1");
    ASSERT_EQ(p.righe.size(), 6U);
    const auto k = riga(p, "k");  // 0.872, below 1
    EXPECT_EQ(k[2].testo, "0.8720");
    EXPECT_EQ(k[3].testo, "resistenza minore: a favore di sicurezza");
    EXPECT_EQ(riga(p, "ρl")[3].testo, "resistenza maggiore: a sfavore di sicurezza");
    EXPECT_EQ(riga(p, "bw")[2].testo, "il diametro: 800.0 mm");
    EXPECT_EQ(riga(p, "σcp")[3].testo, "resistenza maggiore: a sfavore di sicurezza");  // tension
}

TEST(CapitoloSezione, WithoutAShearCheckSaysWhyAndWhatIsLeftToCheck) {
    const Contesto c = contesto(muro(structure::diaframmaSimmetrico()));
    const std::string detto = testo(sezione(c));
    EXPECT_NE(detto.find("Il programma non ha una verifica a taglio per i diaframmi. Da verificare "
                         "a parte: taglio di progetto 1.40 · "),
              std::string::npos);
}

}  // namespace
}  // namespace korven::report
