#include "review/remark_list.hpp"

#include <gtest/gtest.h>

#include "support/sample_projects.hpp"

namespace korven::review {
namespace {

using project::DatiProgetto;

TEST(ElencoOsservazioni, PutsTheHeaviestFirstAndKeepsTheOrderWithinAWeight) {
    ElencoOsservazioni elenco;
    elenco.conParole("strato-nullo", "a");
    elenco.conParole("ks-mancante", "b");
    elenco.conParole("troppi-ferri", "c");
    elenco.conParole("strato-profondo", "d");
    elenco.conParole("peso-mancante", "e");
    std::string ordine;
    for (const auto& o : elenco.ordinate()) ordine += o.testo;
    EXPECT_EQ(ordine, "cbead");
    EXPECT_TRUE(elenco.ordinate().empty());
}

TEST(ElencoOsservazioni, TakesCodeWeightTextAndPageFromTheTable) {
    DatiProgetto dati = test::progettoSemplice();
    dati.gammaN[1] = 1.8;
    ElencoOsservazioni elenco;
    elenco.aggiungi("peso-in-kilonewton", rigaConValore(dati, &DatiProgetto::gammaN, 1));
    const auto trovate = elenco.ordinate();
    ASSERT_EQ(trovate.size(), 1u);
    EXPECT_EQ(trovate[0].codice, "peso-in-kilonewton");
    EXPECT_EQ(trovate[0].peso, Peso::pericolo);
    EXPECT_EQ(trovate[0].testo,
              "strato 1: Gamma [kN/m³] = 18: sembra un peso di volume in kN/m³: il file lo tiene "
              "in t/m³, dieci volte più piccolo");
    EXPECT_EQ(trovate[0].campi, std::vector<std::string>{"gammaN[1]"});
    EXPECT_EQ(trovate[0].guida, "stratigrafia");
}

TEST(ElencoOsservazioni, PutsAValueInBracketsBehindTheText) {
    ElencoOsservazioni elenco;
    elenco.conValore("tipo-tirante", riga(&DatiProgetto::tipoTirante, 2), 3);
    const auto trovate = elenco.ordinate();
    EXPECT_TRUE(trovate[0].testo.starts_with("tirante 2: tipo non previsto")) << trovate[0].testo;
    EXPECT_TRUE(trovate[0].testo.ends_with(" (3)")) << trovate[0].testo;
    EXPECT_EQ(trovate[0].campi, std::vector<std::string>{"tipoTirante[2]"});
}

TEST(Soggetto, NamesRowFieldAndValueInTheUnitOfTheEditor) {
    DatiProgetto dati = test::progettoSemplice();
    dati.coesione[1] = 0.5;
    const auto uno = rigaConValore(dati, &DatiProgetto::coesione, 1);
    EXPECT_EQ(uno.testo, "strato 1: Coes. [kN/m²] = 5");
    const auto altro = campoConValore(&DatiProgetto::lunghezzaParatia, 12);
    EXPECT_EQ(altro.campi, std::vector<std::string>{"lunghezzaParatia"});
    const auto due = dopo("lato monte: ", insieme(uno, altro));
    EXPECT_EQ(due.testo, "lato monte: " + uno.testo + ", " + altro.testo);
    EXPECT_EQ(due.campi, (std::vector<std::string>{"coesione[1]", "lunghezzaParatia"}));
    EXPECT_EQ(riga(&DatiProgetto::titoli, 4).testo, "titolo 4");
}

TEST(Soggetto, NamesSeveralRowsWithTheirValuesInOrder) {
    const DatiProgetto dati = test::progettoSemplice();
    const auto due = righeConValori(dati, &DatiProgetto::phiStrato, {1, 2});
    EXPECT_EQ(due.testo, "strati 1, 2: Phi [°] = 30, 34");
    EXPECT_EQ(due.campi, (std::vector<std::string>{"phiStrato[1]", "phiStrato[2]"}));
    EXPECT_EQ(righeConValori(dati, &DatiProgetto::phiStrato, {2}).testo, "strato 2: Phi [°] = 34");
    EXPECT_EQ(righeConValori(dati, &DatiProgetto::faldaFase, {1, 2}).testo,
              "fasi 1, 2: Prof. falda [m] = 3, 5");
    EXPECT_EQ(righeConValori(dati, &DatiProgetto::suStrato, {1}).testo, "strato 1: Su [kN/m²] = 0");
}

TEST(InFila, PutsCommasBetweenThePieces) {
    EXPECT_EQ(inFila({}), "");
    EXPECT_EQ(inFila({"2"}), "2");
    EXPECT_EQ(inFila({"1", "3", "4"}), "1, 3, 4");
}

TEST(ConValore, PutsThePlainNumberInBrackets) {
    EXPECT_EQ(conValoreTraParentesi("codice", -0.5), "codice (-0.5)");
    EXPECT_EQ(conValoreTraParentesi("codice", 3), "codice (3)");
}

TEST(Intero, IsTrueForWholeNumbersOfEitherSignAlone) {
    for (const double si : {0.0, -3.0, 1e15}) EXPECT_TRUE(intero(si)) << si;
    for (const double no : {0.5, -0.1, 1.2}) EXPECT_FALSE(intero(no)) << no;
}

}  // namespace
}  // namespace korven::review
