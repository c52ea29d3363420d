#include "commands/output_commands.hpp"

#include <gtest/gtest.h>

#include <cmath>
#include <span>

#include "analysis/run_flags.hpp"
#include "base/number_text.hpp"
#include "base/table.hpp"
#include "base/value_error.hpp"
#include "commands/desktop_program.hpp"
#include "drawings/hatch_library.hpp"
#include "plot/plot_engine.hpp"
#include "project/project_file.hpp"
#include "support/dialog_double.hpp"
#include "support/document_ports.hpp"
#include "support/hatch_files.hpp"
#include "support/plot_setup.hpp"
#include "support/progress_double.hpp"
#include "support/sample_projects.hpp"

namespace korven::commands {
namespace {

using base::Puntatore;
using project::Progetto;

constexpr std::string_view relazioni[] = {"StampaVideo", "StampaTabulati", "espotab", "espotabtxt"};
constexpr std::string_view diagrammi[] = {"GraficaPressioni", "GraficaSpostamenti",
                                          "GraficaMomenti", "GraficaTaglio"};
constexpr std::string_view senzaCalcolo[] = {"GraficaStruttura", "GraficaStratigrafia"};

class Produci : public ::testing::Test {
 protected:
    Produci() {
        const auto riceve = [this](const char* chi) {
            return [this, chi](const std::string& relazione) {
                ricevute.push_back(std::string(chi) + " " + relazione);
                esisteva = std::filesystem::exists(relazione);
                puntatore = dialogo.puntatori.back();
            };
        };
        forme.anteprima = riceve("anteprima");
        forme.stampa = riceve("stampa");
        forme.esportaDoc = riceve("doc");
        forme.esportaTxt = riceve("txt");
        forme.grafica = [this] {
            ++viste;
            nomeAllaVista = project::fileCorrente;
        };
        Progetto = test::progettoSemplice();
        project::fileCorrente = muro;
    }
    void esegui(std::string_view comando) {
        Programma(dialogo, nomi, finestra, avanzamento, maschere, forme).esegui(voceMenu(comando));
    }

