#include <gtest/gtest.h>

#include <cmath>
#include <string>

#include "project/codes.hpp"
#include "report/annex/soil_tables.hpp"
#include "support/chapter_bench.hpp"
#include "support/sample_projects.hpp"
#include "support/sample_sections.hpp"

namespace korven::report {
namespace {

using project::DatiProgetto;
using test::contesto;
using test::numero;
using test::riga;
using test::tavola;

Blocchi terreno(const DatiProgetto& dati) { return test::blocchi(capitoloTerreno, contesto(dati)); }

bool dice(const tables::Prospetto& p, const std::string& pezzo) {
    for (const auto& nota : p.note)
        if (nota.find(pezzo) != std::string::npos) return true;
    return false;
}

// The first layer is of 30 degrees on level ground: 1/2, 1/3 and 3.
TEST(CapitoloTerreno, HasTheCoefficientsOfEachLayerByTheirFormulas) {
    const auto b = terreno(test::progettoSemplice());
    const auto p = tavola(b, "Coefficienti di spinta");
    ASSERT_EQ(p.righe.size(), 2U);
    EXPECT_NEAR(numero(p, 0, 5), 0.5, 1e-12);
    EXPECT_NEAR(numero(p, 0, 6), 1.0 / 3, 1e-12);
    EXPECT_NEAR(numero(p, 0, 7), 3, 1e-12);
    EXPECT_NEAR(numero(p, 1, 8), 10 * 0.5317094, 1e-5);
    const auto f = tavola(b, "Coefficienti di spinta, con i valori");
    EXPECT_EQ(f.righe[0][0].testo, "Strato 1, monte e valle");
    EXPECT_EQ(f.righe[0][2].testo, "(1 − sin 30.00°) / (1 + sin 0.00°)");
    EXPECT_EQ(f.righe[1][2].testo,
              "cos² 30.00° / (1 + √(sin 30.00° · sin(30.00° − 0.00°) / cos 0.00°))²");
    EXPECT_EQ(f.righe[1][3].testo, "0.3333");
}

// sin 12 = 0.2079117: 0.5 / 1.2079117 against 0.5 x 1.2079117.
TEST(CapitoloTerreno, SaysThatRisingGroundLowersThePressureAtRest) {
    DatiProgetto dati = test::progettoSemplice();
    dati.inclinazioneMonte = 12;
    const auto b = terreno(dati);
    const auto p = tavola(b, "Coefficienti di spinta");
    EXPECT_NEAR(numero(p, 0, 5), 0.4139375, 1e-6);
    EXPECT_NEAR(numero(p, 1, 5), 0.5, 1e-12);
    EXPECT_TRUE(dice(p, "dalla parte non sicura"));
    const auto f = tavola(b, "Coefficienti di spinta, con i valori");
    EXPECT_EQ(f.righe[1][0].testo, "Strato 1, monte, non usato");
    EXPECT_NEAR(numero(f, 1, 3), 0.6039558, 1e-6);
    EXPECT_FALSE(dice(tavola(terreno(test::progettoSemplice()), "Coefficienti di spinta"), "k0"));
}

// ks = A + B + C sigma' is the modulus of the nodes, above and below water.
TEST(CapitoloTerreno, HasTheModuliOfBowlesInThreeParts) {
    DatiProgetto dati = test::progettoSemplice();
    dati.metodoKs = project::valore(project::MetodoKs::bowles);
    const Contesto c = contesto(dati);
    const auto p = prospettoModuli(*c.fascicolo);
    const auto& monte = c.fascicolo->terreno.monte;
    const auto ks = [&](std::size_t strato, std::size_t b, std::size_t nodo) {
        return numero(p, strato, 4) + numero(p, strato, b) +
               numero(p, strato, 7) * 10 * (*monte[nodo].totale - *monte[nodo].acqua);
    };
    EXPECT_NEAR(ks(0, 5, 5), 10 * monte[5].ks, 1e-6);    // at 1.5 m
    EXPECT_NEAR(ks(0, 6, 12), 10 * monte[12].ks, 1e-6);  // at 3.6 m
    EXPECT_NEAR(ks(1, 6, 30), 10 * monte[30].ks, 1e-6);  // at 9 m
}

TEST(CapitoloTerreno, TellsTheEndsOfALinearModulus) {
    DatiProgetto dati = test::progettoSemplice();
    dati.metodoKs = project::valore(project::MetodoKs::lineare);
    const auto p = prospettoModuli(*contesto(dati).fascicolo);
    ASSERT_EQ(p.righe.size(), 3U);  // the last layer has a bottom of its own on each side
    EXPECT_EQ(numero(p, 1, 3), 120);
    EXPECT_EQ(numero(p, 2, 3), 20);
    EXPECT_EQ(numero(p, 2, 5), 30000);
}

TEST(CapitoloTerreno, HasAFormulaForEachMethodOfTheModulus) {
    for (const auto metodo :
         {project::MetodoKs::bowles, project::MetodoKs::lancellotta, project::MetodoKs::lineare}) {
        DatiProgetto dati = test::progettoSemplice();
        dati.metodoKs = project::valore(metodo);
        dati.coeffM = 100;
        EXPECT_TRUE(dice(prospettoModuli(*contesto(dati).fascicolo), "ks = "));
    }
}

TEST(CapitoloTerreno, EndsTheStiffnessWithWhatTheCalculationTakes) {
    for (const auto& sezione : {structure::diaframmaSimmetrico(), structure::paliTubolari(),
                                structure::palancola(), structure::paliArmati()}) {
        DatiProgetto dati = test::progettoSemplice();
        dati.sezione = sezione;
        const Contesto c = contesto(dati);
        const auto p = prospettoRigidezza(*c.fascicolo);
        ASSERT_GE(p.righe.size(), 2U);
        const std::size_t ultima = p.righe.size() - 1;
        EXPECT_EQ(numero(p, ultima, 3), 10 * *c.fascicolo->rigidezza.offerta);
        EXPECT_NEAR(numero(p, ultima - 1, 3), structure::calcolaEJ(sezione) / 1e9, 1e-6);
        EXPECT_NE(p.righe[ultima - 1][1].testo.find("EJ = "), std::string::npos);
        EXPECT_FALSE(p.note.empty());
    }
}

// Who follows the formula with a pencil takes the numbers of the rows above and of the data.
TEST(CapitoloTerreno, SetsIntoTheStiffnessTheNumbersThatArePrintedAboveIt) {
    const auto righe = [](const project::Sezione& sezione) {
        DatiProgetto dati = test::progettoSemplice();
        dati.sezione = sezione;
        return prospettoRigidezza(*contesto(dati).fascicolo);
    };
    const auto diaframma = righe(structure::diaframmaSimmetrico());
    EXPECT_EQ(riga(diaframma, "Rigidezza di un metro di paratia")[2].testo,
              "30000 · (800.0³/12 + (" + riga(diaframma, "Rapporto dei moduli")[3].testo +
                  " − 1) · (" + riga(diaframma, "Inerzia dell'armatura a monte")[3].testo + " + " +
                  riga(diaframma, "Inerzia dell'armatura a valle")[3].testo + ")) / 10⁶");
    const auto pali = righe(structure::paliArmati());
    EXPECT_EQ(riga(pali, "Rigidezza di un metro di paratia")[2].testo,
              "(30000 · π · 800.0⁴/64 + (200000 − 30000) · " +
                  riga(pali, "Inerzia delle barre")[3].testo + ") / 1000.0 / 10⁶");
}

// By hand: 12 mm of web across a slope of 100 in 190 are 12 sqrt(1 + (100/190)^2) = 13.5606 mm
// along the wall; 200 + 13.56, 2 190 + 20, 213.56 - 2 13.56, 400 - 2 20, 4 100 + 2 200.
TEST(CapitoloTerreno, FollowsASheetPileStepByStep) {
    DatiProgetto dati = test::progettoSemplice();
    dati.sezione = structure::palancola();
    const auto p = prospettoRigidezza(*contesto(dati).fascicolo);
    const std::pair<const char*, double> attesi[] = {{"c = s / cos(arctan(a / h))", 13.5606},
                                                     {"Be = b + c", 213.5606},
                                                     {"He = 2 · h + t", 400},
                                                     {"Bi = Be - 2 · c", 186.4394},
                                                     {"Hi = He - 2 · t", 360},
                                                     {"i = 4 · a + 2 · b", 800}};
    std::size_t riga = 0;
    for (const auto& [formula, valore] : attesi) {
        EXPECT_EQ(p.righe.at(riga)[1].testo, formula);
        EXPECT_NEAR(numero(p, riga, 3), valore, 1e-4) << formula;
        ++riga;
    }
    EXPECT_EQ(p.righe[0][2].testo, "12.00 / cos(arctan(100.0 / 190.0))");
    EXPECT_EQ(p.righe[2][2].testo, "2 · 190.0 + 20.0");
}

TEST(CapitoloTerreno, SaysWhoseAStiffnessWithoutASectionIs) {
    const auto testo = test::testo(terreno(test::progettoSemplice()));
    EXPECT_NE(testo.find("EJ = 120000 kN m²"), std::string::npos) << testo;
    EXPECT_NE(testo.find("il progetto non ha una sezione"), std::string::npos);
}

TEST(CapitoloTerreno, SaysWhatTheSymbolsOfAModulusAre) {
    auto dati = test::progettoSemplice();
    dati.metodoKs = project::valore(project::MetodoKs::lineare);
    EXPECT_TRUE(dice(tavola(terreno(dati), "Moduli delle molle"), "t, b: profondità della testa"));
    dati.metodoKs = project::valore(project::MetodoKs::bowles);
    const auto bowles = tavola(terreno(dati), "Moduli delle molle");
    EXPECT_TRUE(dice(bowles, "0.5 γ B Nγ nella portanza"));
    EXPECT_TRUE(dice(bowles, "40 è in 1/m"));
    dati.metodoKs = project::valore(project::MetodoKs::lancellotta);
    EXPECT_EQ(tavola(terreno(dati), "Moduli delle molle").colonne[1].unita, "√t/m²");
}

// (1 - sin 15) / (1 + sin 14.9) = 0.5898 against ka of 15 degrees under a slope of 14.9: 0.8759.
TEST(CapitoloTerreno, SaysOfWhichLayerThePressureAtRestIsBelowTheActiveOne) {
    DatiProgetto dati = test::progettoSemplice();
    dati.phiStrato[1] = 15;
    dati.inclinazioneMonte = 14.9;
    const auto p = tavola(terreno(dati), "Coefficienti di spinta");
    EXPECT_LT(numero(p, 0, 5), numero(p, 0, 6));
    EXPECT_TRUE(dice(p, "Strato 1: a monte k0 è minore di ka"));
    EXPECT_FALSE(dice(p, "Strato 2: a monte k0 è minore di ka"));
}

TEST(CapitoloTerreno, SaysThatFallingGroundRaisesThePressureAtRest) {
    DatiProgetto dati = test::progettoSemplice();
    dati.inclinazioneMonte = -12;
    const auto p = tavola(terreno(dati), "Coefficienti di spinta");
    EXPECT_NEAR(numero(p, 0, 5), 0.5 / (1 - 0.2079117), 1e-6);
    EXPECT_TRUE(dice(p, "dalla parte sicura"));
}

TEST(CapitoloTerreno, HasNoFormulaForBarsThatAreNotThere) {
    DatiProgetto dati = test::progettoSemplice();
    dati.sezione = structure::diaframmaArmatoAValle();
    const auto p = prospettoRigidezza(*contesto(dati).fascicolo);
    int senza = 0;
    for (const auto& r : p.righe)
        if (r[1].testo == "Am") {
            EXPECT_EQ(r[2].testo, "") << r[0].testo;
            EXPECT_EQ(r[3].numero, 0);
            ++senza;
        }
    EXPECT_EQ(senza, 1);
}

}  // namespace
}  // namespace korven::report
