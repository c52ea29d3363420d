// New projects with and without a pattern, and copies of the open one.

#include <gtest/gtest.h>

#include "base/code_page.hpp"
#include "commands/document.hpp"
#include "project/project_file.hpp"
#include "support/dialog_double.hpp"
#include "support/document_ports.hpp"
#include "support/sample_projects.hpp"

namespace korven::commands {
namespace {

namespace fs = std::filesystem;
using base::Risposta;
using project::fileCorrente;
using project::modificato;
using project::Progetto;

class ProgettoNuovo : public ::testing::Test {
 protected:
    ProgettoNuovo() {
        auto altro = test::progettoSemplice();
        altro.lunghezzaParatia = 17;
        modello = scrivi("modello.kvd", altro);
        muro = scrivi("muro.kvd", test::progettoSemplice());
        documento.apri(muro);
    }
    std::string scrivi(const std::string& nome, const project::DatiProgetto& dati) {
        const std::string percorso = ambiente.lavori / nome;
        test::metti(percorso, base::inCp1252(project::testoProgetto(dati)));
        return percorso;
    }
    void nuovo(const std::optional<std::string>& scelto) {
        documento.nuovo([&] {
            ++domande;
            return scelto;
        });
    }
    // Nothing has become of the open project.
    void restaIlMuro() {
        EXPECT_EQ(fileCorrente, muro);
        EXPECT_EQ(Progetto, test::progettoSemplice());
        EXPECT_EQ(finestra.ultimoTitolo, "KORVEN 32 - muro");
    }

