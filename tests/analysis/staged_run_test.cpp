#include "analysis/staged_run.hpp"

#include <gtest/gtest.h>

#include <functional>
#include <stdexcept>
#include <string>

#include "analysis/result_file.hpp"
#include "analysis/run_flags.hpp"
#include "project/codes.hpp"
#include "support/run_harness.hpp"
#include "support/sample_projects.hpp"
#include "support/stage_comparison.hpp"
#include "support/wall_builder.hpp"

namespace korven::analysis {
namespace {

using project::VincoloPiede;
using test::progettoSemplice;

// Writes down the calls of a run and may act at any of them.
class Diario : public OsservatoreCorsa {
 public:
    void inizio(int fase) override { annota("inizio " + std::to_string(fase)); }
    void iterazione(const StatoIterazione& stato) override {
        ultima = stato;
        annota("iterazione " + std::to_string(stato.iterazione));
    }
    [[nodiscard]] bool fermata() override {
        annota("fermata?");
        return ferma && ferma(ultima);
    }
    void fine(const FaseCalcolata& fase) override { annota("fine " + std::to_string(fase.fase)); }
    void caduta(const FaseCalcolata& fase) override {
        annota("caduta " + std::to_string(fase.fase));
    }

    std::vector<std::string> righe;
    StatoIterazione ultima;
    std::function<bool(const StatoIterazione&)> ferma;
    std::string lancia;  ///< the call that throws

