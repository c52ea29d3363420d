#include <gtest/gtest.h>

#include <filesystem>
#include <string>

#include "project/output_guard.hpp"
#include "support/run_harness.hpp"
#include "support/sample_projects.hpp"

namespace korven::analysis {
namespace {

namespace fs = std::filesystem;
using project::fileCorrente;
using project::prendeIlPostoDelProgetto;
using project::progettiProtetti;
using test::Banco;
using test::contenuto;
using test::metti;
using test::progettoSemplice;

class ProgettoInPericolo : public ::testing::Test {
 protected:
    void SetUp() override { metti(banco.progetto(), "il progetto"); }
    void TearDown() override { progettiProtetti = {}; }

    // The run is refused with a message that names `file`; nothing is written, removed or asked.
    void aspettaRifiuto(const std::string& file, const std::string& progetto = {}) {
        banco.calcola();
        EXPECT_TRUE(erroreCalcolo);
        ASSERT_EQ(banco.dialogo.messaggi.size(), 1u);
        const auto& detto = banco.dialogo.messaggi[0];
        EXPECT_NE(detto.testo.find("prenderebbe il posto del progetto"), std::string::npos)
            << detto.testo;
        const std::string quale = progetto.empty() ? "" : " (" + progetto + ")";
        EXPECT_TRUE(detto.testo.ends_with(": " + file + quale)) << detto.testo;
        EXPECT_EQ(detto.titolo, "ATTENZIONE!");
        EXPECT_EQ(banco.avanzamento.aperture, 0);
        EXPECT_EQ(banco.uscita.relazioni, 0);
    }

    Banco banco{progettoSemplice(), 20};
};

TEST_F(ProgettoInPericolo, IsNotReplacedByItsOwnResultFile) {
    fileCorrente = banco.risultati();  // a project named "muro.OUT"
    metti(fileCorrente, "il progetto");
    aspettaRifiuto(banco.risultati());
    EXPECT_EQ(contenuto(banco.risultati()), "il progetto");
    EXPECT_EQ(fileCorrente, banco.risultati());
}

TEST_F(ProgettoInPericolo, IsNotReplacedThroughALink) {
    for (const bool simbolico : {true, false}) {
        banco.dialogo.messaggi.clear();
        fs::remove(banco.risultati());
        if (simbolico)
            fs::create_symlink(banco.progetto(), banco.risultati());
        else
            fs::create_hard_link(banco.progetto(), banco.risultati());
        aspettaRifiuto(banco.risultati(), banco.progetto());
        EXPECT_EQ(contenuto(banco.progetto()), "il progetto");
        EXPECT_EQ(fileCorrente, banco.progetto());
    }
}

TEST_F(ProgettoInPericolo, IsNotReplacedByAnOutputThatIsToFollow) {
    banco.uscita.daScrivere = {banco.cartella / "muro.TAB", banco.progetto()};
    aspettaRifiuto(banco.progetto());
    EXPECT_FALSE(banco.haRisultati());
}

TEST_F(ProgettoInPericolo, IsSafeUnderTheNameItWasReadFromToo) {
    progettiProtetti.letto = banco.cartella / "originale.kvd";
    metti(progettiProtetti.letto, "originale");
    fs::create_symlink(progettiProtetti.letto, banco.risultati());
    aspettaRifiuto(banco.risultati(), progettiProtetti.letto);
    EXPECT_EQ(contenuto(progettiProtetti.letto), "originale");
}

// The rule that replaces the last three characters would reach into the folder's name.
TEST_F(ProgettoInPericolo, NeedsANameOfThreeCharacters) {
    for (const char* nome : {"ab", "a", "è"}) {
        banco.dialogo.messaggi.clear();
        fileCorrente = banco.cartella / nome;
        metti(fileCorrente, "il progetto");
        banco.calcola();
        EXPECT_TRUE(erroreCalcolo);
        ASSERT_EQ(banco.dialogo.messaggi.size(), 1u);
        EXPECT_TRUE(banco.dialogo.messaggi[0].testo.starts_with(
            "Il nome del progetto ha meno di tre caratteri"));
        EXPECT_EQ(contenuto(banco.cartella / nome), "il progetto");
    }
    EXPECT_FALSE(fs::exists(banco.cartella.percorso() + "OUT"));
    banco.dialogo.messaggi.clear();
    fileCorrente = banco.cartella / "kvd";
    banco.calcola();
    EXPECT_FALSE(erroreCalcolo);
    EXPECT_TRUE(fs::exists(banco.cartella / "OUT"));
}

// Without a stiffness the name stays at the result file's: that is no project, and the next run may
// write there.
TEST_F(ProgettoInPericolo, DoesNotStandInTheWayOfARunAfterOneWithoutAStiffness) {
    project::Progetto.rigidezzaEJ = 0;
    banco.calcola();
    ASSERT_EQ(fileCorrente, banco.risultati());
    project::Progetto.rigidezzaEJ = 12000;
    banco.calcola();
    EXPECT_FALSE(erroreCalcolo);
    banco.calcola();
    EXPECT_FALSE(erroreCalcolo);
    EXPECT_EQ(banco.uscita.relazioni, 2);
}

TEST_F(ProgettoInPericolo, IsProtectedNoMoreOnceTheRunIsOver) {
    banco.calcola();
    EXPECT_TRUE(progettiProtetti.corrente.empty());
    EXPECT_FALSE(prendeIlPostoDelProgetto(banco.progetto()));  // saving it is the user's right
}

TEST_F(ProgettoInPericolo, IsKnownUnderAnyNameThatWillLeadToIt) {
    fs::remove(banco.progetto());  // typed anew and not saved yet
    fs::create_symlink("muro.kvd", banco.risultati());
    aspettaRifiuto(banco.risultati(), banco.progetto());
    EXPECT_FALSE(fs::exists(banco.progetto()));
}

TEST(CalcoloParatia, RefusesAStageWithMoreAnchorsThanTheirTableHolds) {
    auto dati = progettoSemplice();
    dati.tirantiFase[2] = 25;
    Banco banco(dati);
    banco.calcola();
    EXPECT_TRUE(erroreCalcolo);
    ASSERT_EQ(banco.dialogo.messaggi.size(), 1u);
    EXPECT_EQ(banco.dialogo.messaggi[0].testo,
              "fase 2: più tiranti di quanti ne tiene la tabella (20): 25");
    EXPECT_FALSE(banco.haRisultati());
    project::Progetto.tirantiFase[2] = 20.5;  // its whole part counts
    banco.calcola();
    EXPECT_FALSE(erroreCalcolo);
}

}  // namespace
}  // namespace korven::analysis
