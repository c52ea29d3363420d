#include "commands/report_export.hpp"

#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <functional>
#include <string>
#include <vector>

#include "base/code_page.hpp"
#include "base/file_error.hpp"
#include "base/folders/program_folder.hpp"
#include "base/process/avvia_programma.hpp"
#include "project/output_guard.hpp"
#include "support/dialog_double.hpp"
#include "support/failing_disk.hpp"
#include "support/temporary_folder.hpp"

namespace korven::commands {
namespace {

using Righe = std::vector<std::string>;

constexpr const char* markup = "#RESET\r\n#HEADER h\r\ntesto\r\n#ENDDOCUMENT\r\n";
constexpr const char* testo = "h\r\ntesto\r\n\r\n";

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

class EsportaRelazione : public testing::Test {
 protected:
    EsportaRelazione() {
        ::unsetenv("windir");
        base::impostaCartellaProgramma(cartella.percorso());
        test::metti(relazione, markup);
    }
    ~EsportaRelazione() override {
        ::unsetenv("windir");
        base::impostaCartellaProgramma({});
        project::progettiProtetti = {};
    }

    void inTxt() { esportaTxt(relazione, porte); }
    void inDoc() { esportaDoc(relazione, porte); }
    // A program that editor.cfg may name, and the file itself.
    std::string visore(const std::string& nome) {
        test::metti(cartella / nome, "");
        return cartella / nome;
    }
    void programmiScelti(const std::string& scritto) {
        test::metti(cartella / "editor.cfg", scritto);
    }

