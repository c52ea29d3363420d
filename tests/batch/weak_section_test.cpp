// A section that is too weak for its wall is a result like another: the report says so, the program
// does not fail.

#include "batch/batch_bench.hpp"

namespace korven::batch {
namespace {

using SezioneDebole = test::BancoConsole;
using test::contenuto;
using test::dice;

// A wall of 20 cm with 6 mm bars every 30 cm on either face.
project::DatiProgetto paretina() {
    auto d = test::progettoSemplice();
    auto& s = d.sezione;
    s.modEcls = 30000;
    s.modEacciaio = 200000;
    s.fck = 25;
    s.fyk = 430;
    s.spessoreDiaframma = 20;
    s.copriferroMonte = s.copriferroValle = 3;
    s.interasseMonte = s.interasseValle = 30;
    s.diametroMonte = s.diametroValle = 0.6;
    return d;
}

std::string testo(const std::string& percorso) { return base::daCp1252(contenuto(percorso)); }

TEST_F(SezioneDebole, IsReportedAsNotVerifiedAndTheProgramEndsWell) {
    scrivi(paretina());
    const auto esito = esegui("relazione", {"--txt"});
    EXPECT_EQ(esito.codice, 0) << esito.errori;
    for (const auto* file : {"muro.TAB", "muro.txt"}) {
        const std::string relazione = testo(cartella / file);
        EXPECT_TRUE(dice(relazione, "CONDIZIONI DI SICUREZZA NON VERIFICATE (momento positivo)"));
        EXPECT_TRUE(dice(relazione, "CONDIZIONI DI SICUREZZA NON VERIFICATE (momento negativo)"));
        EXPECT_FALSE(dice(relazione, "Condizioni di sicurezza verificate"));
    }
}

TEST_F(SezioneDebole, CountsAsVerifiedOnceItIsThickEnough) {
    auto d = paretina();
    d.sezione.spessoreDiaframma = 100;
    d.sezione.diametroMonte = d.sezione.diametroValle = 2.4;
    scrivi(d);
    EXPECT_EQ(esegui("relazione").codice, 0);
    const std::string relazione = testo(cartella / "muro.TAB");
    EXPECT_TRUE(dice(relazione, "Condizioni di sicurezza verificate (momento positivo)"));
    EXPECT_TRUE(dice(relazione, "Condizioni di sicurezza verificate (momento negativo)"));
    EXPECT_FALSE(dice(relazione, "NON VERIFICATE"));
}

}  // namespace
}  // namespace korven::batch
