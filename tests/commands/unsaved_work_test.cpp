// What the commands do with work that is not saved.

#include <gtest/gtest.h>

#include "base/code_page.hpp"
#include "base/file_error.hpp"
#include "base/folders/file_names.hpp"
#include "commands/desktop_program.hpp"
#include "commands/fatal_error.hpp"
#include "plot/plot_configuration.hpp"
#include "plot/plot_engine.hpp"
#include "project/project_file.hpp"
#include "support/document_ports.hpp"
#include "support/plot_setup.hpp"
#include "support/program_bench.hpp"
#include "support/sample_projects.hpp"
#include "support/sample_sections.hpp"

namespace korven::commands {
namespace {

// Work that a command leaves unsaved, beside the project "muro.kvd".
class LavoroNonSalvato : public test::BancoProgramma {
 protected:
    LavoroNonSalvato() {
        test::metti(muro, base::inCp1252(project::testoProgetto(test::progettoSemplice())));
        forme.sezione = [this] {
            project::Progetto.sezione.fck = ++fck;
            project::modificato = true;
        };
        forme.sezioneDa = [this](std::size_t) { forme.sezione(); };
        forme.anteprima = [](const std::string&) {};
    }
    [[nodiscard]] bool recuperato() const {
        return test::contenuto(ambiente.lavori / "muro_recuperato.kvd") ==
               byteRecupero(project::Progetto, muro);
    }
    [[nodiscard]] bool nessunRecupero() const {
        return !std::filesystem::exists(ambiente.lavori / "muro_recuperato.kvd");
    }