    test::CartellaProvvisoria cartella;
    const std::string relazione = cartella / "muro.TAB";
    const std::string txt = cartella / "muro.txt";
    const std::string doc = cartella / "muro.doc";
    test::DialogoFinto dialogo;
    ProgrammiAvviati programmi;
    Righe proposti;
    std::string risposto;
    PorteEsportazione porte{dialogo, programmi, [this](const std::string& nome) {
                                proposti.push_back(nome);
                                return risposto;
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
    for (const auto* nessuno :
         {"", ".txt", "*", "*.txt", "*.TXT", ".abc", "/a/.txt", "/a/*.txt", "/a/"})
        EXPECT_EQ(nomeTxtScelto(nessuno), std::nullopt) << nessuno;
}

TEST_F(EsportaRelazione, MissingMarkupProducesNoDialog) {
    std::filesystem::remove(relazione);
    test::metti(txt, "old");
    inTxt();
    inDoc();
    EXPECT_TRUE(dialogo.domande.empty());
    EXPECT_TRUE(dialogo.messaggi.empty());
    EXPECT_TRUE(programmi.chiamate.empty());
    EXPECT_EQ(test::contenuto(txt), "old");
}

TEST_F(EsportaRelazione, WritesTheTextBesideTheMarkupWithoutAQuestion) {
    inTxt();
    EXPECT_EQ(test::contenuto(txt), testo);
    EXPECT_TRUE(dialogo.domande.empty());
}

TEST_F(EsportaRelazione, AsksBeforeItReplacesATextAndYesIsEnough) {
    test::metti(txt, "old");
    dialogo.risposta = base::Risposta::si;
    inTxt();
    EXPECT_EQ(dialogo.domande,
              (std::vector<test::DialogoFinto::Detto>{{"Volete sovrascrivere il file\n" + txt + "?",
                                                       "ATTENZIONE!", base::Icona::avviso}}));
    EXPECT_TRUE(proposti.empty());
    EXPECT_EQ(test::contenuto(txt), testo);
    EXPECT_EQ(programmi.chiamate, Righe{"apri " + txt});
}

TEST_F(EsportaRelazione, TakesAnotherNameOnNoWithoutAFurtherQuestion) {
    test::metti(txt, "old");
    test::metti(cartella / "altro.txt", "old");
    dialogo.risposta = base::Risposta::no;
    risposto = cartella / "altro";
    inTxt();
    EXPECT_EQ(proposti, Righe{txt});
    EXPECT_EQ(dialogo.domande.size(), 1u);
    EXPECT_EQ(test::contenuto(txt), "old");
    EXPECT_EQ(test::contenuto(cartella / "altro.txt"), testo);
    EXPECT_EQ(programmi.chiamate, Righe{"apri " + cartella / "altro.txt"});
}

TEST_F(EsportaRelazione, EndsWhenNoIsFollowedByAnEmptyName) {
    test::metti(txt, "old");
    for (const auto risposta : {base::Risposta::no, base::Risposta::annulla}) {
        dialogo.risposta = risposta;
        inTxt();
    }
    EXPECT_EQ(proposti.size(), 2u);
    EXPECT_EQ(test::contenuto(txt), "old");
    EXPECT_TRUE(programmi.chiamate.empty());
    EXPECT_TRUE(dialogo.messaggi.empty());
}

TEST_F(EsportaRelazione, ShowsTheTextInTheNotepadOfTheSystemAndLooksNoFurther) {
    ::setenv("windir", cartella.percorso().c_str(), 1);
    const std::string bloccoNote = visore("notepad.exe");
    programmiScelti("\r\n" + visore("vedi") + "\r\n");
    programmi.parte = programmi.predefinito = false;
    inTxt();
    EXPECT_EQ(programmi.chiamate, Righe{"avvia massima " + bloccoNote + " [" + txt + "]"});
    EXPECT_TRUE(dialogo.messaggi.empty());
}

TEST_F(EsportaRelazione, ShowsTheTextInTheSecondProgramOfTheEditorFile) {
    ::setenv("windir", cartella.percorso().c_str(), 1);  // without a notepad
    programmiScelti(visore("primo") + "\r\n" + visore("secondo") + "\r\n");
    inTxt();
    EXPECT_EQ(programmi.chiamate, Righe{"avvia minima " + cartella / "secondo" + " [" + txt + "]"});
}

TEST_F(EsportaRelazione, ShowsTheTextInTheDesktopsOwnProgramOtherwise) {
    for (const std::string scritto : {"", "uno\r\n", "uno\r\ndue\r\n", "\r\n\r\n"}) {
        programmiScelti(scritto);
        dialogo.risposta = base::Risposta::si;
        programmi.chiamate.clear();
        inTxt();
        EXPECT_EQ(programmi.chiamate, Righe{"apri " + txt}) << scritto;
    }
}

TEST_F(EsportaRelazione, TriesTheDesktopsProgramWhenThatOfTheEditorFileDoesNotStart) {
    programmiScelti("\r\n" + visore("secondo"));
    programmi.parte = false;
    inTxt();
    ASSERT_EQ(programmi.chiamate.size(), 2u);
    EXPECT_EQ(programmi.chiamate[1], "apri " + txt);
    EXPECT_TRUE(dialogo.messaggi.empty());
}

TEST_F(EsportaRelazione, TellsWhereTheTextIsWhenNothingShowsIt) {
    programmi.predefinito = false;
    inTxt();
    EXPECT_EQ(dialogo.messaggi,
              (std::vector<test::DialogoFinto::Detto>{
                  {"Non è stato trovato un editor di testi per il formato TXT. Il programma ha "
                   "comunque creato il file:\n" +
                       base::maiuscolo(txt),
                   "ATTENZIONE!", base::Icona::informazione}}));
    EXPECT_EQ(test::contenuto(txt), testo);
}

TEST_F(EsportaRelazione, TellsOfATargetThatCantBeWrittenAndGoesOn) {
    test::metti(txt, "old");
    dialogo.risposta = base::Risposta::no;
    risposto = cartella / "manca/altro";
    inTxt();
    ASSERT_EQ(dialogo.messaggi.size(), 1u);
    EXPECT_NE(dialogo.messaggi[0].testo.find("altro.txt"), std::string::npos);
    EXPECT_TRUE(programmi.chiamate.empty());
}

TEST_F(EsportaRelazione, TellsOfAFullDiskAndLeavesTheTextOfBefore) {
    test::metti(txt, "old");
    dialogo.risposta = base::Risposta::si;
    const test::DiscoPieno disco(3);
    esportaTxt(relazione, {dialogo, programmi, {}, {}, disco});
    ASSERT_EQ(dialogo.messaggi.size(), 1u);
    EXPECT_EQ(dialogo.messaggi[0].testo,
              txt + ": impossibile scrivere il file (" + test::nonCeSpazio + ")");
    EXPECT_EQ(test::contenuto(txt), "old");
    EXPECT_TRUE(programmi.chiamate.empty());
}

TEST_F(EsportaRelazione, NeverReplacesTheProject) {
    test::metti(txt, "progetto");
    project::progettiProtetti = {.letto = txt, .corrente = {}};
    dialogo.risposta = base::Risposta::si;
    inTxt();
    EXPECT_EQ(dialogo.messaggi.size(), 1u);
    EXPECT_EQ(test::contenuto(txt), "progetto");
    project::progettiProtetti.letto = doc;
    test::metti(doc, "progetto");
    inDoc();
    EXPECT_EQ(dialogo.messaggi.size(), 2u);
    EXPECT_EQ(test::contenuto(doc), "progetto");
}

TEST_F(EsportaRelazione, WritesNoTextOfAMarkupWithoutReset) {
    test::metti(relazione, "testo\r\n");
    inTxt();
    ASSERT_EQ(dialogo.messaggi.size(), 1u);
    EXPECT_FALSE(std::filesystem::exists(txt));
    EXPECT_TRUE(programmi.chiamate.empty());
}

TEST_F(EsportaRelazione, LetsABrokenMarkupEndTheProgram) {
    std::string rotta = "#RESET\r\n#STARTTABLE\r\n";
    for (int riga = 0; riga <= 2000; ++riga) rotta += "a\r\n";
    test::metti(relazione, rotta);
    EXPECT_THROW(inTxt(), base::ErroreFile);
    EXPECT_FALSE(std::filesystem::exists(txt));
}

TEST_F(EsportaRelazione, RunsTheConverterOnTheMarkupAndShowsItsFile) {
    const std::string convertitore = base::cartellaAltriProgrammi() + "/outdoc";
    programmiScelti(visore("vedi doc") + "\r\n");
    programmi.alPosto = [this] { test::metti(doc, "doc"); };
    inDoc();
    EXPECT_EQ(programmi.chiamate,
              (Righe{"esegui " + convertitore + " [" + relazione + "]",
                     "avvia massima " + cartella / "vedi doc" + " [" + doc + "]"}));
    EXPECT_TRUE(dialogo.messaggi.empty());
    EXPECT_TRUE(dialogo.domande.empty());
}

TEST_F(EsportaRelazione, RunsNoConverterOfTheProgramFolder) {
    (void)visore("outdoc");
    inDoc();
    EXPECT_EQ(programmi.chiamate,
              Righe{"esegui " + base::cartellaAltriProgrammi() + "/outdoc [" + relazione + "]"});
}

// A converter that ends well and leaves the earlier file has made nothing.
TEST_F(EsportaRelazione, TakesADocumentThatWasThereBeforeForNone) {
    test::metti(doc, "vecchio");
    EXPECT_THROW((void)scriviDocumento(relazione, programmi, "outdoc"), base::ErroreFile);
    programmi.alPosto = [this] { test::metti(doc, "nuovo"); };
    EXPECT_EQ(scriviDocumento(relazione, programmi, "outdoc"), doc);
}

TEST_F(EsportaRelazione, TellsWhereTheDocumentIsWhenNothingShowsIt) {
    programmi.alPosto = [this] { test::metti(doc, "doc"); };
    inDoc();
    EXPECT_EQ(dialogo.messaggi,
              (std::vector<test::DialogoFinto::Detto>{
                  {"Non è stato trovato nè un visualizzatore nè un editor di testi per il formato "
                   "DOC. Il programma ha comunque creato il file:\n" +
                       base::maiuscolo(doc),
                   "ATTENZIONE!", base::Icona::informazione}}));
}

TEST_F(EsportaRelazione, TellsWhereTheDocumentIsWhenItsViewerDoesNotStart) {
    programmiScelti(visore("vedi"));
    programmi.parte = false;
    programmi.alPosto = [this] { test::metti(doc, "doc"); };
    inDoc();
    ASSERT_EQ(dialogo.messaggi.size(), 1u);
    EXPECT_TRUE(dialogo.messaggi[0].testo.ends_with(base::maiuscolo(doc)));
    EXPECT_EQ(dialogo.messaggi[0].icona, base::Icona::informazione);
}

TEST_F(EsportaRelazione, TellsThatTheConverterLeftNoFileThoughItSaysThatAllIsWell) {
    inDoc();
    ASSERT_EQ(dialogo.messaggi.size(), 1u);
    EXPECT_EQ(dialogo.messaggi[0].testo, doc + ": impossibile scrivere il file");
    EXPECT_EQ(dialogo.messaggi[0].icona, base::Icona::avviso);
}

TEST_F(EsportaRelazione, TellsThatTheConverterFailedAndShowsWhatExists) {
    programmiScelti(visore("vedi"));
    for (const std::optional<int> ricevuto : {std::optional<int>(), std::optional<int>(3)}) {
        programmi.codice = ricevuto;
        inDoc();
    }
    EXPECT_EQ(dialogo.messaggi.size(), 2u);
    EXPECT_EQ(programmi.chiamate.size(), 2u);  // no file, nothing to show
    test::metti(doc, "old");
    inDoc();
    EXPECT_EQ(dialogo.messaggi.size(), 3u);
    EXPECT_EQ(programmi.chiamate.back(), "avvia massima " + cartella / "vedi" + " [" + doc + "]");
}

}  // namespace
}  // namespace korven::commands
