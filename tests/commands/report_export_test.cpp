#include "commands/report_export.hpp"

#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <functional>
#include <string>
#include <vector>

#include "base/code_page.hpp"
#include "base/file_error.hpp"
#include "base/process/avvia_programma.hpp"
#include "base/program_folder.hpp"
#include "project/output_guard.hpp"
#include "support/dialog_double.hpp"
#include "support/failing_disk.hpp"
#include "support/temporary_folder.hpp"

namespace korven::commands {
namespace {

using Lines = std::vector<std::string>;

constexpr const char* markup = "#RESET\r\n#HEADER h\r\ntesto\r\n#ENDDOCUMENT\r\n";
constexpr const char* text = "h\r\ntesto\r\n\r\n";

/// Starts nothing, keeps what was to be started and answers as told.
class ProgrammiAvviati : public base::AvviaProgramma {
 public:
    bool avvia(const std::string& programma, const std::vector<std::string>& argomenti,
               base::Finestra finestra) override {
        constexpr const char* finestre[] = {"normale", "massima", "minima"};
        chiamate.push_back(std::string("avvia ") + finestre[static_cast<int>(finestra)] +
                           riga(programma, argomenti));
        return parte;
    }
    std::optional<int> esegui(const std::string& programma,
                              const std::vector<std::string>& argomenti) override {
        chiamate.push_back("esegui" + riga(programma, argomenti));
        if (alPosto) alPosto();
        return codice;
    }
    bool apri(const std::string& file) override {
        chiamate.push_back("apri " + file);
        return predefinito;
    }

    bool parte = true;
    bool predefinito = true;
    std::optional<int> codice = 0;
    std::function<void()> alPosto;  ///< what a program that is waited for does
    std::vector<std::string> chiamate;

 private:
    static std::string riga(const std::string& programma,
                            const std::vector<std::string>& argomenti) {
        std::string parole = " " + programma;
        for (const auto& argomento : argomenti) parole += " [" + argomento + "]";
        return parole;
    }
};

class ReportExport : public testing::Test {
 protected:
    ReportExport() {
        ::unsetenv("windir");
        base::impostaCartellaProgramma(folder.percorso());
        test::metti(report, markup);
    }
    ~ReportExport() override {
        ::unsetenv("windir");
        base::impostaCartellaProgramma({});
        project::progettiProtetti = {};
    }

    void exportTxt() { esportaTxt(report, ports); }
    void exportDoc() { esportaDoc(report, ports); }
    // A program that editor.cfg may name, and the file itself.
    std::string viewer(const std::string& name) {
        test::metti(folder / name, "");
        return folder / name;
    }
    void editors(const std::string& content) { test::metti(folder / "editor.cfg", content); }

