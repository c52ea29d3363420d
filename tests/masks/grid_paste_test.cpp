#include <gtest/gtest.h>

#include "masks/grid_model.hpp"
#include "support/dialog_double.hpp"
#include "support/mask_setup.hpp"

namespace korven::masks {
namespace {

using base::Risposta;

class Incolla : public ::testing::Test {
 protected:
    Incolla() { dialogo.risposte = {Risposta::si}; }
    [[nodiscard]] std::string riga(int r) const {
        std::string testo;
        for (int c = 1; c <= 4; ++c) testo += modello.testo({r, c}) + (c < 4 ? "|" : "");
        return testo;
    }
    Maschera maschera = test::mascheraGriglia();
    test::DialogoFinto dialogo;
    ModelloGriglia modello{maschera, {"1", "3", "18", "uno", "0"}};
};

TEST_F(Incolla, FillsColumnsFromTheCurrentCellOn) {
    modello.vaiA({2, 2}, dialogo);
    modello.incolla("5\tx\r\n6\ty\r\n", dialogo);
    EXPECT_EQ(riga(2), "|5|x|");
    EXPECT_EQ(riga(3), "|6|y|");
    EXPECT_EQ(riga(4), "|||");
    EXPECT_EQ(modello.corrente(), (PostoGriglia{2, 2}));
    EXPECT_TRUE(dialogo.messaggi.empty());
}

TEST_F(Incolla, ShowsTheTextBeforeItWrites) {
    modello.vaiA({2, 1}, dialogo);
    modello.incolla("1\n2\n3\n4\n5\n6\n7\n8", dialogo);
    ASSERT_EQ(dialogo.domande.size(), 1u);
    EXPECT_EQ(dialogo.domande[0],
              (test::DialogoFinto::Detto{"Confermate l'inserimento dei seguenti dati?\r\n"
                                         "1\n2\n3\n4\n5\n6\n......",
                                         "ATTENZIONE!", base::Icona::domanda}));
    EXPECT_EQ(modello.testo({9, 1}), "8");
}

TEST_F(Incolla, WritesNothingWithoutConsent) {
    for (const auto risposta : {Risposta::no, Risposta::annulla}) {
        dialogo.risposte = {risposta};
        modello.incolla("7\t7", dialogo);
        EXPECT_EQ(riga(1), "3|18|uno|0");
    }
    dialogo.domande.clear();
    modello.incolla("", dialogo);
    EXPECT_TRUE(dialogo.domande.empty());
}

TEST_F(Incolla, OverwritesAfterOneQuestion) {
    dialogo.risposte = {Risposta::si, Risposta::si};
    modello.incolla("7\t8\tdue\r\n9\t9", dialogo);
    EXPECT_EQ(riga(1), "7|8|due|0");
    EXPECT_EQ(riga(2), "9|9||");
    ASSERT_EQ(dialogo.domande.size(), 2u);
    EXPECT_EQ(dialogo.domande[1].testo,
              "Uno o più dati sono già presenti nella tabella. Volete sovrascriverli?");
    EXPECT_EQ(dialogo.domande[1].titolo, "ATTENZIONE!");
}

TEST_F(Incolla, LeavesOccupiedCellsAloneOnNoAndFillsTheFreeOnes) {
    ModelloGriglia mezzo(maschera, {"2", "3", "", "uno", "", "", "19", "", "1"});
    dialogo.risposte = {Risposta::si, Risposta::no};
    mezzo.incolla("7\t8\tdue\t1\r\n9\t9\ttre\t0", dialogo);
    EXPECT_EQ(mezzo.valoriTesto(), (std::vector<std::string>{"2", "3", "8", "uno", "1",  //
                                                             "9", "19", "tre", "1"}));
    EXPECT_EQ(dialogo.domande.size(), 2u);
}

TEST_F(Incolla, LeavesTheCellOfABadValueEmptyAndTellsEachFaultOfAColumnOnce) {
    dialogo.risposte = {Risposta::si, Risposta::no};
    modello.vaiA({2, 1}, dialogo);
    modello.incolla("1,5\t1\ttroppo lungo\t2\r\n2,5\t2\tb\t1\r\n500\t3\tc\t0", dialogo);
    EXPECT_EQ(riga(2), "|1||");
    EXPECT_EQ(riga(3), "|2|b|1");
    EXPECT_EQ(riga(4), "|3|c|0");
    ASSERT_EQ(dialogo.messaggi.size(), 4u);
    EXPECT_EQ(dialogo.messaggi[0].titolo, "Prof. [m]");
    EXPECT_EQ(dialogo.messaggi[1].titolo, "Nome");
    EXPECT_EQ(dialogo.messaggi[2].testo,
              "Il dato inserito non e' compreso tra quelli ammissibili.");
    EXPECT_TRUE(dialogo.messaggi[3].testo.ends_with("\r\n0; 100"));
}

TEST_F(Incolla, EmptiesAnOccupiedCellForABadValue) {
    dialogo.risposte = {Risposta::si, Risposta::si};
    modello.incolla("x", dialogo);
    EXPECT_EQ(riga(1), "|18|uno|0");
}

TEST_F(Incolla, DropsCellsBeyondTheLastColumn) {
    modello.vaiA({2, 3}, dialogo);
    modello.incolla("a\t1\tb\tc", dialogo);
    EXPECT_EQ(riga(2), "||a|1");
    EXPECT_EQ(riga(3), "|||");
}

TEST_F(Incolla, StopsAtTheLastRowWithAMessage) {
    std::string molte;
    for (int i = 0; i < 600; ++i) molte += "1\r\n";
    modello.vaiA({2, 1}, dialogo);
    modello.incolla(molte, dialogo);
    EXPECT_EQ(modello.testo({500, 1}), "1");
    ASSERT_EQ(dialogo.messaggi.size(), 1u);
    EXPECT_EQ(dialogo.messaggi[0].testo,
              "Non è possibile inserire un numero di righe superiore a 500");
    EXPECT_EQ(dialogo.messaggi[0].titolo, "ATTENZIONE!");
}

TEST_F(Incolla, TakesExactlyTheRowsThatFit) {
    std::string tutte;
    for (int i = 0; i < 499; ++i) tutte += "1\r\n";
    modello.vaiA({2, 1}, dialogo);
    modello.incolla(tutte, dialogo);
    EXPECT_TRUE(dialogo.messaggi.empty());
}

TEST_F(Incolla, PassesOverAReadOnlyColumn) {
    maschera.campi[2].soloLettura = true;
    modello.vaiA({2, 1}, dialogo);
    modello.incolla("1\t2\tx", dialogo);
    EXPECT_EQ(riga(2), "1||x|");
}

TEST_F(Incolla, TakesBackWhatItCopied) {
    ModelloGriglia altra(maschera, {"0"});
    altra.incolla(modello.copia(), dialogo);
    EXPECT_EQ(altra.valoriTesto(), modello.valoriTesto());
}

TEST_F(Incolla, OffersToTakeDecimalCommasAsPointsBeforeAnythingIsWritten) {
    modello.vaiA({2, 1}, dialogo);
    dialogo.risposte = {Risposta::si, Risposta::si};
    modello.incolla("1,5\t-0,25\ta,b\t1\r\n2.5\t3,75\t1,5\t0", dialogo);
    ASSERT_EQ(dialogo.domande.size(), 2u);
    EXPECT_EQ(
        dialogo.domande[1],
        (test::DialogoFinto::Detto{"Alcuni numeri hanno la virgola decimale, per esempio 1,5.\r\n"
                                   "Volete leggere la virgola come punto?\r\n"
                                   "Con No le loro celle restano vuote.",
                                   "ATTENZIONE!", base::Icona::domanda}));
    EXPECT_EQ(riga(2), "1.5|-0.25|a,b|1");
    EXPECT_EQ(riga(3), "2.5|3.75|1,5|0") << "a text keeps its comma";
    EXPECT_TRUE(dialogo.messaggi.empty());
}

TEST_F(Incolla, KeepsDecimalCommasOnNoAndIsCalledOffOnCancel) {
    modello.vaiA({2, 1}, dialogo);
    dialogo.risposte = {Risposta::si, Risposta::no};
    modello.incolla("1,5\t2\r\n2,5\t3", dialogo);
    EXPECT_EQ(riga(2), "|2||");
    EXPECT_EQ(riga(3), "|3||");
    ASSERT_EQ(dialogo.messaggi.size(), 1u);
    EXPECT_EQ(dialogo.messaggi[0].testo,
              "Non sono ammessi caratteri alfanumerici in un campo di tipo numerico.");
    modello.vaiA({5, 1}, dialogo);
    dialogo.risposte = {Risposta::si, Risposta::annulla};
    modello.incolla("1,5\t2\r\n2,5\t3", dialogo);
    EXPECT_EQ(riga(5), "|||");
    EXPECT_EQ(dialogo.messaggi.size(), 1u);
}

TEST_F(Incolla, AsksNothingAboutCommasThatAreNoDecimalsOrGoNowhere) {
    modello.vaiA({2, 3}, dialogo);
    dialogo.risposte = {Risposta::si};
    modello.incolla("1,5\t1\t2,5", dialogo);
    EXPECT_EQ(riga(2), "||1,5|1") << "beyond the last column";
    dialogo.risposte = {Risposta::si};
    modello.vaiA({3, 1}, dialogo);
    modello.incolla("1.234,5\t1,2,3", dialogo);
    EXPECT_EQ(dialogo.domande.size(), 2u);
}

}  // namespace
}  // namespace korven::masks