    test::AmbienteDocumento ambiente;
    test::DialogoFinto dialogo;
    test::DialogoFileFinto nomi;
    test::FinestraFinta finestra;
    test::AvanzamentoFinto avanzamento;
    masks::Maschere maschere;
    FormeProgramma forme;
    std::string muro = ambiente.lavori / "muro.kvd";
    std::vector<std::string> ricevute;
    bool esisteva = false;
    Puntatore puntatore = Puntatore::normale;
    int viste = 0;
    std::string nomeAllaVista;
};

TEST_F(Produci, RefusesEveryOutputWithoutAProject) {
    project::fileCorrente.clear();
    for (const auto& gruppo : {std::span<const std::string_view>(relazioni),
                               std::span<const std::string_view>(diagrammi),
                               std::span<const std::string_view>(senzaCalcolo)})
        for (const auto comando : gruppo) {
            dialogo.messaggi.clear();
            esegui(comando);
            ASSERT_EQ(dialogo.messaggi.size(), 1u);
            EXPECT_EQ(dialogo.messaggi[0].testo,
                      comando == "GraficaStratigrafia"
                          ? "Non e' possibile produrre un output grafico prima di aver aperto un "
                            "file."
                          : "Non e' possibile produrre un output prima di aver aperto un file.");
            EXPECT_EQ(dialogo.messaggi[0].titolo, "ATTENZIONE!");
        }
    EXPECT_TRUE(ricevute.empty());
    EXPECT_EQ(viste, 0);
}

TEST_F(Produci, HandsTheReportToTheFormOfEachCommand) {
    for (const auto comando : relazioni) esegui(comando);
    const std::string tab = " " + (ambiente.lavori / "muro.TAB");
    EXPECT_EQ(ricevute, (std::vector<std::string>{"anteprima" + tab, "stampa" + tab, "doc" + tab,
                                                  "txt" + tab}));
    EXPECT_TRUE(esisteva);
    EXPECT_EQ(avanzamento.aperture, 1);  // the others found the results up to date
}

TEST_F(Produci, ShowsTheHourglassUntilTheReportIsHandedOver) {
    for (const auto comando : relazioni) {
        esegui(comando);
        EXPECT_EQ(puntatore, Puntatore::clessidra);
        EXPECT_EQ(dialogo.puntatori.back(), Puntatore::normale);
    }
}

TEST_F(Produci, DoesNotGoOnAfterARefusedRun) {
    Progetto.lunghezzaParatia = 0;
    for (const auto comando : relazioni) esegui(comando);
    for (const auto comando : diagrammi) esegui(comando);
    EXPECT_EQ(dialogo.messaggi.size(), 8u);
    EXPECT_TRUE(ricevute.empty());
    EXPECT_EQ(viste, 0);
    EXPECT_EQ(dialogo.puntatori.back(), Puntatore::normale);
}

TEST_F(Produci, DoesNotGoOnAfterAStoppedRun) {
    avanzamento.adOgniIterazione = [](const auto&) { analysis::stopCalcolo = true; };
    esegui("StampaVideo");
    EXPECT_TRUE(analysis::erroreCalcolo);
    EXPECT_TRUE(ricevute.empty());
    EXPECT_FALSE(std::filesystem::exists(ambiente.lavori / "muro.OUT"));
}

class ProduciDisegni : public Produci {
 protected:
    ProduciDisegni() {
        plot::scriviConfigurazione(ambiente.programma / "module06ita.cfg",
                                   test::configurazioneDiProva());
        drawings::dimenticaCampiture();  // those of another test's folder
        plot::statoPlot = {};
    }
    ~ProduciDisegni() override { plot::statoPlot = {}; }
};

TEST_F(ProduciDisegni, ShowEachDiagramOfTheRunInTheViewer) {
    for (const auto comando : diagrammi) {
        plot::statoPlot = {};
        esegui(comando);
        EXPECT_FALSE(plot::statoPlot.archivio.lineeInMemoria().empty());
        EXPECT_EQ(nomeAllaVista, muro);  // the run has given the name back
    }
    EXPECT_EQ(viste, 4);
    EXPECT_EQ(avanzamento.aperture, 1);
    EXPECT_TRUE(ricevute.empty());
}

TEST_F(ProduciDisegni, DrawTheSectionWithoutARun) {
    Progetto.lunghezzaParatia = 0;  // a run would be refused
    esegui("GraficaStruttura");
    EXPECT_EQ(viste, 1);
    EXPECT_EQ(avanzamento.aperture, 0);
    EXPECT_TRUE(dialogo.messaggi.empty());
}

// A page 21 cm high: 28.5 - 21 + 0.1.
TEST_F(ProduciDisegni, DrawTheLogForThePageOfThePrinter) {
    test::scriviLibreria(ambiente.programma, {});
    forme.altezzaPagina = [] { return 21.0; };
    esegui("GraficaStratigrafia");
    EXPECT_EQ(viste, 1);
    EXPECT_DOUBLE_EQ(plot::statoPlot.estensione.ymin, 7.6);
}

TEST_F(ProduciDisegni, TakeAwayTheViewerOfALogThatItsUserStops) {
    struct Fermo : plot::SorvegliaDisegno {
        bool fermare() override { return plot::statoPlot.archivio.lineeInMemoria().size() >= 5; }
    } fermo;
    test::scriviLibreria(ambiente.programma, {});
    plot::statoPlot.sorveglia = &fermo;
    int tolte = 0;
    forme.chiudiGrafica = [&tolte] { ++tolte; };
    esegui("GraficaStratigrafia");
    EXPECT_EQ(viste, 0);
    EXPECT_EQ(tolte, 1);
    EXPECT_TRUE(plot::statoPlot.archivio.lineeInMemoria().empty());
    EXPECT_TRUE(dialogo.messaggi.empty());
}

// A scale of 45 km in steps of 10 m has more numbers than a drawing has room for texts.
TEST_F(ProduciDisegni, TellTheLayerOfALogThatHasTooManyTexts) {
    test::scriviLibreria(ambiente.programma, {});
    Progetto.profStrato[2] = 45000;
    try {
        esegui("GraficaStratigrafia");
        FAIL() << "drawn";
    } catch (const base::ErroreIndice& errore) {
        const std::string detto = errore.what();
        EXPECT_TRUE(detto.starts_with("strato 2: Prof. [m] = 45000: ")) << detto;
        EXPECT_TRUE(detto.ends_with(" (il disegno ha più testi di quanti ne possa tenere: 2000)"))
            << detto;
    }
}

TEST_F(ProduciDisegni, DrawTheLogWithoutARun) {
    test::scriviLibreria(ambiente.programma, {});
    Progetto.lunghezzaParatia = 0;
    esegui("GraficaStratigrafia");
    EXPECT_EQ(viste, 1);
    EXPECT_EQ(avanzamento.aperture, 0);
    EXPECT_FALSE(plot::statoPlot.archivio.lineeInMemoria().empty());
    EXPECT_TRUE(dialogo.messaggi.empty());
}

TEST_F(ProduciDisegni, DoNotOpenTheViewerOnALogThatWasRefused) {
    Progetto.nStrati = 0;
    esegui("GraficaStratigrafia");
    EXPECT_EQ(viste, 0);
    EXPECT_EQ(dialogo.messaggi.size(), 1u);
}

// More lines than memory holds go to files, here on a drive where the first of them is a folder.
TEST_F(ProduciDisegni, TellOfALogThatFindsNoRoomAndGoOn) {
    const auto prima = std::filesystem::current_path();
    std::filesystem::current_path(ambiente.lavori.percorso());
    ::setenv("windir", "Z:\\WINDOWS", 1);
    std::filesystem::create_directory("Z:\\plttmp1.tmp");
    test::scriviLibreria(
        ambiente.programma,
        {{5, {0.005, std::vector<drawings::TrattoCampitura>(4000, {0, 0, 0, 2}), "fitta"}}});
    for (int i = 1; i <= Progetto.nStrati; ++i) Progetto.descrStrato[i] = "105 strato";
    esegui("GraficaStratigrafia");
    ::unsetenv("windir");
    std::filesystem::current_path(prima);
    EXPECT_EQ(viste, 0);
    ASSERT_EQ(dialogo.messaggi.size(), 1u);
    EXPECT_NE(dialogo.messaggi[0].testo.find("plttmp1.tmp"), std::string::npos);
    EXPECT_EQ(dialogo.messaggi[0].icona, base::Icona::stop);
}

TEST_F(ProduciDisegni, TellOfAResultThatIsTooLargeLikeOfARefusedRun) {
    // As the caption of the progress does when a moment grows beyond all numbers.
    avanzamento.adOgniIterazione = [](const auto&) { (void)base::testoNumero(HUGE_VAL); };
    esegui("GraficaMomenti");
    EXPECT_TRUE(analysis::erroreCalcolo);
    EXPECT_EQ(viste, 0);
    ASSERT_EQ(dialogo.messaggi.size(), 1u);
    EXPECT_EQ(dialogo.messaggi[0].testo, base::ErroreValore().what());
    EXPECT_FALSE(std::filesystem::exists(ambiente.lavori / "muro.OUT"));
}

// A folder that bears the name of a file: nobody can write there, the administrator neither.
TEST_F(Produci, TellsOfResultsThatCantBeWrittenAndGoesOn) {
    std::filesystem::create_directory(ambiente.lavori / "muro.OUT");
    for (const char* comando : {"StampaVideo", "GraficaMomenti"}) {
        dialogo.messaggi.clear();
        analysis::erroreCalcolo = false;
        esegui(comando);
        EXPECT_TRUE(analysis::erroreCalcolo);
        ASSERT_EQ(dialogo.messaggi.size(), 1u);
        EXPECT_TRUE(dialogo.messaggi[0].testo.starts_with(ambiente.lavori / "muro.OUT"))
            << dialogo.messaggi[0].testo;
        EXPECT_EQ(project::fileCorrente, muro);
        EXPECT_EQ(dialogo.puntatori.back(), Puntatore::normale);
    }
    EXPECT_TRUE(ricevute.empty());
    EXPECT_EQ(viste, 0);
}

TEST_F(Produci, KeepsTheResultsWhenOnlyTheReportCantBeWritten) {
    std::filesystem::create_directory(ambiente.lavori / "muro.TAB");
    esegui("StampaVideo");
    EXPECT_TRUE(analysis::erroreCalcolo);
    EXPECT_EQ(dialogo.messaggi.size(), 1u);
    EXPECT_TRUE(ricevute.empty());
    EXPECT_TRUE(std::filesystem::exists(ambiente.lavori / "muro.OUT"));
    std::filesystem::remove(ambiente.lavori / "muro.TAB");
    esegui("StampaVideo");
    EXPECT_FALSE(analysis::erroreCalcolo);
    EXPECT_EQ(ricevute.size(), 1u);
}

}  // namespace
}  // namespace korven::commands
