#include "live/live_project.hpp"

#include <gtest/gtest.h>

#include "masks/editing.hpp"
#include "safety/words.hpp"
#include "structure/offered_stiffness.hpp"
#include "support/plain_masks.hpp"
#include "support/sample_projects.hpp"
#include "support/sample_sections.hpp"
#include "support/wall_files.hpp"

namespace korven::live {
namespace {

class ProgettoVivoTest : public ::testing::Test {
 protected:
    ProgettoVivoTest() { maschere.leggiMaschere(test::maschereSemplici(cartella)); }

    void digitaProfondita(const std::string& testo) {
        masks::preparaMaschera(maschere, masks::NumeroMaschera::fasi, dati, 0);
        auto testi = maschere.valoriTesto();
        testi[5] = testo;  // excavation of stage 2
        vivo.digita(maschere.corrente(), {masks::NumeroMaschera::fasi, {}, testi});
    }

    test::CartellaProvvisoria cartella;
    masks::Maschere maschere;
    project::DatiProgetto dati = test::progettoSemplice();
    ProgettoVivo vivo;
};

TEST_F(ProgettoVivoTest, KnowsNothingWithoutAProject) {
    vivo.guarda(nullptr);
    EXPECT_FALSE(vivo.aperto());
    EXPECT_FALSE(vivo.domanda());
    digitaProfondita("6");
    EXPECT_FALSE(vivo.aperto());
}

TEST_F(ProgettoVivoTest, FollowsWhatIsTypedAndGoesBackWhenTheFormIsLeft) {
    vivo.guarda(&dati);
    const auto prima = vivo.parete().estremi.spostamento.valore;
    digitaProfondita("6");
    EXPECT_EQ(vivo.dati().profFase[2], 6);
    EXPECT_GT(vivo.parete().estremi.spostamento.valore, prima);
    vivo.guarda(&dati);  // left without confirming
    EXPECT_EQ(vivo.dati(), dati);
    EXPECT_EQ(vivo.parete().estremi.spostamento.valore, prima);
}

TEST_F(ProgettoVivoTest, KeepsTheLastWallWhileWhatIsTypedIsNotValid) {
    vivo.guarda(&dati);
    digitaProfondita("6");
    digitaProfondita("6x");
    EXPECT_EQ(vivo.impedimento(), "riga 2, x: valore non ammesso");
    EXPECT_EQ(vivo.dati().profFase[2], 6);
    digitaProfondita("6.5");
    EXPECT_EQ(vivo.impedimento(), "");
    EXPECT_EQ(vivo.dati().profFase[2], 6.5);
    digitaProfondita("");
    vivo.guarda(&dati);
    EXPECT_EQ(vivo.impedimento(), "");
}

TEST_F(ProgettoVivoTest, TakesTheSectionThatIsTyped) {
    dati.rigidezzaEJ = 0;
    vivo.guarda(&dati);
    EXPECT_NE(vivo.parete().rifiuto, "");
    vivo.digita(structure::diaframmaSimmetrico());
    EXPECT_TRUE(vivo.parete().sta());
    EXPECT_EQ(vivo.dati().rigidezzaEJ, 0);
    EXPECT_EQ(vivo.parete().dati.rigidezzaEJ,
              structure::rigidezzaOfferta(structure::diaframmaSimmetrico()));
}

TEST_F(ProgettoVivoTest, AsksForTheSlowResultsOnceForEachWall) {
    vivo.guarda(&dati);
    ASSERT_TRUE(vivo.domanda());
    const auto prima = *vivo.domanda();
    EXPECT_EQ(vivo.lenti(), nullptr);
    const int versione = vivo.versione();
    vivo.guarda(&dati);
    EXPECT_EQ(vivo.versione(), versione);
    EXPECT_EQ(vivo.domanda()->numero, prima.numero);
    digitaProfondita("6");
    EXPECT_FALSE(vivo.rispondi(prima.numero, {}));  // of the wall before
    auto risultati = calcolaLenti(*vivo.domanda());
    ASSERT_TRUE(risultati.margine);
    EXPECT_TRUE(vivo.rispondi(vivo.domanda()->numero, std::move(risultati)));
    EXPECT_FALSE(vivo.domanda());
    ASSERT_NE(vivo.lenti(), nullptr);
    EXPECT_TRUE(vivo.lenti()->margine->sta());
}

TEST_F(ProgettoVivoTest, TellsTheLengthThatStandsOnceItIsKnown) {
    dati.profFase[2] = 9;
    dati.tirantiFase[2] = 0;
    vivo.guarda(&dati);
    ASSERT_TRUE(vivo.parete().perche);
    EXPECT_FALSE(vivo.parete().perche->lunghezza);
    const int versione = vivo.versione();
    vivo.rispondi(vivo.domanda()->numero, calcolaLenti(*vivo.domanda()));
    EXPECT_GT(vivo.versione(), versione);
    const auto& completo = *vivo.lenti()->margine->caduta()->perche;
    ASSERT_TRUE(completo.lunghezza);
    EXPECT_EQ(vivo.parete().perche->lunghezza, completo.lunghezza);
    EXPECT_EQ(safety::frase(*vivo.parete().perche), safety::frase(completo));
    EXPECT_NE(safety::frase(completo).find("di solito aiuta una paratia più lunga: circa"),
              std::string::npos);
}

TEST_F(ProgettoVivoTest, TellsOfAWallThatStandsThatTheRunFindsNoRestOnceItIsKnown) {
    dati = test::leggiMuro(KORVEN_WALLS "/oscilla_1.kvd");
    vivo.guarda(&dati);
    ASSERT_TRUE(vivo.parete().sta());
    EXPECT_EQ(vivo.parete().senzaRelazione, "");
    vivo.rispondi(vivo.domanda()->numero, calcolaLenti(*vivo.domanda()));
    EXPECT_EQ(vivo.parete().senzaRelazione,
              "in equilibrio, ma il calcolo per fasi non converge nella fase 2: niente "
              "relazione");
    dati = test::progettoSemplice();
    vivo.guarda(&dati);
    vivo.rispondi(vivo.domanda()->numero, calcolaLenti(*vivo.domanda()));
    EXPECT_EQ(vivo.parete().senzaRelazione, "");
}

TEST_F(ProgettoVivoTest, ShowsAnotherProjectInAllItsStagesAndKeepsTheCurve) {
    vivo.guarda(&dati, 1);
    vivo.mostra({.fase = 2, .curva = Curva::taglio});
    vivo.guarda(&dati, 1);
    EXPECT_EQ(vivo.vista(), (Vista{2, Curva::taglio}));
    const int versione = vivo.versione();
    vivo.guarda(&dati, 2);  // of the same values
    EXPECT_EQ(vivo.vista(), (Vista{0, Curva::taglio}));
    EXPECT_GT(vivo.versione(), versione);
    EXPECT_EQ(vivo.apertura(), 2);
}

TEST_F(ProgettoVivoTest, HasNothingSlowToComputeWhereARunIsRefused) {
    dati.nStrati = 0;
    vivo.guarda(&dati);
    EXPECT_FALSE(vivo.domanda());
    ASSERT_NE(vivo.lenti(), nullptr);
    EXPECT_FALSE(vivo.lenti()->margine);
}

TEST_F(ProgettoVivoTest, AsksForTheDomainOfASectionWhoseWallIsRefused) {
    dati.nStrati = 0;
    dati.sezione = structure::diaframmaSimmetrico();
    vivo.guarda(&dati);
    ASSERT_TRUE(vivo.domanda());
    EXPECT_EQ(vivo.domanda()->nSeg, 0);
    vivo.rispondi(vivo.domanda()->numero, calcolaLenti(*vivo.domanda()));
    EXPECT_FALSE(vivo.lenti()->margine);
    EXPECT_FALSE(vivo.lenti()->dominio.empty());
}

TEST_F(ProgettoVivoTest, ShowsAStageThatThereIsAndComesBackToTheOneChosen) {
    vivo.guarda(&dati);
    vivo.mostra({.fase = 7, .curva = Curva::taglio});
    EXPECT_EQ(vivo.vista().fase, 2);
    EXPECT_EQ(vivo.vista().curva, Curva::taglio);
    vivo.mostra({.fase = 2});
    auto una = dati;
    una.nFasi = 1;
    vivo.guarda(&una);
    EXPECT_EQ(vivo.vista().fase, 1);
    vivo.guarda(&dati);
    EXPECT_EQ(vivo.vista().fase, 2);
}

}  // namespace
}  // namespace korven::live
