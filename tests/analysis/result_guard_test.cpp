#include "analysis/result_guard.hpp"

#include <gtest/gtest.h>

#include <algorithm>

#include "base/file_error.hpp"
#include "project/output_guard.hpp"
#include "support/output_double.hpp"
#include "support/run_harness.hpp"
#include "support/sample_projects.hpp"

namespace korven::analysis {
namespace {

namespace fs = std::filesystem;
using test::contenuto;
using test::metti;

// Another run's lock is held by the test itself, and time passes by pauses: nothing here waits.
class Guardia : public ::testing::Test {
 protected:
    void calcola() {
        CalcoloParatia(relazione, {banco.dialogo, banco.avanzamento, banco.uscita, &guardia});
    }
    void occupaAltri() {
        ASSERT_EQ(altra.prendi(base::nomeSerratura(banco.risultati())),
                  base::Serratura::Esito::presa);
    }
    [[nodiscard]] std::string nomi() const {
        std::vector<std::string> tutti;
        for (const auto& voce : fs::directory_iterator(banco.cartella.percorso()))
            tutti.push_back(voce.path().filename().string());
        std::sort(tutti.begin(), tutti.end());
        std::string testo;
        for (const auto& nome : tutti) testo += nome + ' ';
        return testo;
    }

    test::Banco banco{test::progettoSemplice(), 10};
    base::Serratura altra;
    GuardiaRisultati guardia;
};

TEST_F(Guardia, TellsWhatStandsInThePlaceOfItsLock) {
    const std::string serratura = base::nomeSerratura(banco.risultati());
    fs::create_directories(serratura);
    try {
        calcola();
        FAIL() << "calculated without a lock";
    } catch (const base::ErroreScrittura& e) {
        EXPECT_EQ(e.percorso(), serratura);
        EXPECT_NE(std::string(e.what()).find("togliere ciò che ha questo nome"), std::string::npos)
            << e.what();
    }
    EXPECT_TRUE(fs::is_directory(serratura));
    EXPECT_FALSE(fs::exists(banco.risultati()));
}

TEST_F(Guardia, HoldsTheResultFileFromTheComparisonBeyondTheOutput) {
    struct Spia : test::UscitaFinta {
        void scriviRelazione() override {
            base::Serratura altra;
            occupata = altra.prendi(base::nomeSerratura(project::fileCorrente)) ==
                       base::Serratura::Esito::occupata;
        }
        bool occupata = false;
    } spia;
    {
        GuardiaRisultati mia;
        CalcoloParatia(relazione, {banco.dialogo, banco.avanzamento, spia, &mia});
        EXPECT_TRUE(spia.occupata);
        EXPECT_EQ(nomi(), ".korven-muro.OUT.lock muro.OUT ");
        CalcoloParatia(relazione, {banco.dialogo, banco.avanzamento, spia,
                                   &mia});  // its own lock is in nobody's way
        EXPECT_TRUE(banco.avanzamento.attese.empty());
    }
    EXPECT_EQ(nomi(), "muro.OUT ");
}

// The user may act while an export waits for its converter.
TEST_F(Guardia, LetsTheSameProgramBeginItsNextOutput) {
    calcola();
    {
        GuardiaRisultati seconda;
        CalcoloParatia(relazione, {banco.dialogo, banco.avanzamento, banco.uscita, &seconda});
    }
    EXPECT_TRUE(banco.avanzamento.attese.empty());
    EXPECT_EQ(banco.uscita.relazioni, 2);
    EXPECT_EQ(altra.prendi(base::nomeSerratura(banco.risultati())),
              base::Serratura::Esito::occupata);  // the first still holds it
}

TEST_F(Guardia, WaitsForAnotherRunAndSaysSo) {
    occupaAltri();
    banco.avanzamento.allaPausa = [&](int volta) {
        EXPECT_FALSE(banco.haRisultati());
        if (volta == 3) altra.lascia();
    };
    calcola();
    EXPECT_FALSE(erroreCalcolo);
    ASSERT_EQ(banco.avanzamento.attese.size(), 3u);
    EXPECT_EQ(banco.avanzamento.attese[0],
              "Un altro calcolo sta usando il file dei risultati; attesa fino a 10 secondi: " +
                  banco.risultati());
    EXPECT_EQ(banco.avanzamento.fineAttese, 1);
    EXPECT_EQ(banco.uscita.relazioni, 1);
    EXPECT_TRUE(banco.dialogo.messaggi.empty());
}

TEST_F(Guardia, GivesUpAfterTenSecondsAndTouchesNothing) {
    EXPECT_EQ(GuardiaRisultati::pause * Avanzamento::pausaAttesa, std::chrono::seconds(10));
    metti(banco.risultati(), "");  // not even what looks unfinished: the other run is at it
    occupaAltri();
    try {
        calcola();
        ADD_FAILURE();
    } catch (const base::ErroreScrittura& errore) {
        EXPECT_EQ(errore.percorso(), banco.risultati());
        EXPECT_TRUE(errore.atteso().starts_with("un altro calcolo sta ancora usando"));
    }
    EXPECT_EQ(banco.avanzamento.attese.size(), 200u);
    EXPECT_EQ(banco.avanzamento.fineAttese, 1);
    EXPECT_EQ(project::fileCorrente, banco.progetto());
    EXPECT_EQ(contenuto(banco.risultati()), "");
    EXPECT_EQ(banco.uscita.relazioni, 0);
}

TEST_F(Guardia, LetsTheUserGiveUpTheWaitingLikeARun) {
    occupaAltri();
    stopCalcolo = true;  // of an earlier run: says nothing about this one
    banco.avanzamento.allaPausa = [](int volta) {
        EXPECT_FALSE(stopCalcolo);
        stopCalcolo = volta == 2;
    };
    calcola();
    EXPECT_TRUE(erroreCalcolo);
    EXPECT_EQ(banco.avanzamento.attese.size(), 2u);
    EXPECT_TRUE(banco.dialogo.messaggi.empty());
    EXPECT_FALSE(banco.haRisultati());
    EXPECT_EQ(banco.uscita.relazioni, 0);
}

TEST_F(Guardia, LetsTheDisplayEndTheWaitingToo) {
    occupaAltri();
    banco.avanzamento.allaPausa = [this](int volta) { banco.avanzamento.ferma = volta == 2; };
    calcola();
    EXPECT_TRUE(erroreCalcolo);
    EXPECT_FALSE(stopCalcolo);
    EXPECT_EQ(banco.avanzamento.attese.size(), 2u);
    EXPECT_FALSE(banco.haRisultati());
}

class RisultatiDiUnCalcoloUcciso : public Guardia {
 protected:
    void SetUp() override {
        banco.calcola();
        intero = contenuto(banco.risultati());
        metti(banco.risultati(), intero.substr(0, intero.size() / 2));
    }
    std::string intero;
};

TEST_F(RisultatiDiUnCalcoloUcciso, AreRemovedWithAWordAndComputedAnew) {
    calcola();
    EXPECT_FALSE(erroreCalcolo);
    EXPECT_EQ(contenuto(banco.risultati()), intero);
    ASSERT_EQ(banco.dialogo.messaggi.size(), 1u);
    EXPECT_TRUE(banco.dialogo.messaggi[0].testo.starts_with("È stato tolto un file dei risultati"));
    EXPECT_TRUE(banco.dialogo.messaggi[0].testo.ends_with(": " + banco.risultati()));
    EXPECT_EQ(banco.dialogo.messaggi[0].icona, base::Icona::informazione);
}

TEST_F(RisultatiDiUnCalcoloUcciso, StayBehindALinkWhoseTargetIsRemoved) {
    fs::rename(banco.risultati(), banco.cartella / "altrove");
    fs::create_symlink("altrove", banco.risultati());
    calcola();
    EXPECT_EQ(contenuto(banco.cartella / "altrove"), intero);
    EXPECT_TRUE(fs::is_symlink(banco.risultati()));
}

TEST_F(RisultatiDiUnCalcoloUcciso, AreNotTakenFromTheRunThatIsStillWritingThem) {
    occupaAltri();
    banco.avanzamento.allaPausa = [&](int volta) {
        if (volta < 3) return;
        metti(banco.risultati(), intero);  // it comes to its end
        altra.lascia();
    };
    calcola();
    EXPECT_FALSE(erroreCalcolo);
    EXPECT_TRUE(banco.dialogo.messaggi.empty());
    EXPECT_EQ(banco.avanzamento.aperture, 1);  // up to date: nothing was computed again
}

TEST(TogliNonMostrabili, LeavesAProjectAndWhatAnotherRunIsAt) {
    const test::CartellaProvvisoria cartella;
    const std::string risultati = cartella / "muro.OUT";
    metti(risultati, "x");
    GuardiaRisultati guardia;
    {
        base::Serratura altra;
        ASSERT_EQ(altra.prendi(base::nomeSerratura(risultati)), base::Serratura::Esito::presa);
        guardia.togliNonMostrabili(risultati);
        EXPECT_TRUE(fs::exists(risultati));
    }
    project::progettiProtetti.letto = risultati;
    guardia.togliNonMostrabili(risultati);
    EXPECT_TRUE(fs::exists(risultati));
    project::progettiProtetti = {};
    guardia.togliNonMostrabili(risultati);
    EXPECT_FALSE(fs::exists(risultati));
}

}  // namespace
}  // namespace korven::analysis