    const std::string muro = ambiente.lavori / "muro.kvd";
    FormeProgramma forme;
    double fck = 25;
};

TEST_F(LavoroNonSalvato, IsInTheRescueFileAfterEachConfirmedForm) {
    auto p = programma(forme);
    ASSERT_TRUE(p.documento().apriAllAvvio(muro));
    EXPECT_TRUE(nessunRecupero());
    p.esegui(voceMenu("EditRigidezza"));
    EXPECT_TRUE(recuperato());
    p.editaDa({masks::senzaMaschera, {1, 3}});
    EXPECT_EQ(project::Progetto.sezione.fck, 27);
    EXPECT_TRUE(recuperato());
}

TEST_F(LavoroNonSalvato, LeavesNoRescueFileOnceItIsSavedOrGivenUp) {
    auto p = programma(forme);
    ASSERT_TRUE(p.documento().apriAllAvvio(muro));
    p.esegui(voceMenu("EditRigidezza"));
    nomi.salvati = {muro};
    dialogo.risposte = {base::Risposta::si};
    p.esegui(voceMenu("FileSalva"));
    EXPECT_TRUE(nessunRecupero());

    p.esegui(voceMenu("EditRigidezza"));
    test::metti(ambiente.lavori / "altro.kvd", test::contenuto(muro));
    dialogo.risposte = {base::Risposta::annulla, base::Risposta::no};
    p.documento().apri(ambiente.lavori / "altro.kvd");
    EXPECT_TRUE(recuperato());
    p.documento().apri(ambiente.lavori / "altro.kvd");
    EXPECT_TRUE(nessunRecupero());
    EXPECT_EQ(project::fileCorrente, ambiente.lavori / "altro.kvd");

    p.esegui(voceMenu("EditRigidezza"));
    EXPECT_TRUE(std::filesystem::exists(ambiente.lavori / "altro_recuperato.kvd"));
    dialogo.risposte = {base::Risposta::annulla, base::Risposta::no};
    EXPECT_FALSE(p.esegui(voceMenu("fine")));
    EXPECT_TRUE(std::filesystem::exists(ambiente.lavori / "altro_recuperato.kvd"));
    EXPECT_TRUE(p.esegui(voceMenu("fine")));
    EXPECT_FALSE(std::filesystem::exists(ambiente.lavori / "altro_recuperato.kvd"));
}

// Given up for a project that turns out to be none: the error ends the program, and the work that
// was open is rescued in the file that is there.
TEST_F(LavoroNonSalvato, IsRescuedOnceWhenAnErrorEndsTheProgram) {
    auto p = programma(forme);
    ASSERT_TRUE(p.documento().apriAllAvvio(muro));
    p.esegui(voceMenu("EditRigidezza"));
    test::metti(ambiente.lavori / "rotto.kvd", "due");
    dialogo.risposte = {base::Risposta::no};
    EXPECT_THROW(p.documento().apri(ambiente.lavori / "rotto.kvd"), base::ErroreFile);
    EXPECT_EQ(recuperaProgetto(), ambiente.lavori / "muro_recuperato.kvd");
    EXPECT_TRUE(recuperato());
    EXPECT_FALSE(std::filesystem::exists(ambiente.lavori / "muro_recuperato_2.kvd"));
}

// The session ends while a form is open or a run goes on: what its user has answered holds also for
// what the command under way still leaves.
TEST_F(LavoroNonSalvato, LeavesNoRescueFileOfASessionThatEndsDuringACommand) {
    Programma* aperto = nullptr;
    forme.editacfg = [&] { EXPECT_TRUE(aperto->fineSessione(true)); };
    auto p = programma(forme);
    aperto = &p;
    ASSERT_TRUE(p.documento().apriAllAvvio(muro));
    p.esegui(voceMenu("EditRigidezza"));
    EXPECT_TRUE(recuperato());
    dialogo.risposte = {base::Risposta::no};
    p.esegui(voceMenu("configura"));
    EXPECT_TRUE(nessunRecupero());
    p.tieniAlSicuro();
    EXPECT_TRUE(nessunRecupero());
    p.esegui(voceMenu("EditRigidezza"));  // the end was called off by another program
    EXPECT_TRUE(recuperato());
}

TEST_F(LavoroNonSalvato, IsKeptSafeNowAndThenButNotDuringARun) {
    Programma* aperto = nullptr;
    bool inForma = false;
    bool primaDiMostrare = false, rifatto = false;
    forme.anteprima = [&](const std::string&) {
        primaDiMostrare = recuperato();
        std::filesystem::remove(ambiente.lavori / "muro_recuperato.kvd");
        aperto->tieniAlSicuro();
        rifatto = recuperato();
    };
    forme.editacfg = [&] {
        project::Progetto.titoli[1] = "confermato prima";
        aperto->tieniAlSicuro();
        inForma = recuperato();
    };
    auto p = programma(forme);
    aperto = &p;
    ASSERT_TRUE(p.documento().apriAllAvvio(muro));
    p.tieniAlSicuro();
    EXPECT_TRUE(nessunRecupero());
    p.esegui(voceMenu("EditRigidezza"));
    std::filesystem::remove(ambiente.lavori / "muro_recuperato.kvd");
    p.tieniAlSicuro();
    EXPECT_TRUE(recuperato());
    p.esegui(voceMenu("configura"));
    EXPECT_TRUE(inForma);
    std::filesystem::remove(ambiente.lavori / "muro_recuperato.kvd");
    avanzamento.adOgniIterazione = [&](const analysis::StatoIterazione&) {
        p.tieniAlSicuro();
        EXPECT_TRUE(nessunRecupero());
    };
    p.esegui(voceMenu("StampaVideo"));
    EXPECT_GT(avanzamento.iterazioni, 0);
    EXPECT_TRUE(primaDiMostrare);
    EXPECT_TRUE(rifatto);
    EXPECT_TRUE(recuperato());
}

// A drawing may stand on the screen for hours: the stiffness that its run has taken from the
// section is safe before it is shown.
TEST_F(LavoroNonSalvato, HoldsTheStiffnessOfARunWhileItsDrawingIsShown) {
    plot::scriviConfigurazione(ambiente.programma / "module06ita.cfg",
                               test::configurazioneDiProva());
    plot::statoPlot = {};
    bool mostrata = false;
    forme.grafica = [&] {
        mostrata = true;
        EXPECT_GT(project::Progetto.rigidezzaEJ, 0);
        EXPECT_TRUE(recuperato());
    };
    forme.sezione = [] {
        project::Progetto.sezione = structure::diaframmaSimmetrico();
        project::Progetto.rigidezzaEJ = 0;
        project::modificato = true;
    };
    auto p = programma(forme);
    ASSERT_TRUE(p.documento().apriAllAvvio(muro));
    p.esegui(voceMenu("EditRigidezza"));
    dialogo.risposte = {base::Risposta::si};  // to take the stiffness over
    p.esegui(voceMenu("GraficaMomenti"));
    EXPECT_TRUE(mostrata);
    plot::statoPlot = {};
}

}  // namespace
}  // namespace korven::commands
