#include "live/working_values.hpp"

#include <gtest/gtest.h>

#include "masks/editing.hpp"
#include "project/codes.hpp"
#include "support/plain_masks.hpp"
#include "support/sample_projects.hpp"

namespace korven::live {
namespace {

class ValoriInCorso : public ::testing::Test {
 protected:
    // All columns of the plain masks are numbers.
    ValoriInCorso() {
        maschere.leggiMaschere(test::maschereSemplici(cartella));
        dati.descrStrato[1] = "11";
        dati.descrStrato[2] = "12";
    }

    ValoriForma forma(masks::NumeroMaschera numero) {
        masks::preparaMaschera(maschere, numero, dati, 0);
        return {numero, maschere.valoriCombo(), maschere.valoriTesto()};
    }
    ProgettoInCorso con(const ValoriForma& valori) {
        return conValori(dati, maschere.corrente(), valori);
    }

    test::CartellaProvvisoria cartella;
    masks::Maschere maschere;
    project::DatiProgetto dati = test::progettoSemplice();
};

TEST_F(ValoriInCorso, AreTheProjectItselfWhileNothingIsTyped) {
    for (const auto numero : {masks::NumeroMaschera::titoli, masks::NumeroMaschera::paratia,
                              masks::NumeroMaschera::strati, masks::NumeroMaschera::tiranti,
                              masks::NumeroMaschera::fasi}) {
        const auto inCorso = con(forma(numero));
        EXPECT_EQ(inCorso.impedimento, "");
        ASSERT_TRUE(inCorso.dati);
        EXPECT_EQ(*inCorso.dati, dati) << static_cast<int>(numero);
    }
}

TEST_F(ValoriInCorso, ReadACellInTheUnitThatItShows) {
    auto valori = forma(masks::NumeroMaschera::strati);
    valori.testi[2] = "18.5";  // row 1: depth, natural weight [kN/m3], ...
    const auto inCorso = con(valori);
    ASSERT_TRUE(inCorso.dati);
    EXPECT_DOUBLE_EQ(inCorso.dati->gammaN[1], 1.85);
    EXPECT_EQ(inCorso.dati->gammaN[2], dati.gammaN[2]);
}

TEST_F(ValoriInCorso, WaitForTheNumbersOfARowThatIsBeingTyped) {
    auto valori = forma(masks::NumeroMaschera::fasi);
    valori.testi[0] = "3";
    valori.testi.insert(valori.testi.end(), {"6", "1", "", ""});
    const auto inCorso = con(valori);
    EXPECT_FALSE(inCorso.dati);
    EXPECT_EQ(inCorso.impedimento, "riga 3: dati incompleti");
}

TEST_F(ValoriInCorso, TakeAColumnOfDigitsForNumbersAndOneOfTextForNone) {
    auto valori = forma(masks::NumeroMaschera::fasi);
    masks::Maschera maschera = maschere.corrente();
    for (auto& colonna : maschera.campi) colonna.tipo = "########";
    valori.testi.back().clear();
    EXPECT_EQ(conValori(dati, maschera, valori).impedimento, "riga 2: dati incompleti");
    maschera.campi.back().tipo = "/@";
    EXPECT_EQ(conValori(dati, maschera, valori).impedimento, "");
}

TEST_F(ValoriInCorso, ReadAnEmptyCellAs0WhereCellsMayStayEmptyAndTheRowGoesOn) {
    auto valori = forma(masks::NumeroMaschera::strati);
    valori.testi[5].clear();  // cohesion of layer 1
    const auto inCorso = con(valori);
    ASSERT_TRUE(inCorso.dati);
    EXPECT_EQ(inCorso.dati->coesione[1], 0);
    valori.testi[6].clear();
    valori.testi[7].clear();
    EXPECT_EQ(con(valori).impedimento, "riga 1: dati incompleti");
}

TEST_F(ValoriInCorso, TellTheFirstRowWithAnEmptyCellWhereALaterOneIsIncomplete) {
    auto valori = forma(masks::NumeroMaschera::strati);
    const std::size_t colonne = maschere.corrente().campi.size() - 1;
    valori.testi[5].clear();  // cohesion of layer 1, which reads as 0
    for (const std::size_t ultime : {6U, 7U}) valori.testi[ultime + colonne].clear();
    EXPECT_EQ(con(valori).impedimento, "riga 1: dati incompleti");
    valori.testi[5] = "1";
    EXPECT_EQ(con(valori).impedimento, "riga 2: dati incompleti");
}

TEST_F(ValoriInCorso, NeedKsOfALayerOnlyWhereTheSubgradeModulusComesFromIt) {
    auto valori = forma(masks::NumeroMaschera::strati);
    valori.testi[6].clear();
    valori.testi[7].clear();
    dati.metodoKs = project::valore(project::MetodoKs::bowles);
    EXPECT_EQ(con(valori).impedimento, "");
    dati.metodoKs = project::valore(project::MetodoKs::costante);
    EXPECT_EQ(con(valori).impedimento, "riga 1: dati incompleti");
}

TEST_F(ValoriInCorso, TellTheColumnOfAValueThatItDoesNotTake) {
    auto valori = forma(masks::NumeroMaschera::tiranti);
    valori.testi[2] = "5oo";
    const auto inCorso = con(valori);
    EXPECT_FALSE(inCorso.dati);
    EXPECT_EQ(inCorso.impedimento, "riga 1, x: valore non ammesso");
}

TEST_F(ValoriInCorso, TellTheFieldOfAValueThatItDoesNotTake) {
    auto valori = forma(masks::NumeroMaschera::paratia);
    valori.testi[0] = "-";
    EXPECT_TRUE(con(valori).dati);  // reads as 0, as it would when confirmed
    valori.testi[0] = "doz";
    EXPECT_EQ(con(valori).impedimento, "x: valore non ammesso");
}

TEST_F(ValoriInCorso, TakeCodesAsTheFormHandsThemOver) {
    auto valori = forma(masks::NumeroMaschera::paratia);
    valori.combo[0] = 1;
    const auto inCorso = con(valori);
    ASSERT_TRUE(inCorso.dati);
    EXPECT_EQ(inCorso.dati->vincoloTesta, 2);
}

TEST_F(ValoriInCorso, StopAtMoreRowsThanTheTableHolds) {
    auto valori = forma(masks::NumeroMaschera::tiranti);
    for (int i = 0; i < 20; ++i) valori.testi.insert(valori.testi.end(), {"1", "1", "1", "0"});
    EXPECT_EQ(con(valori).impedimento, "21 righe, la tabella ne tiene 20");
}

}  // namespace
}  // namespace korven::live
