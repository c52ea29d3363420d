#include "commands/desktop_program.hpp"

#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <map>
#include <tuple>

#include "analysis/calcolo_paratia.hpp"
#include "analysis/run_flags.hpp"
#include "base/code_page.hpp"
#include "base/file_error.hpp"
#include "base/folders/file_lock.hpp"
#include "base/folders/file_names.hpp"
#include "commands/fatal_error.hpp"
#include "commands/rescue/kept_rescue.hpp"
#include "drawings/hatch_library.hpp"
#include "plot/plot_engine.hpp"
#include "project/project_file.hpp"
#include "support/dialog_double.hpp"
#include "support/document_ports.hpp"
#include "support/hatch_files.hpp"
#include "support/plain_masks.hpp"
#include "support/plot_setup.hpp"
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
    EXPECT_EQ(finestra.ultimoStato,
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

// Work that a command leaves unsaved, beside the project "muro.kvd".
class LavoroNonSalvato : public ProgrammaTest {
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
    EXPECT_TRUE(recuperato());
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
              (std::vector<std::string_view>{"controlli", "risultati", "sicurezza", "tasti"}));
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

// With a project open, pens and patterns to draw with, and forms that say that they were shown.
class MenuIntero : public ProgrammaTest {
 protected:
    MenuIntero() {
        plot::scriviConfigurazione(ambiente.programma / "module06ita.cfg",
                                   test::configurazioneDiProva());
        test::scriviLibreria(ambiente.programma, {});
        drawings::dimenticaCampiture();  // those of another test's folder
        plot::statoPlot = {};
        maschere.leggiMaschere(test::maschereSemplici(cartella));
        project::Progetto = test::progettoSemplice();
        project::fileCorrente = ambiente.lavori / "muro.kvd";

        const auto dice = [this](const char* forma) { return [=, this] { mostrate += forma; }; };
        const auto riceve = [this](const char* forma) {
            return [=, this](const std::string&) { mostrate += forma; };
        };
        forme.maschera = [this](masks::Maschere& m) { mostrate += "mask " + m.corrente().titolo; };
        forme.sezione = dice("section");
        forme.grafica = [this] { mostrate += "viewer of " + plot::statoPlot.nome; };
        forme.anteprima = riceve("preview");
        forme.stampa = riceve("printer");
        forme.esportaDoc = riceve("doc");
        forme.esportaTxt = riceve("txt");
        forme.editacfg = dice("pens");
        forme.impostaStampante = dice("printer set-up");
        forme.guida = [this](int contesto) { mostrate += "page " + std::to_string(contesto); };
        forme.sommario = dice("contents");
        forme.informazioni = riceve("about box");
        forme.controlli = dice("remarks");
        forme.risultati = dice("results");
        forme.sicurezza = dice("safety");
        forme.nuovo = [this] {
            mostrate += "pattern, ";
            return std::string();
        };
        forme.lingua = [this] {
            mostrate += "languages, ";
            return true;
        };
        forme.riavvia = dice("start again, ");
        forme.tasti = dice("keys");
    }
    ~MenuIntero() override { plot::statoPlot = {}; }

    // What an item brings about.
    std::string esito(std::string_view nome) {
        auto p = programma(forme);
        mostrate.clear();
        nomi.attuali.clear();
        nomi.proposte.clear();
        finestra.ultimoStato.clear();
        nomi.proposteNuovo.clear();
        if (p.esegui(voceMenu(nome))) mostrate += "end";
        if (!nomi.attuali.empty()) mostrate += "open dialog";
        if (!nomi.proposte.empty()) mostrate += "save dialog";
        if (finestra.ultimoStato.starts_with("Nulla")) mostrate += finestra.ultimoStato;
        if (!nomi.proposteNuovo.empty()) mostrate += "name dialog";
        return mostrate;
    }

    test::CartellaProvvisoria cartella;
    FormeProgramma forme;
    std::string mostrate;
};

TEST_F(MenuIntero, BringsAboutWhatEachItemSays) {
    const std::map<std::string_view, std::string> attesi = {
        {"FileApri", "open dialog"},
        {"FileSalva", "save dialog"},
        {"PrintSetup", "printer set-up"},
        {"AiutoFile", "page 24"},
        {"EditStratigrafia", "mask S"},
        {"EditParatia", "mask D"},
        {"EditRigidezza", "section"},
        {"EditTiranti", "mask A"},
        {"EditFasi", "mask F"},
        {"EditTitoli", "mask T"},
        {"AiutoEdit", "page 25"},
        {"GraficaMomenti", "viewer of momenti"},
        {"GraficaSpostamenti", "viewer of spostamenti"},
        {"GraficaTaglio", "viewer of taglio"},
        {"GraficaPressioni", "viewer of pressioni"},
        {"GraficaStruttura", "viewer of sezione"},
        {"GraficaStratigrafia", "viewer of stratigrafia"},
        {"StampaVideo", "preview"},
        {"StampaTabulati", "printer"},
        {"espotab", "doc"},
        {"espotabtxt", "txt"},
        {"configura", "pens"},
        {"AiutoStampa", "page 26"},
        {"annulla", "Nulla da annullare"},
        {"ripeti", "Nulla da ripetere"},
        {"controlli", "remarks"},
        {"risultati", "results"},
        {"sicurezza", "safety"},
        {"nuovo", "pattern, name dialog"},
        {"duplica", "name dialog"},
        {"lingua", "languages, start again, end"},
        {"tasti", "keys"},
        {"fine", "end"},
        {"sommario", "contents"},
        {"about", "about box"},
    };
    std::size_t provate = 0;
    for (const auto& v : albero()) {
        if (apreMenu(v)) continue;
        ++provate;
        ASSERT_TRUE(attesi.contains(v.nome)) << v.nome;
        EXPECT_EQ(esito(v.nome), attesi.at(v.nome)) << v.nome;
    }
    EXPECT_EQ(provate, attesi.size());
    EXPECT_TRUE(dialogo.messaggi.empty());
}

}  // namespace
}  // namespace korven::commands