    test::CartellaProvvisoria folder;
    const std::string report = folder / "muro.TAB";
    const std::string txt = folder / "muro.txt";
    const std::string doc = folder / "muro.doc";
    test::DialogoFinto dialog;
    ProgrammiAvviati programs;
    Lines proposed;
    std::string answer;
    PorteEsportazione ports{dialog, programs, [this](const std::string& name) {
                                proposed.push_back(name);
                                return answer;
                            }};
};

TEST(NomeTxtScelto, CutsAnExtensionOfUpToThreeCharactersAndAddsItsOwn) {
    EXPECT_EQ(nomeTxtScelto("/a/muro"), "/a/muro.txt");
    EXPECT_EQ(nomeTxtScelto("/a/muro.txt"), "/a/muro.txt");
    EXPECT_EQ(nomeTxtScelto("/a/muro.TXT"), "/a/muro.txt");
    EXPECT_EQ(nomeTxtScelto("/a/muro.c"), "/a/muro.txt");
    EXPECT_EQ(nomeTxtScelto("/a/muro."), "/a/muro.txt");
    EXPECT_EQ(nomeTxtScelto("/a/muro.1.2"), "/a/muro.1.txt");
    EXPECT_EQ(nomeTxtScelto("/a/muro.text"), "/a/muro.text.txt");
    EXPECT_EQ(nomeTxtScelto("/a/muro.tàà"), "/a/muro.txt");  // characters, not bytes
}

// The point is looked for in the last four characters of the path, be it that of a folder.
TEST(NomeTxtScelto, CutsAtThePointOfAFolderBeforeAShortName) {
    EXPECT_EQ(nomeTxtScelto("/a.b/x"), "/a.txt");
}

TEST(NomeTxtScelto, EndsTheExportWithoutAName) {
    for (const auto* none :
         {"", ".txt", "*", "*.txt", "*.TXT", ".abc", "/a/.txt", "/a/*.txt", "/a/"})
        EXPECT_EQ(nomeTxtScelto(none), std::nullopt) << none;
}

TEST_F(ReportExport, MissingMarkupProducesNoDialog) {
    std::filesystem::remove(report);
    test::metti(txt, "old");
    exportTxt();
    exportDoc();
    EXPECT_TRUE(dialog.domande.empty());
    EXPECT_TRUE(dialog.messaggi.empty());
    EXPECT_TRUE(programs.chiamate.empty());
    EXPECT_EQ(test::contenuto(txt), "old");
}

TEST_F(ReportExport, WritesTheTextBesideTheMarkupWithoutAQuestion) {
    exportTxt();
    EXPECT_EQ(test::contenuto(txt), text);
    EXPECT_TRUE(dialog.domande.empty());
}

TEST_F(ReportExport, AsksBeforeItReplacesATextAndYesIsEnough) {
    test::metti(txt, "old");
    dialog.risposta = base::Risposta::si;
    exportTxt();
    EXPECT_EQ(dialog.domande,
              (std::vector<test::DialogoFinto::Detto>{{"Volete sovrascrivere il file\n" + txt + "?",
                                                       "ATTENZIONE!", base::Icona::avviso}}));
    EXPECT_TRUE(proposed.empty());
    EXPECT_EQ(test::contenuto(txt), text);
    EXPECT_EQ(programs.chiamate, Lines{"apri " + txt});
}

TEST_F(ReportExport, TakesAnotherNameOnNoWithoutAFurtherQuestion) {
    test::metti(txt, "old");
    test::metti(folder / "altro.txt", "old");
    dialog.risposta = base::Risposta::no;
    answer = folder / "altro";
    exportTxt();
    EXPECT_EQ(proposed, Lines{txt});
    EXPECT_EQ(dialog.domande.size(), 1u);
    EXPECT_EQ(test::contenuto(txt), "old");
    EXPECT_EQ(test::contenuto(folder / "altro.txt"), text);
    EXPECT_EQ(programs.chiamate, Lines{"apri " + folder / "altro.txt"});
}

TEST_F(ReportExport, EndsWhenNoIsFollowedByAnEmptyName) {
    test::metti(txt, "old");
    for (const auto reply : {base::Risposta::no, base::Risposta::annulla}) {
        dialog.risposta = reply;
        exportTxt();
    }
    EXPECT_EQ(proposed.size(), 2u);
    EXPECT_EQ(test::contenuto(txt), "old");
    EXPECT_TRUE(programs.chiamate.empty());
    EXPECT_TRUE(dialog.messaggi.empty());
}

TEST_F(ReportExport, ShowsTheTextInTheNotepadOfTheSystemAndLooksNoFurther) {
    ::setenv("windir", folder.percorso().c_str(), 1);
    const std::string notepad = viewer("notepad.exe");
    editors("\r\n" + viewer("vedi") + "\r\n");
    programs.parte = programs.predefinito = false;
    exportTxt();
    EXPECT_EQ(programs.chiamate, Lines{"avvia massima " + notepad + " [" + txt + "]"});
    EXPECT_TRUE(dialog.messaggi.empty());
}

TEST_F(ReportExport, ShowsTheTextInTheSecondProgramOfTheEditorFile) {
    ::setenv("windir", folder.percorso().c_str(), 1);  // without a notepad
    editors(viewer("primo") + "\r\n" + viewer("secondo") + "\r\n");
    exportTxt();
    EXPECT_EQ(programs.chiamate, Lines{"avvia minima " + folder / "secondo" + " [" + txt + "]"});
}

TEST_F(ReportExport, ShowsTheTextInTheDesktopsOwnProgramOtherwise) {
    for (const std::string content : {"", "uno\r\n", "uno\r\ndue\r\n", "\r\n\r\n"}) {
        editors(content);
        dialog.risposta = base::Risposta::si;
        programs.chiamate.clear();
        exportTxt();
        EXPECT_EQ(programs.chiamate, Lines{"apri " + txt}) << content;
    }
}

TEST_F(ReportExport, TriesTheDesktopsProgramWhenThatOfTheEditorFileDoesNotStart) {
    editors("\r\n" + viewer("secondo"));
    programs.parte = false;
    exportTxt();
    ASSERT_EQ(programs.chiamate.size(), 2u);
    EXPECT_EQ(programs.chiamate[1], "apri " + txt);
    EXPECT_TRUE(dialog.messaggi.empty());
}

TEST_F(ReportExport, TellsWhereTheTextIsWhenNothingShowsIt) {
    programs.predefinito = false;
    exportTxt();
    EXPECT_EQ(dialog.messaggi,
              (std::vector<test::DialogoFinto::Detto>{
                  {"Non è stato trovato un editor di testi per il formato TXT. Il programma ha "
                   "comunque creato il file:\n" +
                       base::maiuscolo(txt),
                   "ATTENZIONE!", base::Icona::informazione}}));
    EXPECT_EQ(test::contenuto(txt), text);
}

TEST_F(ReportExport, TellsOfATargetThatCantBeWrittenAndGoesOn) {
    test::metti(txt, "old");
    dialog.risposta = base::Risposta::no;
    answer = folder / "manca/altro";
    exportTxt();
    ASSERT_EQ(dialog.messaggi.size(), 1u);
    EXPECT_NE(dialog.messaggi[0].testo.find("altro.txt"), std::string::npos);
    EXPECT_TRUE(programs.chiamate.empty());
}

TEST_F(ReportExport, TellsOfAFullDiskAndLeavesTheTextOfBefore) {
    test::metti(txt, "old");
    dialog.risposta = base::Risposta::si;
    const test::DiscoPieno disk(3);
    esportaTxt(report, {dialog, programs, {}, {}, disk});
    ASSERT_EQ(dialog.messaggi.size(), 1u);
    EXPECT_EQ(dialog.messaggi[0].testo,
              txt + ": impossibile scrivere il file (" + test::nonCeSpazio + ")");
    EXPECT_EQ(test::contenuto(txt), "old");
    EXPECT_TRUE(programs.chiamate.empty());
}

TEST_F(ReportExport, NeverReplacesTheProject) {
    test::metti(txt, "progetto");
    project::progettiProtetti = {.letto = txt, .corrente = {}};
    dialog.risposta = base::Risposta::si;
    exportTxt();
    EXPECT_EQ(dialog.messaggi.size(), 1u);
    EXPECT_EQ(test::contenuto(txt), "progetto");
    project::progettiProtetti.letto = doc;
    test::metti(doc, "progetto");
    exportDoc();
    EXPECT_EQ(dialog.messaggi.size(), 2u);
    EXPECT_EQ(test::contenuto(doc), "progetto");
}

TEST_F(ReportExport, WritesNoTextOfAMarkupWithoutReset) {
    test::metti(report, "testo\r\n");
    exportTxt();
    ASSERT_EQ(dialog.messaggi.size(), 1u);
    EXPECT_FALSE(std::filesystem::exists(txt));
    EXPECT_TRUE(programs.chiamate.empty());
}

TEST_F(ReportExport, LetsABrokenMarkupEndTheProgram) {
    std::string broken = "#RESET\r\n#STARTTABLE\r\n";
    for (int row = 0; row <= 2000; ++row) broken += "a\r\n";
    test::metti(report, broken);
    EXPECT_THROW(exportTxt(), base::ErroreFile);
    EXPECT_FALSE(std::filesystem::exists(txt));
}

TEST_F(ReportExport, RunsTheConverterOnTheMarkupAndShowsItsFile) {
    const std::string converter = base::cartellaEseguibile() + "/outdoc";
    editors(viewer("vedi doc") + "\r\n");
    programs.alPosto = [this] { test::metti(doc, "doc"); };
    exportDoc();
    EXPECT_EQ(programs.chiamate,
              (Lines{"esegui " + converter + " [" + report + "]",
                     "avvia massima " + folder / "vedi doc" + " [" + doc + "]"}));
    EXPECT_TRUE(dialog.messaggi.empty());
    EXPECT_TRUE(dialog.domande.empty());
}

TEST_F(ReportExport, RunsNoConverterOfTheProgramFolder) {
    (void)viewer("outdoc");
    exportDoc();
    EXPECT_EQ(programs.chiamate,
              Lines{"esegui " + base::cartellaEseguibile() + "/outdoc [" + report + "]"});
}

// A converter that ends well and leaves the earlier file has made nothing.
TEST_F(ReportExport, TakesADocumentThatWasThereBeforeForNone) {
    test::metti(doc, "vecchio");
    EXPECT_THROW((void)scriviDocumento(report, programs, "outdoc"), base::ErroreFile);
    programs.alPosto = [this] { test::metti(doc, "nuovo"); };
    EXPECT_EQ(scriviDocumento(report, programs, "outdoc"), doc);
}

TEST_F(ReportExport, TellsWhereTheDocumentIsWhenNothingShowsIt) {
    programs.alPosto = [this] { test::metti(doc, "doc"); };
    exportDoc();
    EXPECT_EQ(dialog.messaggi,
              (std::vector<test::DialogoFinto::Detto>{
                  {"Non è stato trovato nè un visualizzatore nè un editor di testi per il formato "
                   "DOC. Il programma ha comunque creato il file:\n" +
                       base::maiuscolo(doc),
                   "ATTENZIONE!", base::Icona::informazione}}));
}

TEST_F(ReportExport, TellsWhereTheDocumentIsWhenItsViewerDoesNotStart) {
    editors(viewer("vedi"));
    programs.parte = false;
    programs.alPosto = [this] { test::metti(doc, "doc"); };
    exportDoc();
    ASSERT_EQ(dialog.messaggi.size(), 1u);
    EXPECT_TRUE(dialog.messaggi[0].testo.ends_with(base::maiuscolo(doc)));
    EXPECT_EQ(dialog.messaggi[0].icona, base::Icona::informazione);
}

TEST_F(ReportExport, TellsThatTheConverterLeftNoFileThoughItSaysThatAllIsWell) {
    exportDoc();
    ASSERT_EQ(dialog.messaggi.size(), 1u);
    EXPECT_EQ(dialog.messaggi[0].testo, doc + ": impossibile scrivere il file");
    EXPECT_EQ(dialog.messaggi[0].icona, base::Icona::avviso);
}

TEST_F(ReportExport, TellsThatTheConverterFailedAndShowsWhatExists) {
    editors(viewer("vedi"));
    for (const std::optional<int> code : {std::optional<int>(), std::optional<int>(3)}) {
        programs.codice = code;
        exportDoc();
    }
    EXPECT_EQ(dialog.messaggi.size(), 2u);
    EXPECT_EQ(programs.chiamate.size(), 2u);  // no file, nothing to show
    test::metti(doc, "old");
    exportDoc();
    EXPECT_EQ(dialog.messaggi.size(), 3u);
    EXPECT_EQ(programs.chiamate.back(), "avvia massima " + folder / "vedi" + " [" + doc + "]");
}

}  // namespace
}  // namespace korven::commands
