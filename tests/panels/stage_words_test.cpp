#include "panels/stage_words.hpp"

#include <gtest/gtest.h>

#include "base/code_page.hpp"
#include "masks/editing.hpp"
#include "support/plain_masks.hpp"
#include "support/sample_projects.hpp"
#include "support/wall_builder.hpp"
#include "support/wall_files.hpp"

namespace korven::panels {
namespace {

using test::muro;

// Anchors without stiffness have the forces that are written.
TEST(ParoleFase, TellTheLargestValuesAndTheForceOfEachAnchor) {
    const auto parete = live::calcola(muro()
                                          .lungo(10)
                                          .tirante(1.5, 0, 3)
                                          .tirante(3, 0, 2.5)
                                          .fase({.scavo = 4, .tiranti = 2})
                                          .dati(),
                                      40);
    ASSERT_TRUE(parete.sta());
    const std::string testo = paroleFase(parete, 1);
    EXPECT_TRUE(testo.starts_with("fase 1 in equilibrio: spostamento massimo ")) << testo;
    EXPECT_NE(testo.find(" mm a "), std::string::npos) << testo;
    EXPECT_NE(testo.find(", momento "), std::string::npos) << testo;
    EXPECT_NE(testo.find(", taglio "), std::string::npos) << testo;
    EXPECT_TRUE(testo.ends_with("; tiri: T1 30.0 kN/m, T2 25.0 kN/m")) << testo;
}

TEST(ParoleFase, TellTheExtremesOfTheStageAndNotOfAll) {
    auto dati = muro().lungo(10).fase({.scavo = 1}).fase({.scavo = 4}).dati();
    const std::string prima = paroleFase(live::calcola(dati, 40), 1);
    dati.profFase[2] = 4.5;
    EXPECT_EQ(paroleFase(live::calcola(dati, 40), 1), prima);
}

TEST(ParoleFase, TellWhichStageDoesNotStandAndWhichAreNotComputed) {
    const auto parete = live::calcola(
        muro().lungo(10).fase({.scavo = 1}).fase({.scavo = 9.5}).fase({.scavo = 9.5}).dati(), 40);
    ASSERT_EQ(parete.fasiInEquilibrio(), 1);
    const std::string cade = paroleFase(parete, 2);
    EXPECT_TRUE(cade.starts_with("la paratia è un meccanismo nella fase 2")) << cade;
    EXPECT_EQ(paroleFase(parete, 3), "la fase 3 non è calcolata: " + cade);
}

TEST(ParoleFase, TellWhyNothingIsComputed) {
    const auto parete = live::calcola(muro().lungo(0).dati(), 40);
    EXPECT_EQ(paroleFase(parete, 1), parete.rifiuto);
    EXPECT_NE(parete.rifiuto, "");
}

// The open table of a wall of two stages.
class RigheDelleFasi : public ::testing::Test {
 protected:
    RigheDelleFasi() {
        maschere.leggiMaschere(test::maschereSemplici(cartella));
        masks::preparaMaschera(maschere, masks::NumeroMaschera::fasi, dati, 0);
        testi = maschere.valoriTesto();
        vivo.guarda(&dati);
    }

    void digita(std::size_t cella, const std::string& testo) {
        testi.at(cella) = testo;
        vivo.digita(maschere.corrente(), {masks::NumeroMaschera::fasi, {}, testi});
    }

    [[nodiscard]] FaseDellaRiga riga(int quale) const {
        return faseDellaRiga(vivo, masks::ModelloGriglia(maschere.corrente(), testi), quale);
    }
    [[nodiscard]] std::string fase(int quale) const { return paroleFase(vivo.parete(), quale); }

    test::CartellaProvvisoria cartella;
    masks::Maschere maschere;
    project::DatiProgetto dati = test::progettoSemplice();
    live::ProgettoVivo vivo;
    std::vector<std::string> testi;
};

TEST_F(RigheDelleFasi, ShowTheStageThatTheyAre) {
    EXPECT_EQ(riga(2).fase, 2);
    EXPECT_EQ(riga(2).parole, base::conMaiuscola(fase(2)));
    EXPECT_NE(fase(1), fase(2));
}

TEST_F(RigheDelleFasi, KeepTheStageAboveWhereTheyAreEmpty) {
    EXPECT_EQ(riga(3).fase, 2);
    EXPECT_EQ(riga(3).parole, "La riga è vuota; " + fase(2));
    testi = {"0"};
    EXPECT_FALSE(riga(1).fase);
    EXPECT_EQ(riga(1).parole, "La riga è vuota");
}

TEST_F(RigheDelleFasi, ShowTheStageAsItWasWhileTheTableIsNotValid) {
    digita(5, "6x");
    EXPECT_EQ(riga(2).fase, 2);
    EXPECT_EQ(riga(2).parole,
              "Com'era prima delle modifiche in corso (riga 2, x: valore non ammesso): " + fase(2));
    digita(5, "6");
    EXPECT_EQ(riga(2).parole, base::conMaiuscola(fase(2)));
}

TEST_F(RigheDelleFasi, KeepTheStageAboveWhileOneIsBegun) {
    testi.insert(testi.end(), {"6", "1", "", ""});
    digita(0, "3");
    EXPECT_EQ(riga(3).fase, 2);
    EXPECT_EQ(riga(3).parole, "Riga 3: dati incompleti; " + fase(2));
}

TEST_F(RigheDelleFasi, ShowNothingWithoutAProject) {
    const auto nulla = faseDellaRiga({}, masks::ModelloGriglia(maschere.corrente(), testi), 1);
    EXPECT_FALSE(nulla.fase);
    EXPECT_EQ(nulla.parole, "");
}

}  // namespace
}  // namespace korven::panels
