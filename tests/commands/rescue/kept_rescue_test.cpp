#include "commands/rescue/kept_rescue.hpp"

#include <gtest/gtest.h>

#include "base/files.hpp"
#include "project/rescue_mark.hpp"
#include "support/failing_disk.hpp"
#include "support/rescue_setup.hpp"

namespace korven::commands {
namespace {

namespace fs = std::filesystem;
using project::fileCorrente;
using project::modificato;
using project::Progetto;
using test::contenuto;
using Nomi = std::vector<std::string>;

class RecuperoTenutoTest : public ::testing::Test {
 protected:
    test::AmbienteRecupero ambiente;
    RecuperoTenuto tenuto;
};

TEST_F(RecuperoTenutoTest, HoldsTheUnsavedProjectAndSaysWhoseItIs) {
    EXPECT_EQ(tenuto.guarda(), "");
    EXPECT_EQ(tenuto.percorso(), ambiente.recuperato);
    EXPECT_EQ(ambiente.nomi(), Nomi{"muro_recuperato.kvd"});
    EXPECT_EQ(contenuto(ambiente.recuperato),
              ambiente.byte(test::progettoSemplice()) + project::segnoRecupero(ambiente.muro));
}

TEST_F(RecuperoTenutoTest, IsOneFileThatFollowsTheProject) {
    EXPECT_EQ(tenuto.guarda(), "");
    for (double lunghezza : {10.0, 11.0}) {
        Progetto.lunghezzaParatia = lunghezza;
        EXPECT_EQ(tenuto.guarda(), "");
        EXPECT_EQ(contenuto(ambiente.recuperato), byteRecupero(Progetto, ambiente.muro));
    }
    EXPECT_EQ(ambiente.nomi(), Nomi{"muro_recuperato.kvd"});
}

TEST_F(RecuperoTenutoTest, IsWrittenOnlyWhenTheProjectDiffersFromIt) {
    EXPECT_EQ(tenuto.guarda(), "");
    const base::ImprontaFile prima(ambiente.recuperato);
    EXPECT_EQ(tenuto.guarda(), "");
    EXPECT_TRUE(base::ImprontaFile(ambiente.recuperato) == prima);
    Progetto.titoli[1] = "altro";
    EXPECT_EQ(tenuto.guarda(), "");
    EXPECT_FALSE(base::ImprontaFile(ambiente.recuperato) == prima);
}

TEST_F(RecuperoTenutoTest, IsNoneWhereNothingIsUnsavedOrNothingOpen) {
    modificato = false;
    EXPECT_EQ(tenuto.guarda(), "");
    modificato = true;
    fileCorrente.clear();
    EXPECT_EQ(tenuto.guarda(), "");
    EXPECT_EQ(tenuto.percorso(), "");
    EXPECT_TRUE(fs::is_empty(ambiente.lavori.percorso()));
}

TEST_F(RecuperoTenutoTest, GoesWithItsLockOnceAllIsSaved) {
    EXPECT_EQ(tenuto.guarda(), "");
    modificato = false;
    EXPECT_EQ(tenuto.guarda(), "");
    EXPECT_TRUE(fs::is_empty(ambiente.lavori.percorso()));
}

TEST_F(RecuperoTenutoTest, GoesWhenAnotherProjectIsOpenedAndIsMadeForThatOne) {
    EXPECT_EQ(tenuto.guarda(), "");
    fileCorrente = ambiente.lavori / "altro.kvd";
    EXPECT_EQ(tenuto.guarda(), "");
    EXPECT_EQ(ambiente.nomi(), Nomi{"altro_recuperato.kvd"});
}

TEST_F(RecuperoTenutoTest, StaysWhenItsProgramDies) {
    {
        RecuperoTenuto suo;
        EXPECT_EQ(suo.guarda(), "");
    }
    EXPECT_EQ(ambiente.nomi(), Nomi{"muro_recuperato.kvd"});
}

TEST_F(RecuperoTenutoTest, IsNeverTheFileOfAnotherProgramOrOfAnEarlierOne) {
    test::metti(ambiente.recuperato, "di una volta");
    RecuperoTenuto altro;
    EXPECT_EQ(altro.guarda(), "");
    Progetto.lunghezzaParatia = 10;
    EXPECT_EQ(tenuto.guarda(), "");
    EXPECT_EQ(ambiente.nomi(),
              (Nomi{"muro_recuperato.kvd", "muro_recuperato_2.kvd", "muro_recuperato_3.kvd"}));
    Progetto.lunghezzaParatia = 11;
    EXPECT_EQ(tenuto.guarda(), "");
    EXPECT_EQ(contenuto(ambiente.recuperato), "di una volta");
    EXPECT_EQ(contenuto(ambiente.lavori / "muro_recuperato_2.kvd"),
              byteRecupero(test::progettoSemplice(), ambiente.muro));
    tenuto.rinuncia();
    EXPECT_EQ(ambiente.nomi(), (Nomi{"muro_recuperato.kvd", "muro_recuperato_2.kvd"}));
}

// The lock of another program that has chosen the name and not written yet.
TEST_F(RecuperoTenutoTest, LeavesANameToTheProgramThatIsAboutToTakeIt) {
    base::Serratura altra;
    ASSERT_EQ(altra.prendi(base::nomeSerratura(ambiente.recuperato)),
              base::Serratura::Esito::presa);
    EXPECT_EQ(tenuto.guarda(), "");
    EXPECT_EQ(tenuto.percorso(), ambiente.lavori / "muro_recuperato_2.kvd");
}

TEST_F(RecuperoTenutoTest, LeavesAFileAloneThatSomebodyHasPutInItsPlace) {
    EXPECT_EQ(tenuto.guarda(), "");
    base::scriviFile(ambiente.recuperato, "di un altro");
    Progetto.lunghezzaParatia = 10;
    EXPECT_EQ(tenuto.guarda(), "");
    EXPECT_EQ(contenuto(ambiente.recuperato), "di un altro");
    EXPECT_EQ(tenuto.percorso(), ambiente.lavori / "muro_recuperato_2.kvd");
    fs::remove(tenuto.percorso());
    fs::create_symlink("muro_recuperato.kvd", ambiente.lavori / "muro_recuperato_2.kvd");
    Progetto.lunghezzaParatia = 11;
    EXPECT_EQ(tenuto.guarda(), "");
    EXPECT_EQ(contenuto(ambiente.recuperato), "di un altro");
    EXPECT_EQ(tenuto.percorso(), ambiente.lavori / "muro_recuperato_3.kvd");
    base::scriviFile(tenuto.percorso(), "anche questo");
    tenuto.rinuncia();
    EXPECT_EQ(contenuto(ambiente.lavori / "muro_recuperato_3.kvd"), "anche questo");
}

TEST_F(RecuperoTenutoTest, IsMadeAgainWhenItWasRemoved) {
    EXPECT_EQ(tenuto.guarda(), "");
    fs::remove(ambiente.recuperato);
    EXPECT_EQ(tenuto.guarda(), "");
    EXPECT_EQ(ambiente.nomi(), Nomi{"muro_recuperato.kvd"});
}

TEST_F(RecuperoTenutoTest, LiesAmongTheUsersDataWhereTheFolderOfTheProjectTakesNone) {
    fileCorrente = ambiente.lavori / "manca/muro.kvd";
    EXPECT_EQ(tenuto.guarda(), "");
    EXPECT_EQ(tenuto.percorso(), ambiente.dati / "share/muro_recuperato.kvd");
    EXPECT_EQ(contenuto(tenuto.percorso()), byteRecupero(Progetto, fileCorrente));
    EXPECT_TRUE(fs::is_empty(ambiente.lavori.percorso()));
}

TEST_F(RecuperoTenutoTest, TellsOnceThatItCantBeWrittenAndGoesOnTrying) {
    const test::DiscoPieno pieno(100);
    const std::string detto = tenuto.guarda(pieno);
    EXPECT_TRUE(
        detto.starts_with("Le modifiche sono solo in memoria, il file di recupero non si "
                          "può scrivere: " +
                          ambiente.recuperato))
        << detto;
    EXPECT_NE(detto.find(test::nonCeSpazio), std::string::npos) << detto;
    EXPECT_EQ(tenuto.guarda(pieno), "");
    EXPECT_TRUE(fs::is_empty(ambiente.lavori.percorso()));
    EXPECT_EQ(tenuto.guarda(), "");
    EXPECT_EQ(ambiente.nomi(), Nomi{"muro_recuperato.kvd"});
    Progetto.lunghezzaParatia = 10;
    EXPECT_NE(tenuto.guarda(test::DiscoPieno(100)), "");
}

TEST_F(RecuperoTenutoTest, KeepsTheEarlierStateWholeWhereALaterOneCantBeWritten) {
    EXPECT_EQ(tenuto.guarda(), "");
    const std::string prima = contenuto(ambiente.recuperato);
    Progetto.lunghezzaParatia = 10;
    EXPECT_NE(tenuto.guarda(test::DiscoPieno(100)), "");
    EXPECT_EQ(contenuto(ambiente.recuperato), prima);
    EXPECT_EQ(ambiente.nomi(), Nomi{"muro_recuperato.kvd"});
    EXPECT_EQ(tenuto.guarda(), "");
    EXPECT_EQ(contenuto(ambiente.recuperato), byteRecupero(Progetto, ambiente.muro));
}

TEST_F(RecuperoTenutoTest, TakesTheLastStateInItsPlaceWhenTheProgramEnds) {
    EXPECT_EQ(tenuto.chiudi(base::discoDiSistema()), "");
    EXPECT_EQ(tenuto.guarda(), "");
    Progetto.lunghezzaParatia = 10;
    EXPECT_EQ(tenuto.chiudi(test::DiscoPieno(100)), "");
    project::progettiProtetti.corrente = ambiente.muro;
    fileCorrente = ambiente.lavori / "muro.OUT";  // in the middle of a run
    EXPECT_EQ(tenuto.chiudi(base::discoDiSistema()), ambiente.recuperato);
    EXPECT_EQ(contenuto(ambiente.recuperato), byteRecupero(Progetto, ambiente.muro));
    EXPECT_EQ(ambiente.nomi(), Nomi{"muro_recuperato.kvd"});
}

}  // namespace
}  // namespace korven::commands
