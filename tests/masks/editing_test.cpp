#include "masks/editing.hpp"

#include <gtest/gtest.h>

#include "base/table.hpp"
#include "masks/field_model.hpp"
#include "masks/grid_model.hpp"
#include "support/dialog_double.hpp"
#include "support/plain_masks.hpp"
#include "support/temporary_folder.hpp"
#include "support/wall_builder.hpp"

namespace korven::masks {
namespace {

using Testi = std::vector<std::string>;

class Modifica : public ::testing::Test {
 protected:
    void SetUp() override {
        project::azzera(dati);
        maschere.leggiMaschere(test::maschereSemplici(cartella));
    }
    // A field form opened and confirmed at once.
    void confermaCampi() {
        ModelloCampi forma(maschere.corrente(), maschere.valoriCombo(), maschere.valoriTesto());
        ASSERT_TRUE(forma.conferma(dialogo));
        maschere.conferma(forma.valoriCombo(), forma.valoriTesto());
    }
    void confermaGriglia(ModelloGriglia& forma) {
        ASSERT_TRUE(forma.conferma(dialogo));
        maschere.conferma({}, forma.valoriTesto());
    }
    bool riprendi(NumeroMaschera numero) {
        const bool diverso = riprendiMaschera(maschere, numero, dati, fase);
        maschere.rilasciaForm();
        return diverso;
    }

