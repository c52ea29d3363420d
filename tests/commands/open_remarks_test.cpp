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
using review::Peso;

class OsservazioniAperteTest : public ::testing::Test {
 protected:
    void apri(std::string testo = project::testoProgetto(test::progettoSemplice())) {
        const std::string file = ambiente.lavori / "muro.kvd";
        test::metti(file, base::inCp1252(testo));
        apriProgetto(file, "");
        aperte.guarda();
    }
    static std::string conVirgola() {
        std::string testo = project::testoProgetto(test::progettoSemplice());
        return testo.replace(testo.find("\r\n12\r\n12000") + 2, 2, "12,5");
    }
    void modifica(double project::DatiProgetto::*membro, double valore) {
        Progetto.*membro = valore;
        modificato = true;
        aperte.guarda();
    }
    [[nodiscard]] bool dice(std::string_view codice) const {
        return std::any_of(aperte.tutte().begin(), aperte.tutte().end(),
                           [codice](const auto& o) { return o.codice == codice; });
    }
    static review::Osservazioni una(Peso peso, std::string_view codice) {
        review::Osservazioni tutte(1);
        tutte[0].peso = peso;
        tutte[0].codice = codice;
        return tutte;
    }

    test::AmbienteDocumento ambiente;
    OsservazioniAperte aperte;
};

TEST_F(OsservazioniAperteTest, AreNoneAndNotCountedWithoutAProject) {
    aperte.guarda();
    EXPECT_TRUE(aperte.tutte().empty());
    EXPECT_FALSE(aperte.domanda());
    EXPECT_EQ(aperte.conteggio(), "");
}

TEST_F(OsservazioniAperteTest, AskForThoseOnResultsOfTheProjectThatIsOpen) {
    apri();
    ASSERT_TRUE(aperte.domanda());
    EXPECT_TRUE(aperte.domanda()->dati == Progetto);
    EXPECT_EQ(aperte.domanda()->nSeg, 50);
    EXPECT_EQ(aperte.conteggio(), "…");
    aperte.rispondi(aperte.domanda()->numero, una(Peso::daVedere, "riduzione-bassa"));
    EXPECT_FALSE(aperte.domanda());
    EXPECT_EQ(aperte.conteggio(), "1 da vedere");
}

TEST_F(OsservazioniAperteTest, KeepThoseOnResultsForAsLongAsTheProjectStays) {
    apri();
    aperte.rispondi(aperte.domanda()->numero, una(Peso::daVedere, "riduzione-bassa"));
    aperte.guarda();
    EXPECT_FALSE(aperte.domanda());
    EXPECT_TRUE(dice("riduzione-bassa"));
    modifica(&project::DatiProgetto::lunghezzaParatia, 11);
    EXPECT_TRUE(aperte.domanda());
    EXPECT_FALSE(dice("riduzione-bassa"));
}

TEST_F(OsservazioniAperteTest, DropTheAnswerToAnEarlierQuestion) {
    apri();
    const int prima = aperte.domanda()->numero;
    modifica(&project::DatiProgetto::lunghezzaParatia, 11);
    aperte.rispondi(prima, una(Peso::pericolo, "passiva-esaurita"));
    EXPECT_FALSE(dice("passiva-esaurita"));
    EXPECT_EQ(aperte.conteggio(), "…");
}

TEST_F(OsservazioniAperteTest, AskForNothingWhereARunWouldBeRefused) {
    apri();
    modifica(&project::DatiProgetto::lunghezzaParatia, 0);
    EXPECT_FALSE(aperte.domanda());
    EXPECT_EQ(aperte.tutte().front().peso, Peso::impedisce);
    EXPECT_EQ(aperte.conteggio(), review::conteggio(aperte.tutte()));
}

TEST_F(OsservazioniAperteTest, AreInTheOrderOfTheirWeight) {
    apri();
    modifica(&project::DatiProgetto::vincoloTesta, 7);
    aperte.rispondi(aperte.domanda()->numero, una(Peso::daVedere, "riduzione-bassa"));
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
    aperte.guarda();
    EXPECT_FALSE(dice("resto-della-riga"));
}

TEST_F(OsservazioniAperteTest, TakeAFileThatIsGoneForOneWithoutOddLines) {
    apri(conVirgola());
    std::filesystem::remove(fileCorrente);
    aperte.guarda();
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
