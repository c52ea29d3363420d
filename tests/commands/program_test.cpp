#include "commands/program.hpp"

#include <gtest/gtest.h>

#include "analysis/run_flags.hpp"
#include "base/code_page.hpp"
#include "base/file_lock.hpp"
#include "base/file_names.hpp"
#include "project/project_file.hpp"
#include "support/dialog_double.hpp"
#include "support/document_ports.hpp"
#include "support/progress_double.hpp"
#include "support/sample_projects.hpp"

namespace korven::commands {
namespace {

class ProgrammaTest : public ::testing::Test {
 protected:
    Programma programma(FormeProgramma forme) {
        return {dialogo, nomi, finestra, avanzamento, maschere, std::move(forme)};
    }
    test::AmbienteDocumento ambiente;
    test::DialogoFinto dialogo;
    test::DialogoFileFinto nomi;
    test::FinestraFinta finestra;
    test::AvanzamentoFinto avanzamento;
    masks::Maschere maschere;
};

TEST_F(ProgrammaTest, OpensTheHelpAtTheEntryOfEachHelpCommand) {
    std::vector<int> contesti;
    int sommari = 0;
    FormeProgramma forme;
    forme.aiuto = [&](int contesto) { contesti.push_back(contesto); };
    forme.sommario = [&] { ++sommari; };
    auto p = programma(forme);
    p.esegui(Comando::aiutoFile);
    p.esegui(Comando::aiutoEdit);
    p.esegui(Comando::aiutoStampa);
    EXPECT_EQ(contesti, (std::vector<int>{24, 25, 26}));
    p.esegui(Comando::sommario);
    EXPECT_EQ(sommari, 1);
    EXPECT_EQ(contesti.size(), 3u);
}

TEST_F(ProgrammaTest, NamesTheOpenProjectInTheAboutBox) {
    std::vector<std::string> righe;
    FormeProgramma forme;
    forme.informazioni = [&](const std::string& riga) { righe.push_back(riga); };
    auto p = programma(forme);
    p.esegui(Comando::about);
    project::fileCorrente = "/lavori/muro.kvd";
    p.esegui(Comando::about);
    EXPECT_EQ(righe, (std::vector<std::string>{"", "File corrente: /LAVORI/MURO"}));
}

TEST_F(ProgrammaTest, NeedsNoProjectForTheFormsOfTheDevices) {
    int penne = 0, stampante = 0;
    FormeProgramma forme;
    forme.editacfg = [&] { ++penne; };
    forme.impostaStampante = [&] { ++stampante; };
    auto p = programma(forme);
    p.esegui(Comando::configura);
    p.esegui(Comando::printSetup);
    EXPECT_EQ(penne, 1);
    EXPECT_EQ(stampante, 1);
    EXPECT_TRUE(dialogo.messaggi.empty());
}

TEST_F(ProgrammaTest, EndsOnlyThroughTheExit) {
    auto p = programma({});
    project::modificato = true;
    dialogo.risposte = {base::Risposta::annulla, base::Risposta::no};
    EXPECT_FALSE(p.esegui(Comando::fine));
    EXPECT_TRUE(p.esegui(Comando::fine));
    EXPECT_FALSE(p.esegui(Comando::nessuno));
}

TEST_F(ProgrammaTest, AsksAboutUnsavedWorkWhenTheSessionEndsOrRescuesIt) {
    auto p = programma({});
    project::fileCorrente = ambiente.lavori / "muro.kvd";
    project::modificato = true;
    dialogo.risposte = {base::Risposta::annulla, base::Risposta::no};
    EXPECT_FALSE(p.fineSessione(true));
    EXPECT_TRUE(p.fineSessione(true));
    EXPECT_TRUE(std::filesystem::is_empty(ambiente.lavori.percorso()));
    EXPECT_TRUE(p.fineSessione(false));  // nobody to ask
    EXPECT_FALSE(std::filesystem::is_empty(ambiente.lavori.percorso()));
}

TEST_F(ProgrammaTest, StopsARunWhenTheSessionEndsInTheMiddleOfItAndKeepsWhatIsSaved) {
    const std::string muro = ambiente.lavori / "muro.kvd";
    project::Progetto = test::progettoSemplice();
    project::fileCorrente = muro;
    project::modificato = true;
    nomi.salvati = {muro};
    dialogo.risposte = {base::Risposta::annulla, base::Risposta::si};
    std::vector<bool> finisce;
    FormeProgramma forme;
    forme.anteprima = [](const std::string&) { ADD_FAILURE() << "the run was stopped"; };
    auto p = programma(forme);
    avanzamento.adOgniIterazione = [&](const analysis::StatoIterazione&) {
        if (finisce.size() < 2) finisce.push_back(p.fineSessione(true));
    };
    p.esegui(Comando::stampaVideo);
    EXPECT_EQ(finisce, (std::vector{false, true}));
    EXPECT_EQ(avanzamento.iterazioni, 2);  // cancel lets the run go on
    EXPECT_EQ(test::contenuto(muro), base::inCp1252(project::testoProgetto(project::Progetto)));
    EXPECT_FALSE(std::filesystem::exists(ambiente.lavori / "muro.OUT"));
    EXPECT_EQ(project::fileCorrente, muro);
    EXPECT_FALSE(project::modificato);
}

TEST_F(ProgrammaTest, TellsInTheStatusLineWhereARunWasStoppedUntilAnotherGoesThrough) {
    const std::string muro = ambiente.lavori / "muro.kvd";
    test::metti(muro, base::inCp1252(project::testoProgetto(test::progettoSemplice())));
    FormeProgramma forme;
    forme.anteprima = [](const std::string&) {};
    auto p = programma(forme);
    ASSERT_TRUE(p.documento().apriAllAvvio(muro));
    const std::string aperto = finestra.ultimoStato;
    avanzamento.adOgniIterazione = [](const analysis::StatoIterazione& stato) {
        if (stato.fase == 2) analysis::stopCalcolo = true;
    };
    p.esegui(Comando::stampaVideo);
    EXPECT_EQ(finestra.ultimoStato,
              "Calcolo interrotto (fase 2, 1 iterazioni): "
              "nessun nodo e nessun tirante cambia stato");
    EXPECT_TRUE(dialogo.messaggi.empty());
    avanzamento.adOgniIterazione = {};
    p.esegui(Comando::stampaVideo);
    EXPECT_EQ(finestra.ultimoStato, aperto);
}

// The lock of another run is held by the test.
TEST_F(ProgrammaTest, TellsOfAnotherRunThatDoesNotLetGoOfTheResults) {
    const std::string muro = ambiente.lavori / "muro.kvd";
    test::metti(muro, base::inCp1252(project::testoProgetto(test::progettoSemplice())));
    FormeProgramma forme;
    forme.anteprima = [](const std::string&) {};
    auto p = programma(forme);
    ASSERT_TRUE(p.documento().apriAllAvvio(muro));
    base::Serratura altra;
    ASSERT_EQ(altra.prendi(base::nomeSerratura(base::nomeRisultati(muro))),
              base::Serratura::Esito::presa);
    p.esegui(Comando::stampaVideo);
    EXPECT_EQ(avanzamento.attese.size(), 200u);
    EXPECT_EQ(avanzamento.fineAttese, 1);
    EXPECT_EQ(avanzamento.aperture, 0);
    ASSERT_EQ(dialogo.messaggi.size(), 1u);
    EXPECT_NE(dialogo.messaggi[0].testo.find(": un altro calcolo sta ancora usando"),
              std::string::npos);
    EXPECT_EQ(dialogo.messaggi[0].icona, base::Icona::stop);
    altra.lascia();
    p.esegui(Comando::stampaVideo);
    EXPECT_EQ(avanzamento.aperture, 1);
}

TEST_F(ProgrammaTest, SaysWhichCommandsHaveTheirForm) {
    const auto senza = programma({});
    EXPECT_TRUE(senza.puo(Comando::fileApri));
    EXPECT_TRUE(senza.puo(Comando::fileSalva));
    EXPECT_TRUE(senza.puo(Comando::fine));
    for (int c = 1; c <= static_cast<int>(Comando::about); ++c) {
        const auto comando = static_cast<Comando>(c);
        const bool bastaASe = comando == Comando::fileApri || comando == Comando::fileSalva ||
                              comando == Comando::fine;
        EXPECT_EQ(senza.puo(comando), bastaASe) << voce(comando).nome;
    }
    FormeProgramma forme;
    forme.maschera = [](masks::Maschere&) {};
    forme.sezione = forme.grafica = forme.editacfg = forme.impostaStampante =
        forme.sommario = [] {};
    forme.anteprima = forme.stampa = forme.esportaDoc = forme.esportaTxt =
        forme.informazioni = [](const std::string&) {};
    forme.aiuto = [](int) {};
    const auto tutte = programma(forme);
    for (int c = 1; c <= static_cast<int>(Comando::about); ++c)
        EXPECT_TRUE(tutte.puo(static_cast<Comando>(c)));
}

}  // namespace
}  // namespace korven::commands