    test::AmbienteDocumento ambiente;
    test::DialogoFinto dialogo;
    test::DialogoFileFinto nomi;
    test::FinestraFinta finestra;
    Documento documento{dialogo, nomi, finestra};
    std::string modello, muro;
    int domande = 0;
};

TEST_F(ProgettoNuovo, BeginsWithTheDefaultsAndNoFile) {
    nomi.nuovi = {ambiente.lavori / "A.OLD"};
    nuovo("");
    project::DatiProgetto iniziali;
    project::azzera(iniziali);
    EXPECT_EQ(Progetto, iniziali);
    EXPECT_EQ(fileCorrente, ambiente.lavori / "A.kvd");
    EXPECT_FALSE(modificato);
    EXPECT_FALSE(fs::exists(fileCorrente));
    EXPECT_EQ(finestra.ultimoTitolo, "KORVEN 32 - a");
    EXPECT_TRUE(finestra.ultimoStato.starts_with("Nuovo progetto, non ancora salvato: "));
    EXPECT_EQ(nomi.proposteNuovo, std::vector<std::string>{""});
    EXPECT_FALSE(project::prendeIlPostoDelProgetto(muro));  // it is no one's any more
}

TEST_F(ProgettoNuovo, CountsTheContentOfItsPatternAsUnsaved) {
    nomi.nuovi = {ambiente.lavori / "copia"};
    nuovo(modello);
    EXPECT_EQ(Progetto.lunghezzaParatia, 17);
    EXPECT_EQ(fileCorrente, ambiente.lavori / "copia.kvd");
    EXPECT_TRUE(modificato);
    EXPECT_FALSE(fs::exists(fileCorrente));
    EXPECT_TRUE(fs::exists(modello));
}

TEST_F(ProgettoNuovo, IsAskedForWhereTheLastProjectLies) {
    nomi.nuovi = {ambiente.lavori / "copia"};
    fs::current_path(fs::temp_directory_path());
    nuovo("");
    EXPECT_EQ(nomi.cartelleNuovo,
              std::vector<std::string>{fs::canonical(ambiente.lavori.percorso()).string()});
}

TEST_F(ProgettoNuovo, ComesAfterTheQuestionAboutUnsavedWork) {
    modificato = true;
    dialogo.risposte = {Risposta::annulla, Risposta::no};
    nuovo("");
    EXPECT_EQ(domande, 0);
    restaIlMuro();
    nomi.nuovi = {ambiente.lavori / "copia"};
    nuovo("");
    EXPECT_EQ(fileCorrente, ambiente.lavori / "copia.kvd");
}

TEST_F(ProgettoNuovo, IsNoneWhenPatternOrNameIsGivenUp) {
    nuovo(std::nullopt);
    restaIlMuro();
    EXPECT_TRUE(nomi.proposteNuovo.empty());
    nuovo(modello);
    restaIlMuro();
    EXPECT_FALSE(modificato);
}

TEST_F(ProgettoNuovo, IsCountedAsAnotherProjectAndACopyOrASaveIsNot) {
    const int prima = documento.aperture();
    nomi.nuovi = {ambiente.lavori / "copia", ambiente.lavori / "copia2"};
    nuovo("");
    EXPECT_EQ(documento.aperture(), prima + 1);
    documento.duplica();
    nomi.salvati = {ambiente.lavori / "salvato"};
    EXPECT_TRUE(documento.fileSalva());
    EXPECT_EQ(documento.aperture(), prima + 1);
    documento.apri(muro);
    EXPECT_EQ(documento.aperture(), prima + 2);
}

TEST_F(ProgettoNuovo, TakesTheNameOfAFileOnlyAfterAQuestion) {
    scrivi("GIA.KVD", test::progettoSemplice());
    nomi.nuovi = {ambiente.lavori / "GIA", ambiente.lavori / "GIA", ambiente.lavori / "libero"};
    dialogo.risposte = {Risposta::no, Risposta::no};
    nuovo("");
    EXPECT_EQ(fileCorrente, ambiente.lavori / "libero.kvd");
    ASSERT_EQ(dialogo.domande.size(), 2u);
    EXPECT_EQ(dialogo.domande[0].testo, "Il file indicato esiste già. Volete sovrascriverlo?");
    nomi.nuovi = {ambiente.lavori / "GIA"};
    dialogo.risposte = {Risposta::si};
    nuovo("");
    EXPECT_EQ(fileCorrente, ambiente.lavori / "GIA.kvd");
    EXPECT_TRUE(fs::exists(ambiente.lavori / "GIA.KVD"));  // until it is saved, with a question
}

TEST_F(ProgettoNuovo, LeavesTheOpenOneWhenItsPatternIsBroken) {
    test::metti(modello, "due\r\n");
    nomi.nuovi = {ambiente.lavori / "copia"};
    nuovo(modello);
    restaIlMuro();
    ASSERT_EQ(dialogo.messaggi.size(), 1u);
    EXPECT_NE(dialogo.messaggi[0].testo.find("modello.kvd"), std::string::npos);
}

using Duplicato = ProgettoNuovo;

TEST_F(Duplicato, HasTheContentOfTheOpenProjectUnderAnotherName) {
    Progetto.lunghezzaParatia = 9;
    modificato = true;
    dialogo.risposte = {Risposta::no};
    nomi.nuovi = {ambiente.lavori / "variante"};
    documento.duplica();
    EXPECT_EQ(nomi.proposteNuovo, std::vector<std::string>{"muro_copia.kvd"});
    EXPECT_EQ(fileCorrente, ambiente.lavori / "variante.kvd");
    EXPECT_EQ(Progetto.lunghezzaParatia, 9);
    EXPECT_TRUE(modificato);
    EXPECT_FALSE(fs::exists(fileCorrente));
    EXPECT_EQ(test::contenuto(muro),
              base::inCp1252(project::testoProgetto(test::progettoSemplice())));
    EXPECT_EQ(finestra.ultimoTitolo, "KORVEN 32 - variante");
    EXPECT_TRUE(finestra.ultimoStato.starts_with("Nuovo progetto, non ancora salvato: "));
}

TEST_F(Duplicato, CountsAsUnsavedThoughNothingWasChanged) {
    nomi.nuovi = {ambiente.lavori / "variante"};
    documento.duplica();
    EXPECT_TRUE(modificato);
    EXPECT_TRUE(dialogo.domande.empty());
}

TEST_F(Duplicato, IsProposedANameThatIsFree) {
    scrivi("muro_copia.kvd", test::progettoSemplice());
    documento.duplica();
    EXPECT_EQ(nomi.proposteNuovo, std::vector<std::string>{"muro_copia_2.kvd"});
    restaIlMuro();
    EXPECT_FALSE(modificato);
}

TEST_F(Duplicato, IsNoneOnCancelAndWithoutAProject) {
    modificato = true;
    dialogo.risposte = {Risposta::annulla};
    documento.duplica();
    restaIlMuro();
    fileCorrente.clear();
    documento.duplica();
    EXPECT_TRUE(nomi.proposteNuovo.empty());
    EXPECT_EQ(dialogo.domande.size(), 1u);
}

}  // namespace
}  // namespace korven::commands
