#include <gtest/gtest.h>

#include "project/codes.hpp"
#include "scene/scene.hpp"
#include "support/sample_projects.hpp"
#include "support/sample_sections.hpp"
#include "support/scene_parts.hpp"

// What the picture says in words: why a wall falls or nothing is shown, captions, the description.

namespace korven::scene {
namespace {

using test::dice;
using test::figure;
using test::muro;
using test::pianta;
using test::scenaDi;
using test::testi;

TEST(Scena, MovesAMechanismAndSaysWhy) {
    auto dati = test::progettoSemplice();
    dati.profFase[2] = 9;
    dati.tirantiFase[2] = 0;
    const auto parete = live::calcola(dati, 40);
    ASSERT_TRUE(parete.perche && parete.perche->moto);
    const Scena s = scenaDi(dati, {2});
    EXPECT_EQ(figure<Linea>(s, Elemento::muro).at(0).tratteggio, Tratteggio::linee);
    const auto mosso = figure<Area>(s, Elemento::meccanismo).at(0);
    EXPECT_EQ(mosso.tinta.ruolo, Ruolo::fondoMeccanismo);
    // Rigid: the moved head is as far from the wall as the mechanism says, against the toe.
    const Riquadro fermo = pianta(s);
    const double testa = mosso.punti[0].x - fermo.sinistra,
                 piede = mosso.punti[3].x - fermo.sinistra;
    EXPECT_NEAR(testa * parete.perche->moto->spostamento(12),
                piede * parete.perche->moto->spostamento(0), 1e-6);
    EXPECT_TRUE(dice(testi(s, Elemento::meccanismo), "passivo"));
    const auto note = testi(s, Elemento::nota);
    EXPECT_TRUE(std::any_of(note.begin(), note.end(), [](const std::string& t) {
        return t.find("la paratia è un meccanismo nella fase 2") == 0;
    }));
    // The stage before stands and is drawn as it is.
    EXPECT_EQ(figure<Linea>(scenaDi(dati, {1}), Elemento::muro).at(0).tratteggio,
              Tratteggio::nessuno);
}

TEST(Scena, NamesTheStageThatFallsAndTheStagesOfTheCurves) {
    auto dati = test::progettoSemplice();
    dati.profFase[2] = 9;
    dati.tirantiFase[2] = 0;
    EXPECT_TRUE(dice(testi(scenaDi(dati, {0}), Elemento::nota),
                     "fase 2 di 2  ·  scavo 9.00 m  ·  curve e tiranti: inviluppo delle fasi da 1 "
                     "a 1"));
    EXPECT_TRUE(dice(testi(scenaDi(dati, {2}), Elemento::nota), "fase 2 di 2  ·  scavo 9.00 m"));
}

TEST(Scena, SaysThatNothingIsKnownAfterAStageThatFalls) {
    auto dati = test::progettoSemplice();
    dati.profFase[1] = 9;
    dati.profFase[2] = 9.5;
    const auto note = testi(scenaDi(dati, {2}), Elemento::nota);
    EXPECT_TRUE(std::any_of(note.begin(), note.end(), [](const std::string& t) {
        return t.find("la fase 2 viene dopo la fase 1") == 0;
    }));
    EXPECT_TRUE(figure<Area>(scenaDi(dati, {2}), Elemento::meccanismo).empty());
}

TEST(Scena, SaysWhyNothingIsComputed) {
    auto dati = test::progettoSemplice();
    dati.rigidezzaEJ = 0;
    EXPECT_TRUE(dice(testi(scenaDi(dati, {0}), Elemento::nota),
                     "inviluppo  ·  disegnata la fase 2 di 2  ·  scavo 5.00 m"));
    const Scena s = scenaDi(dati, {1});
    EXPECT_TRUE(dice(testi(s, Elemento::nota), "fase 1 di 2  ·  scavo 2.00 m"));
    EXPECT_TRUE(dice(testi(s, Elemento::nota), "Il valore di EJ non è ancora stato definito."));
    EXPECT_TRUE(dice(testi(s, Elemento::curva), "nessuna curva"));
}

TEST(Scena, SaysWhereToBeginInAnEmptyProject) {
    project::DatiProgetto dati;
    project::azzera(dati);
    EXPECT_EQ(descrizione(live::calcola(dati, 40), {}),
              "progetto ancora vuoto. Per cominciare, nel menu Edizione: Stratigrafia, Parametri "
              "Diaframma, Descrizione Struttura, Fasi di Scavo");
}

TEST(Scena, SaysWhichFormsAreStillToBeFilledIn) {
    auto dati = test::progettoSemplice();
    dati.nFasi = 0;
    const std::string prima =
        "nessuna fase di scavo. Non sono ancora state definite le fasi di scavo, i calcoli non "
        "possono pertanto essere eseguiti. Ancora da compilare nel menu Edizione: ";
    EXPECT_EQ(descrizione(live::calcola(dati, 40), {}), prima + "Fasi di Scavo");
    dati.rigidezzaEJ = 0;
    EXPECT_EQ(descrizione(live::calcola(dati, 40), {}),
              prima + "Descrizione Struttura, Fasi di Scavo");
    // A method that does not go with the layers is no form that is still empty.
    dati = test::progettoSemplice();
    dati.metodoKs = project::valore(project::MetodoKs::bowles);
    dati.phiStrato[1] = 0;
    EXPECT_EQ(descrizione(live::calcola(dati, 40), {}).find("da compilare"), std::string::npos);
}

TEST(Scena, SaysWhatIsInTheWayOfWhatIsTyped) {
    const Scena s = scena(live::calcola(test::progettoSemplice(), 40), {2}, {900, 580},
                          MisuraStimata(), {.impedimento = "riga 3: dati incompleti"});
    EXPECT_TRUE(dice(testi(s, Elemento::nota),
                     "riga 3: dati incompleti: la figura mostra i valori precedenti"));
}

TEST(Scena, StaysWhereItIsWhateverIsSaidAboveIt) {
    auto dati = test::progettoSemplice();
    const Scena sta = scenaDi(dati, {2});
    EXPECT_NE(testi(sta, Elemento::nota).at(1).find("la fase 2 è in equilibrio: "),
              std::string::npos);
    const auto parete = live::calcola(dati, 40);
    const Scena impedita =
        scena(parete, {2}, {900, 580}, MisuraStimata(), {.impedimento = "riga 3: dati incompleti"});
    dati.rigidezzaEJ = 0;
    const Scena rifiutata = scenaDi(dati, {2});
    dati = test::progettoSemplice();
    dati.profFase[2] = 9;
    dati.tirantiFase[2] = 0;
    for (const Scena& s : {impedita, rifiutata, scenaDi(dati, {2})}) {
        EXPECT_EQ(s.yTesta, sta.yTesta);
        EXPECT_EQ(s.scala, sta.scala);
    }
}

TEST(Scena, KeepsTextsClearOfTheLinesOfOtherParts) {
    auto dati = test::progettoSemplice();
    dati.faldaMonte = 0;  // its depth would lie among the arrows of the surcharge
    const Scena s = scenaDi(dati, {2});
    for (const Testo& t : figure<Testo>(s, Elemento::acqua, 0))
        if (t.testo == "0.00 m") {
            EXPECT_GT(t.punto.y, s.y(0));
        }
    EXPECT_TRUE(dice(testi(s, Elemento::acqua), "0.00 m"));
}

TEST(Scena, WritesACaptionAboveAPictureWithoutWords) {
    const auto parete = live::calcola(test::progettoSemplice(), 40);
    const Scena s = scena(parete, {2}, {300, 300}, MisuraStimata(),
                          {.curva = false, .parole = false, .didascalia = "con F = 1.50"});
    EXPECT_TRUE(dice(testi(s, Elemento::nota), "con F = 1.50"));
}

TEST(Scena, NamesTheStiffnessAndWhereItComesFrom) {
    auto dati = test::progettoSemplice();
    EXPECT_TRUE(dice(testi(scenaDi(dati), Elemento::nota), "EJ 120000 kN m²/m"));
    dati.rigidezzaEJ = 0;
    dati.sezione = structure::diaframmaSimmetrico();
    const auto note = testi(scenaDi(dati), Elemento::nota);
    EXPECT_TRUE(std::any_of(note.begin(), note.end(), [](const std::string& t) {
        return t.find("kN m²/m dalla sezione") != std::string::npos;
    }));
}

TEST(Descrizione, TellsStageAndVerdictInOneText) {
    const auto dati = test::progettoSemplice();
    const std::string testo = descrizione(live::calcola(dati, 40), {2});
    EXPECT_EQ(testo.find("fase 2 di 2  ·  scavo 5.00 m. La fase 2 è in equilibrio: "), 0U);
    EXPECT_NE(testo.find(" mm, momento "), std::string::npos);
}

TEST(Descrizione, TellsTheValuesOfTheStageShownOrTheLargestOfAll) {
    auto parete = live::calcola(test::progettoSemplice(), 40);
    for (auto& y : parete.fasi[0].y) y = 0;
    parete.fasi[0].y[0] = 0.002;
    parete.estremi.spostamento.valore = 0.005;
    EXPECT_NE(
        descrizione(parete, {1}).find(". La fase 1 è in equilibrio: spostamento 2.0 mm, momento "),
        std::string::npos)
        << descrizione(parete, {1});
    EXPECT_NE(descrizione(parete, {0})
                  .find(". La paratia è in equilibrio; massimi di tutte le "
                        "fasi: spostamento 5.0 mm, momento "),
              std::string::npos)
        << descrizione(parete, {0});
}

TEST(Descrizione, TellsTheValuesOfAStageBeforeTheOneThatFalls) {
    auto dati = test::progettoSemplice();
    dati.profFase[2] = 9;
    dati.tirantiFase[2] = 0;
    const auto parete = live::calcola(dati, 40);
    EXPECT_NE(descrizione(parete, {1}).find("La fase 1 è in equilibrio: "), std::string::npos);
    EXPECT_EQ(descrizione(parete, {0}).find("massimi di tutte le fasi"), std::string::npos);
}

TEST(Descrizione, SaysThatTheReportHasNoNumbersBeforeThoseOfTheWall) {
    auto parete = live::calcola(test::progettoSemplice(), 40);
    parete.senzaRelazione = "niente relazione";
    const std::string testo = descrizione(parete, {});
    EXPECT_LT(testo.find("Niente relazione. La paratia è in equilibrio; massimi"), testo.size());
}

TEST(Scena, TellsInThePictureOfAllStagesWhichOnesHaveALoadOnTheExcavation) {
    auto dati = test::progettoSemplice();
    dati.sovraccFase[2] = 1.5;
    EXPECT_TRUE(dice(testi(scenaDi(dati, {0}), Elemento::sovraccarico, 2), "q 15 kN/m² (fase 2)"));
    EXPECT_TRUE(dice(testi(scenaDi(dati, {2}), Elemento::sovraccarico, 2), "q 15 kN/m²"));
    dati.sovraccFase[1] = 1.5;  // in all of them
    EXPECT_TRUE(dice(testi(scenaDi(dati, {0}), Elemento::sovraccarico, 2), "q 15 kN/m²"));
}

}  // namespace
}  // namespace korven::scene
