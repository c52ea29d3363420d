#include "commands/document.hpp"

#include <gtest/gtest.h>

#include "base/code_page.hpp"
#include "base/file_error.hpp"
#include "commands/recent_projects.hpp"
#include "project/project_file.hpp"
#include "support/dialog_double.hpp"
#include "support/document_ports.hpp"
#include "support/failing_disk.hpp"
#include "support/sample_projects.hpp"
#include "support/wall_builder.hpp"

namespace korven::commands {
namespace {

namespace fs = std::filesystem;
using base::Risposta;
using project::fileCorrente;
using project::modificato;
using project::Progetto;
using test::contenuto;

class DocumentoTest : public ::testing::Test {
 protected:
    static std::string testoSemplice() {
        return base::inCp1252(project::testoProgetto(test::progettoSemplice()));
    }
    // A project of one's own, opened.
    std::string apriMuro() {
        const std::string muro = ambiente.lavori / "muro.kvd";
        test::metti(muro, testoSemplice());
        nomi.aperti = {muro};
        documento.fileApri();
        return muro;
    }
    std::string ricordata() { return contenuto(ambiente.programma / "path"); }
    static std::string qui() { return fs::current_path().string(); }

    test::AmbienteDocumento ambiente;
    test::DialogoFinto dialogo;
    test::DialogoFileFinto nomi;
    test::FinestraFinta finestra;
    Documento documento{dialogo, nomi, finestra};
};

using FileApri = DocumentoTest;
using FileSalva = DocumentoTest;
using Fine = DocumentoTest;

TEST_F(FileApri, ReadsAnExistingProject) {
    const std::string muro = apriMuro();
    EXPECT_EQ(fileCorrente, muro);
    EXPECT_EQ(Progetto, test::progettoSemplice());
    EXPECT_FALSE(modificato);
    EXPECT_EQ(finestra.ultimoTitolo, "KORVEN 32 - muro");
    EXPECT_EQ(finestra.ultimoStato, "File letto: " + muro);
    EXPECT_EQ(qui(), fs::canonical(ambiente.lavori.percorso()).string());
    EXPECT_EQ(ricordata(), ambiente.lavori.percorso() + "\r\n");
    EXPECT_TRUE(project::prendeIlPostoDelProgetto(muro));
}

TEST_F(FileApri, SweepsAwayWhatAKilledProgramLeftBesideTheProject) {
    test::metti(ambiente.lavori / ".korven-a1B2c3", "metà");
    apriMuro();
    EXPECT_FALSE(fs::exists(ambiente.lavori / ".korven-a1B2c3"));
}

TEST_F(FileApri, BeginsANewProjectWithANameThatNoFileHas) {
    Progetto.lunghezzaParatia = 9;
    nomi.aperti = {ambiente.lavori / "muro"};
    documento.fileApri();
    EXPECT_EQ(fileCorrente, ambiente.lavori / "muro.kvd");
    EXPECT_EQ(finestra.ultimoTitolo, "KORVEN 32 - muro");
    project::DatiProgetto vuoto = test::progettoVuoto();
    EXPECT_EQ(Progetto, vuoto);
    EXPECT_FALSE(modificato);
    EXPECT_TRUE(fs::is_empty(ambiente.lavori.percorso()));
    EXPECT_EQ(finestra.ultimoStato, "Nuovo progetto, non ancora salvato: " + fileCorrente +
                                        " (un'altra cartella si sceglie con Salva)");
}

TEST_F(FileApri, ReplacesTheLastExtensionAloneAndFindsTheFileWhateverItsCase) {
    const std::string file = ambiente.lavori / "A.OLD.KVD";
    test::metti(file, testoSemplice());
    nomi.aperti = {file};
    documento.fileApri();
    EXPECT_EQ(fileCorrente, ambiente.lavori / "A.OLD.kvd");
    EXPECT_EQ(Progetto, test::progettoSemplice());
    EXPECT_EQ(finestra.ultimoStato, "File letto: " + file);
    EXPECT_TRUE(project::prendeIlPostoDelProgetto(file));
}

TEST_F(FileApri, KeepsTheOpenProjectWhenNothingIsChosen) {
    const std::string muro = apriMuro();
    for (const std::string& risposta :
         {std::string(), std::string("*.kvd"), ambiente.lavori / "*.kvd", std::string(".kvd")}) {
        nomi.aperti = {risposta};
        documento.fileApri();
        EXPECT_EQ(fileCorrente, muro) << risposta;
        EXPECT_EQ(Progetto, test::progettoSemplice()) << risposta;
    }
    EXPECT_EQ(nomi.attuali.back(), muro);  // the dialog began at the open project
}

TEST_F(FileApri, StartsInTheFolderOfTheLastProject) {
    fs::create_directory(ambiente.lavori / "altri");
    test::metti(ambiente.programma / "path", (ambiente.lavori / "altri") + "\r\n");
    documento.fileApri();
    EXPECT_EQ(nomi.cartelle.back(), fs::canonical(ambiente.lavori / "altri").string());
}

TEST_F(FileApri, MakesTheNoteOfTheLastFolderFromTheExamples) {
    fs::create_directory(ambiente.programma / "data");
    documento.fileApri();
    EXPECT_EQ(ricordata(), (ambiente.programma / "data") + "\r\n");
    EXPECT_EQ(nomi.cartelle.back(), fs::canonical(ambiente.programma / "data").string());
}

TEST_F(FileApri, PassesOverANoteThatLeadsNowhere) {
    test::metti(ambiente.programma / "path", "/niente/qui\r\n");
    const std::string prima = qui();
    apriMuro();
    EXPECT_EQ(nomi.cartelle.back(), prima);
    EXPECT_EQ(Progetto, test::progettoSemplice());
}

TEST_F(FileApri, AsksAboutUnsavedChangesFirst) {
    const std::string muro = apriMuro();
    modificato = true;
    dialogo.risposte = {Risposta::annulla};
    documento.fileApri();
    ASSERT_EQ(dialogo.domande.size(), 1u);
    EXPECT_EQ(dialogo.domande[0].testo,
              "Il file corrente è stato modificato. Volete salvare le modifiche apportate?");
    EXPECT_EQ(dialogo.domande[0].titolo, "ATTENZIONE!");
    EXPECT_EQ(dialogo.domande[0].icona, base::Icona::domanda);
    EXPECT_EQ(nomi.attuali.size(), 1u);  // no second dialog
    EXPECT_TRUE(modificato);
}

TEST_F(FileApri, GoesOnWithoutSavingOnNo) {
    apriMuro();
    modificato = true;
    dialogo.risposte = {Risposta::no};
    nomi.aperti = {ambiente.lavori / "nuovo"};
    documento.fileApri();
    EXPECT_EQ(fileCorrente, ambiente.lavori / "nuovo.kvd");
    EXPECT_FALSE(modificato);
    EXPECT_TRUE(nomi.proposte.empty());
}

TEST_F(FileApri, SavesFirstOnYes) {
    const std::string muro = apriMuro();
    Progetto.lunghezzaParatia = 15;
    modificato = true;
    dialogo.risposte = {Risposta::si};
    nomi.salvati = {ambiente.lavori / "copia"};
    nomi.aperti = {muro};
    documento.fileApri();
    EXPECT_TRUE(fs::exists(ambiente.lavori / "copia.kvd"));
    EXPECT_EQ(fileCorrente, muro);
    EXPECT_EQ(Progetto.lunghezzaParatia, 12);
}

TEST_F(FileApri, StopsWhenTheSaveIsCalledOff) {
    apriMuro();
    modificato = true;
    dialogo.risposte = {Risposta::si};
    documento.fileApri();
    EXPECT_EQ(nomi.attuali.size(), 1u);
    EXPECT_TRUE(modificato);
}

TEST_F(FileApri, LeavesTheOpenProjectAsItWasWhenTheFileIsNone) {
    const std::string muro = apriMuro();
    test::metti(ambiente.lavori / "rotto.kvd", "due\r\n");
    nomi.aperti = {ambiente.lavori / "rotto.kvd"};
    EXPECT_THROW(documento.fileApri(), base::ErroreFile);
    EXPECT_EQ(fileCorrente, muro);  // under whose name it can be rescued
    EXPECT_EQ(Progetto, test::progettoSemplice());
}

TEST_F(FileApri, TakesADroppedFileTheSameRoad) {
    const std::string muro = apriMuro();
    modificato = true;
    dialogo.risposte = {Risposta::annulla, Risposta::no};
    documento.apri(ambiente.lavori / "altro.kvd");
    EXPECT_EQ(fileCorrente, muro);
    documento.apri(ambiente.lavori / "altro.kvd");
    EXPECT_EQ(fileCorrente, ambiente.lavori / "altro.kvd");
}

TEST_F(FileApri, RemembersTheProjectAmongTheRecentOnes) {
    const std::string muro = apriMuro();
    EXPECT_EQ(progettiRecenti(), std::vector<std::string>{muro});
    nomi.aperti = {ambiente.lavori / "nuovo"};
    documento.fileApri();  // a project that is on no disk yet
    EXPECT_EQ(progettiRecenti(), std::vector<std::string>{muro});
    nomi.salvati = {ambiente.lavori / "nuovo.kvd"};
    EXPECT_TRUE(documento.fileSalva());
    EXPECT_EQ(progettiRecenti(), (std::vector<std::string>{ambiente.lavori / "nuovo.kvd", muro}));
}

TEST_F(FileApri, OpensARecentProjectAfterTheQuestion) {
    const std::string muro = apriMuro();
    fileCorrente = ambiente.lavori / "altro.kvd";
    modificato = true;
    dialogo.risposte = {Risposta::annulla, Risposta::no};
    documento.apriRecente(muro);
    EXPECT_EQ(fileCorrente, ambiente.lavori / "altro.kvd");
    documento.apriRecente(muro);
    EXPECT_EQ(fileCorrente, muro);
    EXPECT_EQ(dialogo.domande.size(), 2u);
}

TEST_F(FileApri, BeginsNoProjectInPlaceOfARecentOneThatIsGone) {
    const std::string muro = apriMuro();
    modificato = true;
    documento.apriRecente(ambiente.lavori / "manca.kvd");
    EXPECT_EQ(fileCorrente, muro);
    ASSERT_EQ(dialogo.messaggi.size(), 1u);
    EXPECT_EQ(dialogo.messaggi[0].testo, "File non trovato: " + (ambiente.lavori / "manca.kvd"));
    EXPECT_TRUE(dialogo.domande.empty());
}

TEST_F(FileSalva, DoesNothingWithoutAProject) {
    EXPECT_FALSE(documento.fileSalva());
    EXPECT_TRUE(nomi.proposte.empty());
    EXPECT_TRUE(dialogo.domande.empty());
}

TEST_F(FileSalva, WritesUnderTheNameGiven) {
    apriMuro();
    modificato = true;
    nomi.salvati = {ambiente.lavori / "Muro nuovo"};
    EXPECT_TRUE(documento.fileSalva());
    const std::string scritto = ambiente.lavori / "Muro nuovo.kvd";
    EXPECT_EQ(nomi.proposte, std::vector<std::string>{"muro.kvd"});
    EXPECT_EQ(contenuto(scritto), testoSemplice());
    EXPECT_EQ(fileCorrente, scritto);
    EXPECT_FALSE(modificato);
    EXPECT_EQ(finestra.ultimoTitolo, "KORVEN 32 - muro nuovo");
    EXPECT_EQ(finestra.ultimoStato, "File scritto: " + scritto);
    EXPECT_EQ(ricordata(), ambiente.lavori.percorso() + "\r\n");
    EXPECT_TRUE(project::prendeIlPostoDelProgetto(scritto));
    EXPECT_TRUE(dialogo.domande.empty());
}

TEST_F(FileSalva, CutsAtThePointOfAFolderAndSaysWhere) {
    apriMuro();
    fs::create_directory(ambiente.lavori / "lavori.1");
    nomi.salvati = {ambiente.lavori / "lavori.1/muro"};
    EXPECT_TRUE(documento.fileSalva());
    EXPECT_EQ(fileCorrente, ambiente.lavori / "lavori.kvd");
    EXPECT_TRUE(fs::exists(ambiente.lavori / "lavori.kvd"));
    EXPECT_TRUE(fs::is_empty(ambiente.lavori / "lavori.1"));
    EXPECT_EQ(finestra.ultimoStato, "File scritto: " + (ambiente.lavori / "lavori.kvd"));
}

TEST_F(FileSalva, EndsOnCancel) {
    const std::string muro = apriMuro();
    modificato = true;
    EXPECT_FALSE(documento.fileSalva());
    EXPECT_TRUE(modificato);
    EXPECT_EQ(fileCorrente, muro);
}

TEST_F(FileSalva, AsksBeforeItReplacesAFileAndAsksForANameAgainOnNo) {
    const std::string muro = apriMuro();
    Progetto.lunghezzaParatia = 15;
    modificato = true;
    dialogo.risposte = {Risposta::no, Risposta::si};
    nomi.salvati = {muro, muro};
    EXPECT_TRUE(documento.fileSalva());
    EXPECT_EQ(nomi.proposte.size(), 2u);
    ASSERT_EQ(dialogo.domande.size(), 2u);
    EXPECT_EQ(dialogo.domande[0].testo, "Il file indicato esiste già. Volete sovrascriverlo?");
    EXPECT_EQ(dialogo.domande[0].titolo, "ATTENZIONE!");
    EXPECT_NE(contenuto(muro), testoSemplice());
}

TEST_F(FileSalva, WarnsWhenAnotherProgramHasChangedTheFileSinceItWasRead) {
    const std::string muro = apriMuro();
    test::metti(muro, testoSemplice() + "\r\n");
    dialogo.risposte = {Risposta::si, Risposta::no};
    nomi.salvati = {muro};
    EXPECT_FALSE(documento.fileSalva());
    ASSERT_EQ(dialogo.domande.size(), 2u);
    EXPECT_EQ(dialogo.domande[1].testo,
              "Un altro programma ha modificato questo file dopo la lettura. Volete perdere quelle "
              "modifiche e sovrascriverlo?");
    EXPECT_EQ(contenuto(muro), testoSemplice() + "\r\n");
    dialogo.risposte = {Risposta::si, Risposta::si};
    nomi.salvati = {muro};
    EXPECT_TRUE(documento.fileSalva());
    EXPECT_EQ(contenuto(muro), testoSemplice());
}

TEST_F(FileSalva, WarnsWhenAnotherProgramHasMadeTheFileOfANewProject) {
    nomi.aperti = {ambiente.lavori / "nuovo"};
    documento.fileApri();
    test::metti(fileCorrente, "altro");
    dialogo.risposte = {Risposta::si, Risposta::si};
    nomi.salvati = {fileCorrente};
    EXPECT_TRUE(documento.fileSalva());
    EXPECT_EQ(dialogo.domande.size(), 2u);
}

TEST_F(FileSalva, KnowsItsOwnSaveFromThatOfAnotherProgram) {
    const std::string muro = apriMuro();
    dialogo.risposte = {Risposta::si, Risposta::si};
    nomi.salvati = {muro, muro};
    EXPECT_TRUE(documento.fileSalva());
    Progetto.lunghezzaParatia = 15;
    EXPECT_TRUE(documento.fileSalva());
    EXPECT_EQ(dialogo.domande.size(), 2u);  // twice whether to replace it, never the warning
}

TEST_F(FileSalva, TellsOfAFileThatCantBeWrittenAndAsksForAnotherName) {
    const std::string muro = apriMuro();
    modificato = true;
    nomi.salvati = {ambiente.lavori / "manca/muro", ambiente.lavori / "copia"};
    EXPECT_TRUE(documento.fileSalva());
    ASSERT_EQ(dialogo.messaggi.size(), 1u);
    EXPECT_EQ(dialogo.messaggi[0].icona, base::Icona::stop);
    EXPECT_NE(dialogo.messaggi[0].testo.find("impossibile scrivere il file"), std::string::npos);
    EXPECT_EQ(fileCorrente, ambiente.lavori / "copia.kvd");
}

TEST_F(FileSalva, TellsOfAFullDiskAndKeepsFileAndChanges) {
    const std::string muro = apriMuro();
    Progetto.titoli[1] = "cambiato";
    modificato = true;
    const test::DiscoPieno disco(100);
    Documento pieno(dialogo, nomi, finestra, disco);
    dialogo.risposte = {Risposta::si, Risposta::si};
    nomi.salvati = {muro};
    EXPECT_FALSE(pieno.fileSalva()) << "called off when the name is asked for again";
    ASSERT_EQ(dialogo.messaggi.size(), 1u);
    EXPECT_EQ(dialogo.messaggi[0].testo,
              muro + ": impossibile scrivere il file (" + test::nonCeSpazio + ")");
    EXPECT_EQ(contenuto(muro), testoSemplice());
    EXPECT_TRUE(modificato);
    EXPECT_EQ(fileCorrente, muro);
}

TEST_F(FileSalva, GoesBackToItsFolderWhenTheFileCantBeWritten) {
    apriMuro();
    std::filesystem::create_directory(ambiente.lavori / "altra");
    std::filesystem::current_path(ambiente.lavori.percorso());
    nomi.vaIn = ambiente.lavori / "altra";
    nomi.salvati = {ambiente.lavori / "manca/muro", ambiente.lavori / "altra/copia"};
    EXPECT_TRUE(documento.fileSalva());
    ASSERT_EQ(nomi.cartelleSalva.size(), 2u);
    EXPECT_EQ(nomi.cartelleSalva[1], nomi.cartelleSalva[0]);
    EXPECT_EQ(std::filesystem::current_path(), ambiente.lavori / "altra") << "once it is written";
}

TEST_F(FileSalva, GivesAProjectItsNameBackThatARunWithoutStiffnessTook) {
    apriMuro();
    fileCorrente = ambiente.lavori / "muro.OUT";
    nomi.salvati = {fileCorrente};
    dialogo.risposte = {Risposta::si};
    EXPECT_TRUE(documento.fileSalva());
    EXPECT_EQ(fileCorrente, ambiente.lavori / "muro.kvd");
}

TEST_F(Fine, EndsWithoutAQuestionWhenNothingIsUnsaved) {
    apriMuro();
    EXPECT_TRUE(documento.fine());
    EXPECT_TRUE(dialogo.domande.empty());
}

TEST_F(Fine, SavesAndEndsOnYesEndsOnNoAndStaysOnCancel) {
    apriMuro();
    modificato = true;
    dialogo.risposte = {Risposta::annulla, Risposta::no, Risposta::si};
    nomi.salvati = {ambiente.lavori / "copia"};
    EXPECT_FALSE(documento.fine());
    EXPECT_TRUE(documento.fine());
    EXPECT_FALSE(fs::exists(ambiente.lavori / "copia.kvd"));
    EXPECT_TRUE(documento.fine());
    EXPECT_TRUE(fs::exists(ambiente.lavori / "copia.kvd"));
}

TEST_F(Fine, StaysWhenTheSaveIsCalledOffSinceNothingWasKept) {
    apriMuro();
    modificato = true;
    dialogo.risposte = {Risposta::si};
    EXPECT_FALSE(documento.fine());
    EXPECT_TRUE(modificato);
}

}  // namespace
}  // namespace korven::commands
