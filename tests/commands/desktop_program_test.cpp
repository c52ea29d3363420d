#include "commands/desktop_program.hpp"

#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <tuple>

#include "analysis/calcolo_paratia.hpp"
#include "analysis/run_flags.hpp"
#include "base/code_page.hpp"
#include "base/folders/file_lock.hpp"
#include "base/folders/file_names.hpp"
#include "project/project_file.hpp"
#include "support/document_ports.hpp"
#include "support/plot_setup.hpp"
#include "support/program_bench.hpp"
#include "support/sample_projects.hpp"

namespace korven::commands {
namespace {

class ProgrammaTest : public test::BancoProgramma {};

TEST_F(ProgrammaTest, OpensTheHelpAtTheEntryOfEachHelpCommand) {
    std::vector<int> contesti;
    int sommari = 0;
    FormeProgramma forme;
    forme.guida = [&](int contesto) { contesti.push_back(contesto); };
    forme.sommario = [&] { ++sommari; };
    auto p = programma(forme);
    p.esegui(voceMenu("AiutoFile"));
    p.esegui(voceMenu("AiutoEdit"));
    p.esegui(voceMenu("AiutoStampa"));
    EXPECT_EQ(contesti, (std::vector<int>{24, 25, 26}));
    p.esegui(voceMenu("sommario"));
    EXPECT_EQ(sommari, 1);
    EXPECT_EQ(contesti.size(), 3u);
}

TEST_F(ProgrammaTest, NamesTheOpenProjectInTheAboutBox) {
    std::vector<std::string> righe;
    FormeProgramma forme;
    forme.informazioni = [&](const std::string& riga) { righe.push_back(riga); };
    auto p = programma(forme);
    p.esegui(voceMenu("about"));
    project::fileCorrente = "/lavori/muro.kvd";
    p.esegui(voceMenu("about"));
    EXPECT_EQ(righe, (std::vector<std::string>{"", "File corrente: /LAVORI/MURO"}));
}

TEST_F(ProgrammaTest, NeedsNoProjectForTheFormsOfTheDevices) {
    int penne = 0, stampante = 0;
    FormeProgramma forme;
    forme.editacfg = [&] { ++penne; };
    forme.impostaStampante = [&] { ++stampante; };
    auto p = programma(forme);
    p.esegui(voceMenu("configura"));
    p.esegui(voceMenu("PrintSetup"));
    EXPECT_EQ(penne, 1);
    EXPECT_EQ(stampante, 1);
    EXPECT_TRUE(dialogo.messaggi.empty());
}

TEST_F(ProgrammaTest, EndsOnlyThroughTheExit) {
    auto p = programma({});
    project::modificato = true;
    dialogo.risposte = {base::Risposta::annulla, base::Risposta::no};
    EXPECT_FALSE(p.esegui(voceMenu("fine")));
    EXPECT_TRUE(p.esegui(voceMenu("fine")));
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
    p.esegui(voceMenu("StampaVideo"));
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
    p.esegui(voceMenu("StampaVideo"));
    EXPECT_EQ(finestra.ultimoStato, "Calcolo interrotto (fase 2, 1 iterazioni)");
    EXPECT_EQ(finestra.perEsteso,
              "Calcolo interrotto (fase 2, 1 iterazioni): "
              "nessun nodo e nessun tirante cambia stato");
    EXPECT_TRUE(dialogo.messaggi.empty());
    avanzamento.adOgniIterazione = {};
    p.esegui(voceMenu("StampaVideo"));
    EXPECT_EQ(finestra.ultimoStato, aperto);
}

// A wall dug out to its toe: the box says that it is refused, the line below what becomes of it.
TEST_F(ProgrammaTest, TellsInTheStatusLineWhatAWallWithoutASolutionDoes) {
    auto scavato = test::progettoSemplice();
    scavato.nTiranti = 0;
    scavato.tirantiFase[2] = 0;
    scavato.profFase[2] = 11.9;
    const std::string muro = ambiente.lavori / "muro.kvd";
    test::metti(muro, base::inCp1252(project::testoProgetto(scavato)));
    FormeProgramma forme;
    int anteprime = 0;
    forme.anteprima = [&](const std::string&) { ++anteprime; };
    auto p = programma(forme);
    ASSERT_TRUE(p.documento().apriAllAvvio(muro));
    const std::string aperto = finestra.ultimoStato;
    p.esegui(voceMenu("StampaVideo"));
    EXPECT_EQ(anteprime, 0);
    ASSERT_EQ(dialogo.messaggi.size(), 1u);
    EXPECT_EQ(dialogo.messaggi[0].testo, analysis::messaggioSingolare);
    EXPECT_TRUE(finestra.ultimoStato.starts_with("la paratia è un meccanismo nella fase 2: "))
        << finestra.ultimoStato;
    EXPECT_LT(finestra.ultimoStato.size(), finestra.perEsteso.size());

    project::Progetto.profFase[2] = 3;
    p.esegui(voceMenu("StampaVideo"));
    EXPECT_EQ(anteprime, 1);
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
    p.esegui(voceMenu("StampaVideo"));
    EXPECT_EQ(avanzamento.attese.size(), 200u);
    EXPECT_EQ(avanzamento.fineAttese, 1);
    EXPECT_EQ(avanzamento.aperture, 0);
    ASSERT_EQ(dialogo.messaggi.size(), 1u);
    EXPECT_NE(dialogo.messaggi[0].testo.find(": un altro calcolo sta ancora usando"),
              std::string::npos);
    EXPECT_EQ(dialogo.messaggi[0].icona, base::Icona::stop);
    altra.lascia();
    p.esegui(voceMenu("StampaVideo"));
    EXPECT_EQ(avanzamento.aperture, 1);
}

using Nomi = std::vector<std::string>;

// The items that can be chosen.
Nomi sceglibili(const Programma& p) {
    Nomi scelte;
    for (const auto& v : albero())
        if (p.puo(v)) scelte.emplace_back(v.nome);
    return scelte;
}

TEST_F(ProgrammaTest, LetsOnlyThoseCommandsBeChosenThatShowNoFormOrOneThatIsPluggedIn) {
    const Nomi sempre{"FileApri", "FileSalva", "annulla", "ripeti", "duplica", "fine"};
    EXPECT_EQ(sceglibili(programma({})), sempre);
    const std::tuple<const char*, std::function<void(FormeProgramma&)>, Nomi> casi[] = {
        {"maschera",
         [](auto& f) { f.maschera = [](masks::Maschere&) {}; },
         {"EditStratigrafia", "EditParatia", "EditTiranti", "EditFasi", "EditTitoli"}},
        {"sezione", [](auto& f) { f.sezione = [] {}; }, {"EditRigidezza"}},
        {"grafica",
         [](auto& f) { f.grafica = [] {}; },
         {"GraficaMomenti", "GraficaSpostamenti", "GraficaTaglio", "GraficaPressioni",
          "GraficaStruttura", "GraficaStratigrafia"}},
        {"anteprima", [](auto& f) { f.anteprima = [](const std::string&) {}; }, {"StampaVideo"}},
        {"stampa", [](auto& f) { f.stampa = [](const std::string&) {}; }, {"StampaTabulati"}},
        {"esportaDoc", [](auto& f) { f.esportaDoc = [](const std::string&) {}; }, {"espotab"}},
        {"esportaTxt", [](auto& f) { f.esportaTxt = [](const std::string&) {}; }, {"espotabtxt"}},
        {"editacfg", [](auto& f) { f.editacfg = [] {}; }, {"configura"}},
        {"impostaStampante", [](auto& f) { f.impostaStampante = [] {}; }, {"PrintSetup"}},
        {"guida", [](auto& f) { f.guida = [](int) {}; }, {"AiutoFile", "AiutoEdit", "AiutoStampa"}},
        {"sommario", [](auto& f) { f.sommario = [] {}; }, {"sommario"}},
        {"informazioni", [](auto& f) { f.informazioni = [](const std::string&) {}; }, {"about"}},
        {"controlli", [](auto& f) { f.controlli = [] {}; }, {"controlli"}},
        {"risultati", [](auto& f) { f.risultati = [] {}; }, {"risultati"}},
        {"sicurezza", [](auto& f) { f.sicurezza = [] {}; }, {"sicurezza"}},
        {"allegato", [](auto& f) { f.allegato = [] {}; }, {"allegato"}},
        {"confronto", [](auto& f) { f.confronto = [] {}; }, {"confronto"}},
        {"norme", [](auto& f) { f.norme = [] {}; }, {"norme"}},
        {"studio", [](auto& f) { f.studio = [] {}; }, {"studio"}},
        {"nuovo", [](auto& f) { f.nuovo = [] { return std::nullopt; }; }, {"nuovo"}},
        {"lingua", [](auto& f) { f.lingua = [] { return false; }; }, {"lingua"}},
        {"tasti", [](auto& f) { f.tasti = [] {}; }, {"tasti"}},
    };
    std::size_t quanti = sempre.size();
    for (const auto& [forma, inserisci, attesi] : casi) {
        FormeProgramma forme;
        inserisci(forme);
        Nomi sue = sceglibili(programma(forme));
        for (const auto& voce : sempre) std::erase(sue, voce);
        EXPECT_EQ(sue, attesi) << forma;
        quanti += sue.size();
    }
    const auto tutte = albero();
    EXPECT_EQ(quanti, static_cast<std::size_t>(std::count_if(
                          tutte.begin(), tutte.end(), [](const auto& v) { return !apreMenu(v); })));
}

TEST_F(ProgrammaTest, AsksWhetherACommandHasAnythingToDo) {
    FormeProgramma forme;
    const auto p = programma(forme);
    EXPECT_TRUE(p.puo(voceMenu("annulla")));
    EXPECT_FALSE(p.possibile(voceMenu("annulla")));
    EXPECT_FALSE(p.possibile(voceMenu("ripeti")));
    EXPECT_FALSE(p.possibile(voceMenu("duplica")));
    project::fileCorrente = ambiente.lavori / "muro.kvd";
    EXPECT_TRUE(p.possibile(voceMenu("duplica")));
}

// The windows beside the main form have its keys, and stay in use while a drawing is shown.
TEST_F(ProgrammaTest, TakesNoOtherCommandWhileADrawingIsShown) {
    FormeProgramma forme;
    std::vector<std::string_view> possibili;
    const Programma* questo = nullptr;
    forme.grafica = [&] {
        for (const auto& voce : albero())
            if (!apreMenu(voce) && questo->possibile(voce)) possibili.push_back(voce.nome);
    };
    auto p = programma(forme);
    questo = &p;
    EXPECT_TRUE(p.possibile(voceMenu("FileApri")));
    p.produci([](const PorteUscita& porte) { porte.forme.grafica(); });
    EXPECT_EQ(possibili,
              (std::vector<std::string_view>{"controlli", "risultati", "sicurezza", "allegato",
                                             "confronto", "norme", "studio", "tasti"}));
    EXPECT_TRUE(p.possibile(voceMenu("FileApri")));
}

TEST_F(ProgrammaTest, StartsAgainInAnotherLanguageAfterTheQuestionAboutUnsavedWork) {
    bool voluto = false;
    int riavvii = 0;
    FormeProgramma forme;
    forme.lingua = [&] { return voluto; };
    forme.riavvia = [&] { ++riavvii; };
    auto p = programma(forme);
    EXPECT_FALSE(p.esegui(voceMenu("lingua")));
    voluto = true;
    project::fileCorrente = ambiente.lavori / "muro.kvd";
    project::modificato = true;
    dialogo.risposte = {base::Risposta::annulla, base::Risposta::no};
    EXPECT_FALSE(p.esegui(voceMenu("lingua")));
    EXPECT_EQ(riavvii, 0);
    EXPECT_TRUE(p.esegui(voceMenu("lingua")));
    EXPECT_EQ(riavvii, 1);
}

}  // namespace
}  // namespace korven::commands
