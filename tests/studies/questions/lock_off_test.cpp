#include "studies/questions/lock_off.hpp"

#include <gtest/gtest.h>

#include "equilibrium/staged_equilibrium.hpp"
#include "project/codes.hpp"
#include "studies/questions/question_words.hpp"
#include "support/wall_builder.hpp"

namespace korven::studies {
namespace {

using project::DatiProgetto;

// An anchor at 1.5 m, stressed in stage 2 of 3.
DatiProgetto ancorata(double rigidezza = 800) {
    return test::muro()
        .lungo(12)
        .rigido(20000)
        .strato({.fondo = 30, .phi = 32, .ks = 3000})
        .tirante(1.5, rigidezza)
        .fase({.scavo = 2})
        .fase({.scavo = 2, .tiranti = 1})
        .fase({.scavo = 6, .tiranti = 1})
        .dati();
}

double forza(DatiProgetto dati, double pretensione, int fase) {
    dati.pretTirante[1] = pretensione;
    return equilibrium::calcolaEquilibrio(dati, 50)
        .at(static_cast<std::size_t>(fase) - 1)
        .tiri.at(0);
}

TEST(CercaBloccaggio, GivesTheForceAtTheEndOfTheFirstStageOfTheAnchor) {
    for (const double chiesta : {1.0, 3.0, 8.0, 20.0}) {
        const Bloccaggio b = cercaBloccaggio(ancorata(), 50, 1, chiesta);
        ASSERT_EQ(b.esito, EsitoBloccaggio::trovato) << chiesta;
        EXPECT_EQ(b.fase, 2);
        EXPECT_NEAR(b.forza, chiesta, 2e-7);  // prestresses have seven decimals
        EXPECT_NEAR(forza(ancorata(), b.pretensione, 2), chiesta, 2e-7);
        // The wall gives way: more is to be put in than stays.
        EXPECT_GT(b.pretensione, chiesta);
        ASSERT_EQ(b.forze.size(), 2U);
        EXPECT_EQ(b.forze[0], b.forza);
        EXPECT_EQ(b.forze[1], forza(ancorata(), b.pretensione, 3));
        EXPECT_EQ(b.perche, "");
    }
}

// Of an anchor without stiffness the force is its prestress.
TEST(CercaBloccaggio, IsTheForceItselfForAnAnchorThatDoesNotGive) {
    const Bloccaggio b = cercaBloccaggio(ancorata(0), 50, 1, 5);
    ASSERT_EQ(b.esito, EsitoBloccaggio::trovato);
    EXPECT_EQ(b.pretensione, 5);
    EXPECT_EQ(b.forza, 5);
}

// The claim that the bracket stands on, over both kinds of anchors and stiffnesses.
TEST(CercaBloccaggio, FindsARootSinceTheForceNeverFallsWithThePrestress) {
    for (const double rigidezza : {0.0, 50.0, 800.0, 50000.0})
        for (const double tipo : {0.0, 1.0}) {
            DatiProgetto dati = ancorata(rigidezza);
            dati.tipoTirante[1] = tipo;
            double prima = -1e9;
            for (double p = 0; p < 40; p += 1.7) {
                const double T = forza(dati, p, 2);
                EXPECT_GE(T, prima - 1e-9) << rigidezza << ' ' << p;
                prima = T;
            }
        }
}

TEST(CercaBloccaggio, SaysWhatCanBeReachedWhereTheForceCannot) {
    // Put in place and dug out in one stage the anchor pulls without any prestress.
    DatiProgetto dati = ancorata();
    dati.profFase[2] = 5;
    const double senza = forza(dati, 0, 2);
    ASSERT_GT(senza, 1);
    const Bloccaggio poco = cercaBloccaggio(dati, 50, 1, senza / 2);
    EXPECT_EQ(poco.esito, EsitoBloccaggio::sotto);
    EXPECT_EQ(poco.pretMinima, 0);
    EXPECT_EQ(poco.forzaMinima, senza);
    // The ground behind gives way at last.
    const Bloccaggio troppo = cercaBloccaggio(dati, 50, 1, 9000);
    ASSERT_EQ(troppo.esito, EsitoBloccaggio::sopra);
    EXPECT_LT(troppo.forzaMassima, 9000);
    const double massima = troppo.pretMassima;
    EXPECT_NEAR(forza(dati, massima, 2), troppo.forzaMassima, 1e-9);
    const Bloccaggio quasi = cercaBloccaggio(dati, 50, 1, 0.99 * troppo.forzaMassima);
    EXPECT_EQ(quasi.esito, EsitoBloccaggio::trovato);
    EXPECT_NEAR(quasi.forza, 0.99 * troppo.forzaMassima, 1e-6);
}

TEST(CercaBloccaggio, SaysThatNoStageHasTheAnchorOrThatAnEarlierOneFalls) {
    DatiProgetto dati = ancorata();
    dati.tirantiFase[2] = dati.tirantiFase[3] = 0;
    EXPECT_EQ(cercaBloccaggio(dati, 50, 1, 5).esito, EsitoBloccaggio::maiInOpera);
    dati = ancorata();
    dati.profFase[1] = 11.9;
    const Bloccaggio b = cercaBloccaggio(dati, 50, 1, 5);
    EXPECT_EQ(b.esito, EsitoBloccaggio::primaCade);
    EXPECT_EQ(b.fase, 1);
    EXPECT_EQ(risposta(b, 1, 5), "La fase 1, prima del tirante 1, non è in equilibrio.");
}

TEST(CercaBloccaggio, TellsAStageThatFallsAfterTheAnchorIsStressed) {
    DatiProgetto dati = ancorata();
    dati.profFase[3] = 11.9;
    const Bloccaggio b = cercaBloccaggio(dati, 50, 1, 5);
    EXPECT_EQ(b.esito, EsitoBloccaggio::trovato);
    EXPECT_EQ(b.forze.size(), 1U);
    EXPECT_NE(b.perche, "");
}

TEST(CercaBloccaggio, IsToldInKilonewtons) {
    const Bloccaggio b = cercaBloccaggio(ancorata(0), 50, 1, 5);
    EXPECT_EQ(
        risposta(b, 1, 5),
        "Con pretTirante[1] = 50.000 kN/m il tirante ha 50.00 kN/m alla fine della fase 2, la "
        "prima in cui è in opera.");
}

}  // namespace
}  // namespace korven::studies
