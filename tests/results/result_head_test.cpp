#include "results/result_head.hpp"

#include <gtest/gtest.h>

#include "base/file_error.hpp"
#include "support/hand_written_results.hpp"
#include "support/sample_projects.hpp"

namespace korven::results {
namespace {

TEST(TestaRisultati, TellsTheMeshByTheNumberOfLines) {
    const auto dati = test::progettoSemplice();
    for (const int nodi : {4, 11, 51}) {
        const test::RisultatiAMano file(200);  // whatever nseg.txt says
        file.scrivi(dati, {test::faseFerma(nodi), test::faseFerma(nodi)});
        const auto testa = leggiTestaRisultati(file.percorso());
        ASSERT_TRUE(testa);
        EXPECT_EQ(testa->nSeg, nodi - 1);
        EXPECT_EQ(testa->dati.titoli[1], "Muro di prova");
        EXPECT_EQ(testa->dati.lunghezzaParatia, 12);
    }
}

TEST(TestaRisultati, KeepsTheMethodOfTheRun) {
    auto dati = test::progettoSemplice();
    dati.metodoSpinte = 3;
    const test::RisultatiAMano file(10);
    file.scrivi(dati, {test::faseFerma(11), test::faseFerma(11)});
    const auto testa = leggiTestaRisultati(file.percorso());
    ASSERT_TRUE(testa);
    EXPECT_EQ(testa->metodoUsato, 3);
    EXPECT_EQ(testa->dati.metodoSpinte, 1);
}

TEST(TestaRisultati, IsNoneOfAProject) {
    const test::CartellaProvvisoria cartella;
    const std::string progetto = cartella / "muro.kvd";
    const auto testo = base::inCp1252(project::testoProgetto(test::progettoSemplice()));
    test::metti(progetto, testo);
    EXPECT_FALSE(leggiTestaRisultati(progetto));
    test::metti(progetto, testo + "una riga di troppo\r\n");
    EXPECT_FALSE(leggiTestaRisultati(progetto));
}

TEST(TestaRisultati, RefusesStagesThatAreNotWhole) {
    const auto dati = test::progettoSemplice();
    const test::RisultatiAMano file(10);
    file.scrivi(dati, {test::faseFerma(11), test::faseFerma(10)});
    EXPECT_THROW((void)leggiTestaRisultati(file.percorso()), base::ErroreFile);
    file.scrivi(dati, {test::faseFerma(3), test::faseFerma(3)});  // two segments
    EXPECT_THROW((void)leggiTestaRisultati(file.percorso()), base::ErroreFile);
    file.scrivi(dati, {test::faseFerma(501), test::faseFerma(501)});
    EXPECT_THROW((void)leggiTestaRisultati(file.percorso()), base::ErroreFile);
    EXPECT_THROW((void)leggiTestaRisultati(file.percorso() + "x"), base::ErroreFile);
}

std::string errore(const std::string& percorso) {
    try {
        (void)leggiTestaRisultati(percorso);
    } catch (const base::ErroreFile& e) {
        return e.what();
    }
    return {};
}

TEST(TestaRisultati, AdviseToDeleteAFileOnlyIfItHoldsResults) {
    const test::CartellaProvvisoria cartella;
    const auto intero = base::inCp1252(project::testoProgetto(test::progettoSemplice()));
    const std::string monco = intero.substr(0, intero.size() / 2);
    const std::string consiglio = "cancellarlo e ripetere il calcolo";
    for (const char* nome : {"muro.kvd", "muro.pdf", "muro"}) {
        test::metti(cartella / nome, monco);
        const std::string detto = errore(cartella / nome);
        EXPECT_NE(detto.find(nome), std::string::npos) << detto;
        EXPECT_EQ(detto.find(consiglio), std::string::npos) << detto;
    }
    for (const char* nome : {"muro.OUT", "muro.out"}) {
        test::metti(cartella / nome, monco);
        EXPECT_NE(errore(cartella / nome).find(consiglio), std::string::npos) << nome;
    }
    const test::RisultatiAMano file(10);
    file.scrivi(test::progettoSemplice(), {test::faseFerma(11), test::faseFerma(10)});
    const std::string altrove = cartella / "risultati.txt";
    test::metti(altrove, test::contenuto(file.percorso()));
    EXPECT_NE(errore(altrove).find(consiglio), std::string::npos);
}

}  // namespace
}  // namespace korven::results
