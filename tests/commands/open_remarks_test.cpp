#include "commands/open_remarks.hpp"

#include <gtest/gtest.h>

#include <algorithm>

#include "base/code_page.hpp"
#include "commands/project_opening.hpp"
#include "project/project_file.hpp"
#include "review/remark_counts.hpp"
#include "support/document_ports.hpp"
#include "support/sample_projects.hpp"

namespace korven::commands {
namespace {

using project::fileCorrente;
using project::modificato;
using project::Progetto;
using review::Osservazioni;
using review::Peso;

class OsservazioniAperteTest : public ::testing::Test {
 protected:
    void apri(std::string testo = project::testoProgetto(test::progettoSemplice())) {
        const std::string file = ambiente.lavori / "muro.kvd";
        test::metti(file, base::inCp1252(testo));
        apriProgetto(file, "");
        guarda();
    }
    // As after a command; remarks on results are being computed.
    void guarda() {
        aperte.guardaFile();
        aperte.guarda(Progetto);
        aperte.risultati(nullptr);
    }
    static std::string conVirgola() {
        std::string testo = project::testoProgetto(test::progettoSemplice());
        return testo.replace(testo.find("\r\n12\r\n12000") + 2, 2, "12,5");
    }
    void modifica(double project::DatiProgetto::*membro, double valore) {
        Progetto.*membro = valore;
        modificato = true;
        guarda();
    }
    [[nodiscard]] bool dice(std::string_view codice) const {
        return std::any_of(aperte.tutte().begin(), aperte.tutte().end(),
                           [codice](const auto& o) { return o.codice == codice; });
    }
    static Osservazioni una(Peso peso, std::string_view codice) {
        Osservazioni tutte(1);
        tutte[0].peso = peso;
        tutte[0].codice = codice;
        return tutte;
    }

    test::AmbienteDocumento ambiente;
    OsservazioniAperte aperte;
};

TEST_F(OsservazioniAperteTest, SayOfANewProjectThatNothingIsTypedYet) {
    project::azzeraProgetto();
    Progetto.titoli[1] = "Banchina";
    guarda();
    EXPECT_TRUE(aperte.tutte().empty());
    EXPECT_EQ(aperte.conteggio(), "Ancora nessun dato");
    modifica(&project::DatiProgetto::lunghezzaParatia, 9);
    EXPECT_TRUE(dice("dati-mancanti"));
}

TEST_F(OsservazioniAperteTest, AreNoneAndNotCountedWithoutAProject) {
    EXPECT_TRUE(aperte.tutte().empty());
    EXPECT_EQ(aperte.conteggio(), "");
}

TEST_F(OsservazioniAperteTest, WaitForThoseOnResults) {
    apri();
    EXPECT_EQ(aperte.conteggio(), "…");
    const auto trovate = una(Peso::daVedere, "riduzione-bassa");
    aperte.risultati(&trovate);
    EXPECT_EQ(aperte.conteggio(), "1 da vedere");
    EXPECT_TRUE(dice("riduzione-bassa"));
    aperte.risultati(nullptr);
    EXPECT_EQ(aperte.conteggio(), "…");
    EXPECT_FALSE(dice("riduzione-bassa"));
}

TEST_F(OsservazioniAperteTest, TellWhatRefusesARun) {
    apri();
    modifica(&project::DatiProgetto::lunghezzaParatia, 0);
    const Osservazioni nessuna;
    aperte.risultati(&nessuna);
    EXPECT_EQ(aperte.tutte().front().peso, Peso::impedisce);
    EXPECT_EQ(aperte.conteggio(), review::conteggio(aperte.tutte()));
}

TEST_F(OsservazioniAperteTest, FollowWhatIsTypedIntoAForm) {
    apri(conVirgola());
    auto digitati = Progetto;
    digitati.lunghezzaParatia = 13;
    digitati.vincoloTesta = 7;
    aperte.guarda(digitati);
    EXPECT_TRUE(dice("codice-non-previsto"));
    EXPECT_FALSE(dice("resto-della-riga"));
    aperte.guarda(Progetto);  // the form was left
    EXPECT_FALSE(dice("codice-non-previsto"));
    EXPECT_TRUE(dice("resto-della-riga"));
}

TEST_F(OsservazioniAperteTest, AreInTheOrderOfTheirWeight) {
    apri();
    modifica(&project::DatiProgetto::vincoloTesta, 7);
    const auto trovate = una(Peso::daVedere, "riduzione-bassa");
    aperte.risultati(&trovate);
    ASSERT_EQ(aperte.tutte().size(), 2u);
    EXPECT_EQ(aperte.tutte()[0].codice, "codice-non-previsto");
    EXPECT_EQ(aperte.conteggio(), "1 pericolo, 1 da vedere");
}

TEST_F(OsservazioniAperteTest, TellOfALineOfTheFileUntilItsValueIsAnotherOne) {
    apri(conVirgola());
    EXPECT_TRUE(dice("resto-della-riga"));
    modifica(&project::DatiProgetto::sovraccMonte, 2);
    EXPECT_TRUE(dice("resto-della-riga"));
    modifica(&project::DatiProgetto::lunghezzaParatia, 12.5);
    EXPECT_FALSE(dice("resto-della-riga"));
}

TEST_F(OsservazioniAperteTest, TellOfALineOfTheFileUntilItIsSaved) {
    apri(conVirgola());
    project::scriviProgetto();
    guarda();
    EXPECT_FALSE(dice("resto-della-riga"));
}

TEST_F(OsservazioniAperteTest, TakeAFileThatIsGoneForOneWithoutOddLines) {
    apri(conVirgola());
    std::filesystem::remove(fileCorrente);
    guarda();
    EXPECT_FALSE(dice("resto-della-riga"));
}

TEST(PostoDi, IsTheFirstFieldThatAFormShows) {
    review::Osservazione osservazione;
    EXPECT_FALSE(postoDi(osservazione));
    osservazione.campi = {"faldaValle", "faldaFase[2]", "profFase[2]"};
    EXPECT_EQ(postoDi(osservazione), (masks::PostoCampo{masks::NumeroMaschera::fasi, {2, 4}}));
}

}  // namespace
}  // namespace korven::commands
