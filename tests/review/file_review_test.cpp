#include <gtest/gtest.h>

#include "base/code_page.hpp"
#include "base/file_error.hpp"
#include "project/codes.hpp"
#include "project/project_file.hpp"
#include "review/bench.hpp"

namespace korven::review {
namespace {

std::vector<std::string> righeFile(const std::string& testo) {
    const test::CartellaProvvisoria cartella;
    const std::string percorso = cartella / "muro.kvd";
    base::scriviFile(percorso, base::inCp1252(testo));
    DatiProgetto dati;
    auto file = base::LettoreRighe::apri(percorso);
    project::leggiDati(file, dati);
    std::vector<std::string> trovate;
    for (const auto& r : esaminaFile(percorso, dati))
        trovate.push_back((r.impedisce() ? "! " : "") + r.testo);
    return trovate;
}

std::string conScambio(const std::string& vecchio, const std::string& nuovo) {
    std::string testo = project::testoProgetto(test::progettoSemplice());
    return testo.replace(testo.find("\r\n" + vecchio + "\r\n") + 2, vecchio.size(), nuovo);
}

TEST(EsaminaFile, FindsNothingInAFileThatTheProgramWrote) {
    EXPECT_TRUE(righeFile(project::testoProgetto(test::progettoSemplice())).empty());
}

TEST(EsaminaFile, TellsADecimalCommaWithItsLineItsFieldAndWhatWasRead) {
    EXPECT_EQ(righeFile(conScambio("12000", "12000,5")),
              std::vector<std::string>{"riga 27: rigidezza EJ = 12000: il resto della riga non "
                                       "conta, il segno decimale è il punto (12000,5)"});
}

TEST(EsaminaFile, NamesTheFieldOfTheLine) {
    const test::CartellaProvvisoria cartella;
    const std::string file = cartella / "muro.kvd";
    const auto campi = [&](const std::string& vecchio, const std::string& nuovo) {
        test::metti(file, base::inCp1252(conScambio(vecchio, nuovo)));
        return esaminaRighe(file, test::progettoSemplice()).at(0).campi;
    };
    EXPECT_EQ(campi("12000", "12000,5"), std::vector<std::string>{"rigidezzaEJ"});
    EXPECT_EQ(campi("34", "34 gradi"), std::vector<std::string>{"phiStrato[2]"});
}

TEST(EsaminaFile, PutsTheLinesAfterWhatTheProjectItselfShows) {
    const auto trovate = righeFile(conScambio("1.8", "18 kN/m3"));
    ASSERT_EQ(trovate.size(), 2u);
    EXPECT_TRUE(
        trovate[0].starts_with("strato 1: Gamma [kN/m³] = 180: sembra un peso di volume in kN/m³"));
    EXPECT_TRUE(trovate[1].starts_with("riga 3: peso naturale dello strato 1 = 18: "));
}

TEST(EsaminaFile, TellsThatRankineAndBellDoNotSurviveTheReading) {
    DatiProgetto d = test::progettoSemplice();
    d.metodoSpinte = valore(project::MetodoSpinte::rankine);
    EXPECT_EQ(righeFile(project::testoProgetto(d)),
              std::vector<std::string>{"riga 24: metodo delle spinte = 2: un progetto si riapre "
                                       "sempre con il metodo di Coulomb (1)"});
}

TEST(EsaminaFile, TellsLinesAfterTheLastValueAsAMiscount) {
    EXPECT_EQ(righeFile(project::testoProgetto(test::progettoSemplice()) + "4\r\n"),
              std::vector<std::string>{
                  "riga 88: il file continua dopo l'ultimo valore: i numeri di strati, tiranti e "
                  "fasi potrebbero non essere quelli delle righe scritte"});
}

TEST(EsaminaFile, TakesBlankLinesAtTheEndForNothing) {
    const std::string progetto = project::testoProgetto(test::progettoSemplice());
    for (const char* bianche : {"\r\n", "\r\n\r\n\r\n", " \t\r\n\n \n", "\n\n  "})
        EXPECT_TRUE(righeFile(progetto + bianche).empty());
    const auto trovate = righeFile(progetto + "\r\n\r\n4\r\n");
    ASSERT_EQ(trovate.size(), 1u);
    EXPECT_TRUE(trovate[0].starts_with("riga 90: il file continua")) << trovate[0];
}

TEST(EsaminaFile, RaisesTheErrorOfAFileThatIsGone) {
    EXPECT_THROW((void)esaminaFile("/non/esiste.kvd", test::progettoSemplice()), base::ErroreFile);
}

}  // namespace
}  // namespace korven::review
