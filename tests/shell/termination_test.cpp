#include "shell/termination.hpp"

#include <gtest/gtest.h>

#include <QDialog>
#include <QTimer>
#include <filesystem>

#include "analysis/run_flags.hpp"
#include "shell/application.hpp"
#include "shell/run/progress_qt.hpp"
#include "support/document_ports.hpp"
#include "support/sample_projects.hpp"

namespace korven::shell {
namespace {

class TerminazioneTest : public ::testing::Test {
 protected:
    TerminazioneTest() {
        project::Progetto = test::progettoSemplice();
        project::fileCorrente = ambiente.lavori / "muro.kvd";
    }
    ~TerminazioneTest() override { analysis::stopCalcolo = false; }

    int giraFinoA(int segnale) {
        QTimer::singleShot(0, [segnale] { std::raise(segnale); });
        return static_cast<Applicazione*>(qApp)->gira();
    }
    [[nodiscard]] std::size_t fileScritti() const {
        return static_cast<std::size_t>(
            std::distance(std::filesystem::directory_iterator(ambiente.lavori.percorso()), {}));
    }

    test::AmbienteDocumento ambiente;
    Terminazione terminazione;
};

TEST_F(TerminazioneTest, RescuesUnsavedWorkWhenTheSystemEndsTheProgram) {
    for (const int segnale : {SIGTERM, SIGHUP}) {
        project::modificato = true;
        const auto prima = fileScritti();
        EXPECT_EQ(giraFinoA(segnale), 128 + segnale);
        EXPECT_EQ(fileScritti(), prima + 1) << segnale;
    }
}

TEST_F(TerminazioneTest, LeavesNoFileWhenAllIsSaved) {
    project::modificato = false;
    EXPECT_EQ(giraFinoA(SIGINT), 128 + SIGINT);
    EXPECT_EQ(fileScritti(), 0u);
}

TEST_F(TerminazioneTest, EndsFormsAndRunsOnTheWay) {
    bool chiusa = false;
    QTimer::singleShot(0, [&chiusa] {
        QDialog forma;
        QTimer::singleShot(0, [] { std::raise(SIGTERM); });
        forma.exec();
        chiusa = true;
    });
    EXPECT_EQ(static_cast<Applicazione*>(qApp)->gira(), 128 + SIGTERM);
    EXPECT_TRUE(chiusa);
    EXPECT_TRUE(analysis::stopCalcolo);
}

// The signal comes while a question waits before a run; the run then begins all the same, and one
// that finds no end would keep the program for ever.
TEST_F(TerminazioneTest, StopsARunThatBeginsAfterTheSignal) {
    EXPECT_FALSE(Terminazione::chiesta());
    EXPECT_EQ(giraFinoA(SIGTERM), 128 + SIGTERM);
    AvanzamentoQt avanzamento;
    avanzamento.apri();
    analysis::stopCalcolo = false;  // as each run begins
    avanzamento.iterazione({});
    EXPECT_TRUE(analysis::stopCalcolo);
    avanzamento.chiudi();
}

TEST_F(TerminazioneTest, LeavesARunAloneWithoutASignal) {
    AvanzamentoQt avanzamento;
    avanzamento.apri();
    analysis::stopCalcolo = false;
    avanzamento.iterazione({});
    EXPECT_FALSE(analysis::stopCalcolo);
    avanzamento.chiudi();
}

}  // namespace
}  // namespace korven::shell
