#include <gtest/gtest.h>

#include <cmath>

#include "support/chapter_bench.hpp"
#include "support/sample_projects.hpp"
#include "support/sample_sections.hpp"

namespace korven::report {
namespace {

using test::contesto;
using test::haTavola;
using test::numero;
using test::riga;
using test::tavola;
using test::testo;

constexpr double kN = 1e3;  // N

project::DatiProgetto muro(const project::Sezione& sezione, double sforzoNormale = 0) {
    auto dati = test::progettoSemplice();
    dati.sezione = sezione;
    dati.sforzoNormale = sforzoNormale;
    return dati;
}

project::Sezione conStaffe() {
    auto s = structure::paliArmati();
    s.armDiamStaffe = 1;
    s.armPassoStaffe = 20;
    return s;
}

Blocchi sezione(const Contesto& c) { return test::blocchi(capitoloSezione, c); }

TEST(CapitoloSezione, HoldsTheChecksOfTheDossier) {
    const Contesto c = contesto(muro(structure::diaframmaSimmetrico()));
    const auto p = tavola(sezione(c), "Verifiche");
    const auto& flessione = *c.fascicolo->controlli.flessione;
    ASSERT_EQ(p.righe.size(), 2U);
    EXPECT_EQ(numero(p, 0, 1), 10 * flessione.mdMax);
    EXPECT_EQ(numero(p, 0, 2), 10 * flessione.mrPos);
    EXPECT_NEAR(numero(p, 0, 3), 100 * flessione.mdMax / flessione.mrPos, 1e-9);
    EXPECT_EQ(numero(p, 0, 4), c.fascicolo->controlli.positivo.fase);
    EXPECT_EQ(numero(p, 0, 5), c.fascicolo->controlli.positivo.z);
    EXPECT_EQ(p.righe[0][6].testo, flessione.fallitaPos() ? "NON verificata" : "verificata");
    EXPECT_EQ(numero(p, 1, 1), 10 * flessione.mdMin);
}

// A reader adds the rows up with a pencil: forces to the axial force, moments to the resistance.
TEST(CapitoloSezione, HasForcesThatAddUpToTheResistance) {
    for (const double N : {0.0, 30.0}) {
        const Contesto c = contesto(muro(structure::diaframmaArmatoAValle(), N));
        const auto b = sezione(c);
        for (int verso = 1; verso <= 2; ++verso) {
            const auto p = tavola(b, "Forze nella sezione alla sua resistenza", verso);
            ASSERT_GE(p.righe.size(), 3U);
            double forza = 0, momento = 0;
            for (std::size_t i = 0; i + 1 < p.righe.size(); ++i) {
                forza += numero(p, i, 1);
                momento += numero(p, i, 4);
                EXPECT_NEAR(numero(p, i, 1) * numero(p, i, 3) / 1000, numero(p, i, 4), 1e-9);
            }
            const auto& lato =
                verso == 1 ? c.fascicolo->flessione->positivo : c.fascicolo->flessione->negativo;
            const std::size_t ultima = p.righe.size() - 1;
            EXPECT_NEAR(forza, numero(p, ultima, 1), 0.01);
            EXPECT_EQ(numero(p, ultima, 1), c.fascicolo->flessione->Nd / kN);
            EXPECT_NEAR(momento, numero(p, ultima, 4), 0.01);
            EXPECT_EQ(numero(p, ultima, 4), lato.MRd / kN / 1000);
        }
    }
}

TEST(CapitoloSezione, PutsTheValuesIntoTheFormulas) {
    const auto p = tavola(sezione(contesto(muro(structure::diaframmaSimmetrico(), 12))),
                          "Materiali e sforzo normale");
    const auto fcd = riga(p, "Resistenza di progetto del calcestruzzo");
    EXPECT_EQ(fcd[1].testo, "fcd = fck / γc");
    EXPECT_EQ(fcd[2].testo, "25.00 / 1.60");
    EXPECT_EQ(fcd[3].numero, 15.625);
    const auto Nd = riga(p, "Sforzo normale di progetto");
    EXPECT_EQ(Nd[2].testo, "1.40 · 120.00");
    EXPECT_NEAR(Nd[3].numero.value_or(0), 168, 1e-9);
    EXPECT_EQ(Nd[4].testo, "kN/m");
}

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

TEST(CapitoloSezione, DrawsTheDomainAndNamesTheStagesInIt) {
    const Contesto c = contesto(muro(structure::palancola()));
    const auto b = sezione(c);
    EXPECT_EQ(test::tutti<document::Figura>(b).size(), 1U);
    const auto p = tavola(b, "Le fasi nel dominio");
    ASSERT_EQ(p.righe.size(), 2U);
    EXPECT_NEAR(numero(p, 1, 2), 10 * c.fascicolo->nelDominio[1].momenti.mdMax, 1e-9);
    EXPECT_EQ(testo(b).find("calcestruzzo senza trazione"), std::string::npos);  // it has none
}

TEST(CapitoloSezione, SetsTheChecksOfTheReportBeside) {
    const Contesto c = contesto(muro(conStaffe()));
    ASSERT_TRUE(c.fascicolo->conRelazione());
    EXPECT_NE(testo(sezione(c)).find("Le verifiche della relazione"), std::string::npos);
}

TEST(CapitoloSezione, OfAWeakSectionSaysThatItFails) {
    auto debole = structure::diaframmaSimmetrico();
    debole.diametroMonte = debole.diametroValle = 0.2;
    const auto dati = muro(debole);
    const Contesto c = contesto(dati);
    ASSERT_TRUE(c.fascicolo->controlli.conAzioni);
    const auto b = sezione(c);
    EXPECT_NE(testo(b).find("NON verificata"), std::string::npos);
}

TEST(CapitoloSezione, OfAWallThatDoesNotStandHasTheResistancesAlone) {
    auto dati = muro(conStaffe());
    dati.profFase[1] = dati.profFase[2] = 11.9;
    dati.tirantiFase[2] = 0;
    const Contesto c = contesto(dati);
    ASSERT_EQ(c.fascicolo->parete.fasiInEquilibrio(), 0);
    const auto b = sezione(c);
    EXPECT_NE(testo(b).find("Azioni non note"), std::string::npos);
    const auto p = tavola(b, "Verifiche");
    ASSERT_EQ(p.righe.size(), 4U);
    EXPECT_EQ(p.righe[0][1].testo, "-");
    EXPECT_GT(numero(p, 0, 2), 0);
    EXPECT_FALSE(haTavola(b, "Confronto"));
}

TEST(CapitoloSezione, OfAnAxialForceBeyondTheSectionSaysThatNothingIsLeft) {
    const auto b = sezione(contesto(muro(structure::diaframmaSimmetrico(), 5000)));
    EXPECT_NE(testo(b).find("Nessun equilibrio con questo sforzo normale"), std::string::npos);
    EXPECT_FALSE(haTavola(b, "Forze nella sezione alla sua resistenza"));
}

TEST(CapitoloSezione, WithoutASectionSaysWhatIsMissing) {
    const auto b = sezione(contesto(test::progettoSemplice()));
    EXPECT_NE(testo(b).find("Sezione non definita"), std::string::npos);
    EXPECT_NE(testo(b).find("Nessuna verifica: la sezione non è definita."), std::string::npos);
    EXPECT_TRUE(test::tutti<document::Tavola>(b).empty());
}

}  // namespace
}  // namespace korven::report