 private:
    void annota(const std::string& riga) {
        righe.push_back(riga);
        if (riga == lancia) throw std::runtime_error(riga);
    }
};

TEST(CalcolaFasi, TellsEachStageFromItsBeginningToItsRest) {
    auto dati = test::muroElastico(1000);
    dati.forzaTesta = 2;  // at rest after two solves
    test::ripetiFase(dati, 0);
    Diario diario;
    const EsitoCorsa corsa = calcolaFasi(dati, 20, diario);
    EXPECT_EQ(diario.righe,
              (std::vector<std::string>{"inizio 1", "iterazione 1", "fermata?", "iterazione 2",
                                        "fermata?", "fine 1", "inizio 2", "iterazione 1",
                                        "fermata?", "iterazione 2", "fermata?", "fine 2"}));
    ASSERT_EQ(corsa.fasi.size(), 2u);
    EXPECT_TRUE(corsa.finita());
    for (int k = 1; k <= 2; ++k) {
        EXPECT_EQ(corsa.fasi[static_cast<std::size_t>(k - 1)].fase, k);
        EXPECT_EQ(corsa.fasi[static_cast<std::size_t>(k - 1)].iterazioni, 2);
    }
}

TEST(CalcolaFasi, GivesTheNumbersThatTheResultFileHolds) {
    const auto dati = progettoSemplice();
    test::Banco banco(dati, 20);
    banco.calcola();
    const auto lette = banco.leggi();
    OsservatoreCorsa nessuno;
    const EsitoCorsa corsa = calcolaFasi(dati, 20, nessuno);
    ASSERT_EQ(corsa.fasi.size(), lette.size());
    for (std::size_t k = 0; k < lette.size(); ++k)
        EXPECT_EQ(testoFase(corsa.fasi[k].risultati, 21), testoFase(lette[k], 21)) << k;
    EXPECT_NEAR(corsa.mMaxTotale, banco.chiusura.mMaxTotale, 0.5e-7);
    EXPECT_NEAR(corsa.mMinTotale, banco.chiusura.mMinTotale, 0.5e-7);
}

TEST(CalcolaFasi, LeavesTheProgramAloneWhateverItsFlagsSay) {
    project::Progetto = test::muroElastico(1000);
    project::Progetto.faldaValle = -3;
    project::fileCorrente = "/nessuno/muro.kvd";
    const auto prima = project::Progetto;
    stopCalcolo = erroreCalcolo = true;
    OsservatoreCorsa nessuno;
    EXPECT_TRUE(calcolaFasi(progettoSemplice(), 20, nessuno).finita());
    EXPECT_TRUE(stopCalcolo && erroreCalcolo);
    EXPECT_EQ(project::Progetto, prima);
    EXPECT_EQ(project::fileCorrente, "/nessuno/muro.kvd");
    stopCalcolo = erroreCalcolo = false;
    project::azzeraProgetto();
    project::fileCorrente.clear();
}

TEST(CalcolaFasi, TakesTheExtremesOfAllStagesAtRest) {
    OsservatoreCorsa nessuno;
    const EsitoCorsa corsa = calcolaFasi(progettoSemplice(), 20, nessuno);
    double massimo = -1e9, minimo = 1e9;
    for (const auto& fase : corsa.fasi)
        for (int i = 1; i <= 21; ++i) {
            massimo = std::max(massimo, fase.risultati.momentoNodo[i]);
            minimo = std::min(minimo, fase.risultati.momentoNodo[i]);
        }
    EXPECT_EQ(corsa.mMaxTotale, massimo);
    EXPECT_EQ(corsa.mMinTotale, minimo);
}

TEST(CalcolaFasi, EndsWithTheStageThatIsStoppedAndGivesNoTableOfIt) {
    Diario diario;
    diario.ferma = [](const StatoIterazione& stato) { return stato.fase == 2; };
    const EsitoCorsa corsa = calcolaFasi(progettoSemplice(), 20, diario);
    EXPECT_EQ(diario.righe.back(), "caduta 2");
    ASSERT_EQ(corsa.fasi.size(), 2u);
    EXPECT_EQ(corsa.fasi[0].esito, EsitoFase::convergente);
    EXPECT_EQ(corsa.fasi[1].esito, EsitoFase::fermata);
    EXPECT_EQ(corsa.fasi[1].iterazioni, 1);
    EXPECT_EQ(corsa.fasi[1].risultati.sigmaVm[21], 0);
    EXPECT_NE(corsa.fasi[0].risultati.sigmaVm[21], 0);
    EXPECT_FALSE(corsa.finita());
    EXPECT_EQ(corsa.mMaxTotale, corsa.fasi[0].estremi.mMaxFase);
}

TEST(CalcolaFasi, EndsWithARefusedStageAndSaysWhere) {
    auto dati = progettoSemplice();
    dati.inclinazioneMonte = 32;  // above the friction angle of the first layer
    OsservatoreCorsa nessuno;
    const EsitoCorsa corsa = calcolaFasi(dati, 20, nessuno);
    ASSERT_EQ(corsa.fasi.size(), 1u);
    EXPECT_EQ(corsa.fasi[0].esito, EsitoFase::rifiutata);
    ASSERT_TRUE(corsa.fasi[0].rifiuto.has_value());
    EXPECT_EQ(corsa.fasi[0].rifiuto->motivo, Indefinito::radiceNegativa);
    EXPECT_EQ(corsa.fasi[0].rifiuto->profondita, 0);
    EXPECT_FALSE(corsa.finita());
}

TEST(CalcolaFasi, HasNoStageOfAProjectWithoutStages) {
    auto dati = progettoSemplice();
    dati.nFasi = 0;
    OsservatoreCorsa nessuno;
    const EsitoCorsa corsa = calcolaFasi(dati, 20, nessuno);
    EXPECT_TRUE(corsa.fasi.empty());
    EXPECT_TRUE(corsa.finita());
}

// What a run of another wall, mesh and end leaves in the arrays: above all in the cells of a fixed
// toe, which nobody clears between two solves.
TEST(CalcolaFasi, HasTheSameDigitsInArraysThatAnotherRunHasUsed) {
    auto incastrato = progettoSemplice();
    incastrato.vincoloPiede = valore(VincoloPiede::incastro);
    auto singolare = incastrato;
    singolare.vincoloPiede = valore(VincoloPiede::libero);
    singolare.ksStrato[1] = singolare.ksStrato[2] = 0;
    OsservatoreCorsa nessuno;
    Diario interrotto;
    interrotto.lancia = "iterazione 2";
    ArraysCorsa arrays;
    for (const int prima : {60, 20, 9}) {
        for (const auto& dati : {incastrato, singolare, progettoSemplice()}) {
            EXPECT_THROW((void)calcolaFasi(incastrato, prima, interrotto, arrays),
                         std::runtime_error);
            const auto attesa = calcolaFasi(dati, 20, nessuno);
            test::confronta(calcolaFasi(dati, 20, nessuno, arrays), attesa);
        }
        (void)calcolaFasi(singolare, prima, nessuno, arrays);
    }
}

TEST(CalcolaFasi, LetsPassWhatItsObserverThrows) {
    for (const char* chiamata : {"inizio 2", "iterazione 1", "fine 1"}) {
        Diario diario;
        diario.lancia = chiamata;
        EXPECT_THROW((void)calcolaFasi(progettoSemplice(), 20, diario), std::runtime_error)
            << chiamata;
        EXPECT_EQ(diario.righe.back(), chiamata);
    }
}

}  // namespace
}  // namespace korven::analysis
