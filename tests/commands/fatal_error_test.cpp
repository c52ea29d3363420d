#include "commands/fatal_error.hpp"

#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>

#include "base/code_page.hpp"
#include "base/file_error.hpp"
#include "base/table.hpp"
#include "project/project_file.hpp"
#include "support/document_ports.hpp"
#include "support/environment_variable.hpp"
#include "support/failing_disk.hpp"
#include "support/sample_projects.hpp"

namespace korven::commands {
namespace {

using project::fileCorrente;
using project::modificato;
using project::Progetto;

class Recupero : public ::testing::Test {
 protected:
    Recupero() {
        Progetto = test::progettoSemplice();
        fileCorrente = ambiente.lavori / "muro.kvd";
        modificato = true;
    }
    test::AmbienteDocumento ambiente;
};

TEST_F(Recupero, WritesTheUnsavedProjectBesideItsFile) {
    test::metti(fileCorrente, "com'era");
    const std::string file = recuperaProgetto();
    EXPECT_EQ(file, ambiente.lavori / "muro_recuperato.kvd");
    EXPECT_EQ(test::contenuto(file),
              base::inCp1252(project::testoProgetto(test::progettoSemplice())));
    EXPECT_EQ(test::contenuto(fileCorrente), "com'era");
    EXPECT_EQ(recuperaProgetto(), ambiente.lavori / "muro_recuperato_2.kvd");
}

TEST_F(Recupero, FollowsNoLinkThatHasTheRescueName) {
    test::metti(ambiente.lavori / "altrui", "da tenere");
    std::filesystem::create_symlink("altrui", ambiente.lavori / "muro_recuperato.kvd");
    std::filesystem::create_symlink("nessuno", ambiente.lavori / "muro_recuperato_2.kvd");
    std::filesystem::create_directory(ambiente.lavori / "muro_recuperato_3.kvd");
    EXPECT_EQ(recuperaProgetto(), ambiente.lavori / "muro_recuperato_4.kvd");
    EXPECT_EQ(test::contenuto(ambiente.lavori / "altrui"), "da tenere");
    EXPECT_FALSE(std::filesystem::exists(ambiente.lavori / "nessuno"));
}

TEST_F(Recupero, WritesNothingWhenNothingIsUnsaved) {
    modificato = false;
    EXPECT_EQ(recuperaProgetto(), "");
    modificato = true;
    fileCorrente.clear();
    EXPECT_EQ(recuperaProgetto(), "");
    EXPECT_TRUE(std::filesystem::is_empty(ambiente.lavori.percorso()));
}

TEST_F(Recupero, GoesElsewhereWhenTheFolderCantBeWritten) {
    fileCorrente = ambiente.lavori / "manca/muro.kvd";
    const std::string file = recuperaProgetto();
    EXPECT_TRUE(file.ends_with("/muro_recuperato.kvd") ||
                file.find("/muro_recuperato_") != std::string::npos)
        << file;
    EXPECT_TRUE(std::filesystem::exists(file));
    std::filesystem::remove(file);
}

TEST_F(Recupero, MakesTheFolderOfTheUsersDataWhenThereIsNone) {
    const char* prima = std::getenv("XDG_DATA_HOME");
    const std::string valore = prima != nullptr ? prima : "";
    setenv("XDG_DATA_HOME", (ambiente.lavori / "utente/share").c_str(), 1);
    fileCorrente = ambiente.lavori / "manca/muro.kvd";
    EXPECT_EQ(recuperaProgetto(), ambiente.lavori / "utente/share/muro_recuperato.kvd");
    EXPECT_FALSE(std::filesystem::exists(ambiente.lavori / "manca"));
    if (prima != nullptr)
        setenv("XDG_DATA_HOME", valore.c_str(), 1);
    else
        unsetenv("XDG_DATA_HOME");
}

TEST_F(Recupero, LeavesNoHalfFileWhereNoDiskHasRoom) {
    const test::DiscoPieno disco(100);
    EXPECT_EQ(recuperaProgetto(disco), "");
    EXPECT_EQ(recuperaRighe("1\t2\r\n", disco), "");
    EXPECT_TRUE(std::filesystem::is_empty(ambiente.lavori.percorso()));
}

TEST_F(Recupero, IsToldWithTheErrorThatEndsTheProgram) {
    const base::ErroreFile errore("/lavori/rotto.kvd", 3, "atteso un numero");
    const std::string testo = testoFine(errore, "/lavori/muro_recuperato.kvd");
    EXPECT_NE(testo.find(errore.what()), std::string::npos);
    EXPECT_NE(testo.find("Il programma viene chiuso."), std::string::npos);
    EXPECT_NE(testo.find("Le modifiche non salvate sono state messe in: "
                         "/lavori/muro_recuperato.kvd"),
              std::string::npos);
    EXPECT_NE(testoFine(errore, "").find("Non è stato possibile salvare le modifiche."),
              std::string::npos);
    modificato = false;
    EXPECT_EQ(testoFine(errore, ""), std::string(errore.what()) + "\n\nIl programma viene chiuso.");
}

TEST_F(Recupero, TellsOfATableThatIsTooSmallInTheUsersWords) {
    EXPECT_EQ(spiegazione(base::ErroreIndice(101, 100)),
              "i dati chiedono più righe di quante ne tiene una tabella (101 > 100)");
    EXPECT_EQ(spiegazione(base::ErroreIndice("troppi testi")), "troppi testi");
}

TEST_F(Recupero, WritesTypedRowsBesideTheProjectAndTellsWhere) {
    const std::string file = recuperaRighe("1\tà\r\n");
    EXPECT_EQ(file, ambiente.lavori / "muro_righe.txt");
    EXPECT_EQ(test::contenuto(file), "1\t\xE0\r\n");
    EXPECT_EQ(recuperaRighe(""), ambiente.lavori / "muro_righe_2.txt");
    modificato = false;
    EXPECT_EQ(testoFine(ErroreRighe(105, 100, file), ""),
              "i dati chiedono più righe di quante ne tiene una tabella (105 > 100)\n\n"
              "Il programma viene chiuso.\n"
              "Le righe scritte nella tabella sono state messe in: " +
                  file);
    EXPECT_TRUE(testoFine(ErroreRighe(105, 100, ""), "")
                    .ends_with("\nNon è stato possibile salvare le righe scritte nella tabella."));
    modificato = true;
    EXPECT_TRUE(testoFine(ErroreRighe(105, 100, file), "/lavori/muro_recuperato.kvd")
                    .ends_with("_righe.txt\nLe modifiche non salvate sono state messe in: "
                               "/lavori/muro_recuperato.kvd"));
}

// A new user whose home cannot hold a folder for rescued work, and whose project's is gone.
TEST_F(Recupero, GoesToTheSystemsFolderWhereTheUserCanHaveNone) {
    const test::CartellaProvvisoria casa, provvisoria;
    test::metti(casa / "file", "no folder");
    const test::VariabileAmbiente dati("XDG_DATA_HOME", (casa / "file") + "/dati");
    const test::VariabileAmbiente tmp("TMPDIR", provvisoria.percorso());
    fileCorrente = ambiente.lavori / "tolta/muro.kvd";
    const std::string file = recuperaProgetto();
    EXPECT_EQ(file, provvisoria / "muro_recuperato.kvd");
    EXPECT_EQ(test::contenuto(file),
              base::inCp1252(project::testoProgetto(test::progettoSemplice())));
}

}  // namespace
}  // namespace korven::commands
