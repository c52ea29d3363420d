#include "project/project_data.hpp"

#include <gtest/gtest.h>

namespace korven::project {
namespace {

TEST(DatiProgetto, NewProjectIsAContinuousWallWithWaterOfUnitWeightAndNoCodes) {
    DatiProgetto dati;
    azzera(dati);
    EXPECT_TRUE(dati.sezione.tipoDiaframma);
    EXPECT_FALSE(dati.sezione.tipoPali || dati.sezione.tipoPalancola ||
                 dati.sezione.tipoPaliArmati);
    EXPECT_EQ(dati.gammaAcqua, 1);
    for (double codice : {dati.vincoloTesta, dati.vincoloPiede, dati.modoSpinte, dati.modoKs,
                          dati.modoTensioni, dati.metodoSpinte, dati.metodoKs})
        EXPECT_EQ(codice, 0);
}

TEST(DatiProgetto, ResetClearsOnlyTheFirstHalfOfTheLayerTable) {
    DatiProgetto dati;
    dati.nStrati = 60;
    for (int i = 1; i <= massimoStrati; ++i) {
        dati.profStrato[i] = i;
        dati.descrStrato[i] = "strato";
    }
    azzera(dati);
    EXPECT_EQ(dati.nStrati, 0);
    EXPECT_EQ(dati.profStrato[50], 0);
    EXPECT_EQ(dati.descrStrato[50], "");
    EXPECT_EQ(dati.profStrato[51], 51);
    EXPECT_EQ(dati.descrStrato[100], "strato");
}

TEST(DatiProgetto, ResetClearsTheTwentyRowsOfAnchorsAndStagesThatAreUsed) {
    DatiProgetto dati;
    dati.nFasi = dati.nTiranti = 20;
    for (int k = 1; k <= 50; ++k) dati.sovraccFase[k] = dati.faldaFase[k] = k;
    for (int k = 1; k <= 20; ++k) dati.profFase[k] = dati.tirantiFase[k] = dati.rigTirante[k] = k;
    dati.faldaFase[100] = 100;
    azzera(dati);
    EXPECT_EQ(dati.nFasi, 0);
    EXPECT_EQ(dati.nTiranti, 0);
    for (const double valore : {dati.profFase[20], dati.tirantiFase[20], dati.rigTirante[20],
                                dati.sovraccFase[20], dati.faldaFase[20]})
        EXPECT_EQ(valore, 0);
    EXPECT_EQ(dati.sovraccFase[21], 21);
    EXPECT_EQ(dati.sovraccFase[50], 50);
    EXPECT_EQ(dati.faldaFase[21], 21);
    EXPECT_EQ(dati.faldaFase[100], 100);
}

TEST(DatiProgetto, ResetLeavesTheDocumentsPathAndDirtyFlagAlone) {
    fileCorrente = "/lavori/muro.kvd";
    modificato = true;
    faseGrafico = 3;
    Progetto.lunghezzaParatia = 12;
    Progetto.titoli[6] = "ultimo";
    azzeraProgetto();
    EXPECT_EQ(fileCorrente, "/lavori/muro.kvd");
    EXPECT_TRUE(modificato);
    EXPECT_EQ(faseGrafico, 0);
    EXPECT_EQ(Progetto.lunghezzaParatia, 0);
    EXPECT_EQ(Progetto.titoli[6], "");
    fileCorrente.clear();
    modificato = false;
}

TEST(DatiProgetto, StageColumnsHaveCapacitiesOfTheirOwn) {
    DatiProgetto dati;
    EXPECT_THROW(dati.profFase[21] = 1, base::ErroreIndice);
    EXPECT_THROW(dati.tirantiFase[21] = 1, base::ErroreIndice);
    EXPECT_NO_THROW(dati.sovraccFase[50] = 1);
    EXPECT_THROW(dati.sovraccFase[51] = 1, base::ErroreIndice);
    EXPECT_NO_THROW(dati.faldaFase[100] = 1);
    EXPECT_THROW(dati.faldaFase[101] = 1, base::ErroreIndice);
    EXPECT_THROW(dati.profStrato[101] = 1, base::ErroreIndice);
    EXPECT_THROW(dati.profTirante[-1] = 1, base::ErroreIndice);
}

}  // namespace
}  // namespace korven::project