    test::CartellaProvvisoria cartella;
    test::DialogoFinto dialogo;
    Maschere maschere;
    project::DatiProgetto dati;
    int fase = 0;
};

TEST_F(Modifica, ShowsTheWallInKilonewtonsAndTheWaterInTonnes) {
    dati.vincoloPiede = 3;
    dati.lunghezzaParatia = 12.5;
    dati.rigidezzaEJ = 54000;
    dati.forzaTesta = -0.8;
    preparaMaschera(maschere, NumeroMaschera::paratia, dati, 0);
    EXPECT_EQ(maschere.valoriCombo(), (std::vector<double>{0, 2, 0, 0, 0, 0, 0}));
    EXPECT_EQ(maschere.valoriTesto(),
              (Testi{"12.5", "540000", "0", "0", "0", "0", "-8", "0", "0", "0", "1"}));
}

TEST_F(Modifica, GivesANewProjectRealCodesAtTheFirstConfirm) {
    preparaMaschera(maschere, NumeroMaschera::paratia, dati, 0);
    confermaCampi();
    EXPECT_TRUE(riprendi(NumeroMaschera::paratia));
    EXPECT_EQ(dati.vincoloTesta, 1);
    EXPECT_EQ(dati.metodoKs, 1);
    EXPECT_EQ(dati.gammaAcqua, 1);
    preparaMaschera(maschere, NumeroMaschera::paratia, dati, 0);
    confermaCampi();
    EXPECT_FALSE(riprendi(NumeroMaschera::paratia));  // confirmed again without a change
}

TEST_F(Modifica, StoresAnEmptyNumberAsZero) {
    dati.lunghezzaParatia = 12;
    preparaMaschera(maschere, NumeroMaschera::paratia, dati, 0);
    maschere.impostaCampo(8, "");
    maschere.impostaCampo(9, "1e3");
    confermaCampi();
    riprendi(NumeroMaschera::paratia);
    EXPECT_EQ(dati.lunghezzaParatia, 0);
    EXPECT_EQ(dati.rigidezzaEJ, 100);
}

TEST_F(Modifica, KeepsACodeThatHasNoItem) {
    dati.metodoKs = 9;
    preparaMaschera(maschere, NumeroMaschera::paratia, dati, 0);
    confermaCampi();
    riprendi(NumeroMaschera::paratia);
    EXPECT_EQ(dati.metodoKs, 9);
}

TEST_F(Modifica, EditsTheStageOfTheDiagramsWithTheHeadings) {
    dati.titoli[2] = "Lotto";
    fase = 3;
    preparaMaschera(maschere, NumeroMaschera::titoli, dati, fase);
    EXPECT_EQ(maschere.valoriTesto(), (Testi{"", "Lotto", "", "", "", "", "3"}));
    maschere.impostaCampo(7, "5.8");
    confermaCampi();
    EXPECT_FALSE(riprendi(NumeroMaschera::titoli));  // no file holds the stage
    EXPECT_EQ(fase, 5);
    preparaMaschera(maschere, NumeroMaschera::titoli, dati, fase);
    maschere.impostaCampo(1, "Via Roma");
    maschere.impostaCampo(7, "-2");
    confermaCampi();
    EXPECT_TRUE(riprendi(NumeroMaschera::titoli));
    EXPECT_EQ(dati.titoli[1], "Via Roma");
    EXPECT_EQ(fase, 0);
}

TEST_F(Modifica, TakesATableThroughTheGridAndBackUnchanged) {
    test::aggiungiStrato(dati, {.fondo = 3.25,
                                .gammaN = 1.85,
                                .gammaSat = 2.05,
                                .phi = 0,
                                .coesione = 0.3,
                                .ks = 0,
                                .descrizione = "105C3 Sabbia, fine"});
    test::aggiungiStrato(dati, {.fondo = 20, .gammaN = 0, .gammaSat = 0, .phi = 0, .ks = 1234.5});
    const project::DatiProgetto prima = dati;
    preparaMaschera(maschere, NumeroMaschera::strati, dati, 0);
    ModelloGriglia forma(maschere.corrente(), maschere.valoriTesto());
    EXPECT_EQ(forma.testo({1, 2}), "18.5");
    EXPECT_EQ(forma.testo({1, 5}), "3");
    EXPECT_EQ(forma.testo({2, 6}), "12345");
    confermaGriglia(forma);
    EXPECT_TRUE(riprendi(NumeroMaschera::strati));  // a table counts as modified all the same
    EXPECT_EQ(dati, prima);
}

TEST_F(Modifica, SortsAnchorsAndLeavesStagesInTheirOrder) {
    preparaMaschera(maschere, NumeroMaschera::tiranti, dati, 0);
    ModelloGriglia tiranti(maschere.corrente(), {"2", "6", "1", "1", "1", "2", "5", "5", "0"});
    confermaGriglia(tiranti);
    riprendi(NumeroMaschera::tiranti);
    EXPECT_EQ(dati.profTirante[1], 2);
    EXPECT_EQ(dati.pretTirante[2], 0.1);
    preparaMaschera(maschere, NumeroMaschera::tiranti, dati, 0);
    EXPECT_EQ(maschere.valoriTesto(), (Testi{"2", "2", "5", "5", "0", "6", "1", "1", "1"}));
    preparaMaschera(maschere, NumeroMaschera::fasi, dati, 0);
    ModelloGriglia fasi(maschere.corrente(), {"2", "5", "1", "20", "6", "3", "0", "10", "4"});
    confermaGriglia(fasi);
    riprendi(NumeroMaschera::fasi);
    preparaMaschera(maschere, NumeroMaschera::fasi, dati, 0);
    EXPECT_EQ(maschere.valoriTesto(), (Testi{"2", "5", "0", "10", "6", "3", "1", "20", "4"}));
}

// The program ends there; before, its caller saves what is unsaved.
TEST_F(Modifica, RaisesMoreRowsThanTheProjectHolds) {
    preparaMaschera(maschere, NumeroMaschera::tiranti, dati, 0);
    Testi testi = {"21"};
    for (int i = 0; i < 21 * 4; ++i) testi.push_back("1");
    ModelloGriglia forma(maschere.corrente(), testi);
    confermaGriglia(forma);
    EXPECT_THROW((void)riprendiMaschera(maschere, NumeroMaschera::tiranti, dati, fase),
                 base::ErroreIndice);
    EXPECT_EQ(dati.nTiranti, 0);
}

TEST(Capienza, IsThatOfTheTablesOfTheProject) {
    EXPECT_EQ(capienza(NumeroMaschera::titoli), 0);
    EXPECT_EQ(capienza(NumeroMaschera::paratia), 0);
    EXPECT_EQ(capienza(NumeroMaschera::strati), 100);
    EXPECT_EQ(capienza(NumeroMaschera::tiranti), 20);
    EXPECT_EQ(capienza(NumeroMaschera::fasi), 20);
}

}  // namespace
}  // namespace korven::masks
