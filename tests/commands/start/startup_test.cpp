#include "commands/start/startup.hpp"

#include <gtest/gtest.h>

#include "base/code_page.hpp"
#include "base/file_error.hpp"
#include "project/project_file.hpp"
#include "support/dialog_double.hpp"
#include "support/document_ports.hpp"
#include "support/plain_masks.hpp"
#include "support/plot_setup.hpp"
#include "support/sample_projects.hpp"

namespace korven::commands {
namespace {

using project::fileCorrente;
using project::Progetto;

class Avvio : public ::testing::Test {
 protected:
    void parti(const std::string& argomento) {
        avvia(argomento, documento,
              {.leggiMaschere = [this] { passi += "maschere " + fileCorrente; },
               .saluta = [this] { passi += ";saluto"; }});
    }
    test::AmbienteDocumento ambiente;
    test::DialogoFinto dialogo;
    test::DialogoFileFinto nomi;
    test::FinestraFinta finestra;
    Documento documento{dialogo, nomi, finestra};
    std::string passi;
};

TEST_F(Avvio, GreetsWithTheAboutBoxWhenThereIsNoArgument) {
    fileCorrente = "di prima";
    parti("");
    EXPECT_EQ(passi, "maschere ;saluto");
    EXPECT_TRUE(fileCorrente.empty());
    EXPECT_EQ(Progetto.gammaAcqua, 1);
    EXPECT_TRUE(finestra.ultimoTitolo.empty());
}

TEST_F(Avvio, ReadsTheProjectThatTheArgumentNames) {
    const std::string muro = ambiente.lavori / "Muro.kvd";
    test::metti(muro, base::inCp1252(project::testoProgetto(test::progettoSemplice())));
    parti(muro);
    EXPECT_EQ(passi, "maschere ");
    EXPECT_EQ(fileCorrente, muro);
    EXPECT_EQ(Progetto, test::progettoSemplice());
    EXPECT_EQ(finestra.ultimoTitolo, "KORVEN 32 - muro");
    EXPECT_EQ(std::filesystem::current_path(),
              std::filesystem::canonical(ambiente.lavori.percorso()));
    EXPECT_FALSE(std::filesystem::exists(ambiente.programma / "path"));
    EXPECT_TRUE(project::prendeIlPostoDelProgetto(muro));
}

TEST_F(Avvio, KeepsTheWayToARelativeNameWhenItChangesItsFolder) {
    std::filesystem::current_path(ambiente.lavori.percorso());
    std::filesystem::create_directory("a");
    test::metti(ambiente.lavori / "a/muro.kvd",
                base::inCp1252(project::testoProgetto(test::progettoSemplice())));
    parti("a/muro.kvd");
    EXPECT_TRUE(std::filesystem::exists(fileCorrente));
}

TEST_F(Avvio, GoesOnWhenTheArgumentNamesNoFileAndSaysSoAtItsFoot) {
    parti(ambiente.lavori / "manca.kvd");
    EXPECT_EQ(finestra.ultimoStato, "File non trovato: " + ambiente.lavori / "manca.kvd");
    EXPECT_EQ(passi, "maschere ");
    EXPECT_TRUE(fileCorrente.empty());
    EXPECT_EQ(Progetto.gammaAcqua, 1);
    EXPECT_TRUE(finestra.ultimoTitolo.empty());
}

TEST_F(Avvio, EndsOnAFileThatIsNoProject) {
    test::metti(ambiente.lavori / "rotto.kvd", "due\r\n");
    EXPECT_THROW(parti(ambiente.lavori / "rotto.kvd"), base::ErroreFile);
}

// The masks and the pens of a program folder, whole.
class DatiProgramma : public ::testing::Test {
 protected:
    DatiProgramma() {
        const auto scritte = test::maschereSemplici(ambiente.programma);
        for (std::size_t i = 0; i < scritte.size(); ++i)
            std::filesystem::rename(scritte[i],
                                    ambiente.programma / std::string(masks::fileMaschere[i]));
        plot::scriviConfigurazione(penne, test::configurazioneDiProva());
    }
    // What is told of the file that ends the program; nothing when all is well.
    std::string guasto() {
        try {
            leggiDatiProgramma(maschere);
            return {};
        } catch (const base::ErroreFile& errore) {
            return errore.what();
        }
    }
    test::AmbienteDocumento ambiente;
    const std::string penne = ambiente.programma / "module06ita.cfg";
    masks::Maschere maschere;
};

TEST_F(DatiProgramma, AreReadWhenTheyAreWhole) {
    EXPECT_EQ(guasto(), "");
    maschere.selezionaMaschera(5);
    EXPECT_EQ(maschere.corrente().titolo, "F");
}

TEST_F(DatiProgramma, EndTheProgramWithFileLineAndWhatWasExpectedWhereAMaskIsBroken) {
    const std::string maschera = ambiente.programma / "EDITDIA.MAV";
    test::metti(maschera, "1\r\nT\r\nsette\r\n");
    EXPECT_EQ(guasto(), maschera + ", riga 3: atteso un numero: numero delle scelte");
}

TEST_F(DatiProgramma, EndTheProgramWhereThePensAreBrokenOrMissing) {
    test::metti(penne, "Contorno\r\nrosso\r\n");
    EXPECT_EQ(guasto().rfind(penne + ", riga 2: atteso un numero: colore della penna 1", 0), 0u)
        << guasto();
    std::filesystem::remove(penne);
    EXPECT_EQ(guasto().rfind(penne + ": impossibile leggere il file", 0), 0u) << guasto();
}

}  // namespace
}  // namespace korven::commands
