// What a key does in a grid: typing into a cell, moving from one to the next, the floating editor.

#include <gtest/gtest.h>

#include "masks/grid_model.hpp"
#include "support/grid_model_bench.hpp"

namespace korven::masks {
namespace {

using base::Risposta;
using Testi = std::vector<std::string>;

class TastiGriglia : public test::BancoModelloGriglia {};

TEST_F(TastiGriglia, ReplacesTheCellByTheFirstCharacterAndAppendsTheNext) {
    scrivi("45");
    EXPECT_EQ(cella(), "45");
    premi(Tasto::backspace);
    EXPECT_EQ(cella(), "4");
    premi(Tasto::esc);
    EXPECT_EQ(cella(), "3");
    scrivi("6");
    EXPECT_EQ(cella(), "6");
}

TEST_F(TastiGriglia, DoesNotReplaceTheCellByBackspaceOrAPoint) {
    premi(Tasto::backspace);
    EXPECT_EQ(cella(), "");
    modello.vaiA({2, 2}, dialogo);
    premi(Tasto::backspace);
    scrivi("8");
    EXPECT_EQ(cella(), "18");
    modello.vaiA({1, 2}, dialogo);
    scrivi(".5");
    EXPECT_EQ(cella(), "18.5");
}

TEST_F(TastiGriglia, TakesDeleteForBackspaceAndAPointForACharacter) {
    scrivi("1.5");
    EXPECT_EQ(cella(), "1.5");
    premi(Tasto::canc);
    premi(Tasto::canc);
    EXPECT_EQ(cella(), "1");
    premi(Tasto::canc);
    premi(Tasto::canc);
    EXPECT_EQ(cella(), "");
}

TEST_F(TastiGriglia, RemovesWholeCharacters) {
    modello.vaiA({1, 3}, dialogo);
    modello.premi(Tasto::carattere, "à", dialogo);
    modello.premi(Tasto::carattere, "è", dialogo);
    premi(Tasto::backspace);
    EXPECT_EQ(cella(), "à");
}

TEST_F(TastiGriglia, CopiesWithoutTouchingWhatIsTypedNext) {
    EXPECT_EQ(modello.copia(), "3\t18\tuno\t0\r\n8\t19\tdue\t1");
    scrivi("7");
    EXPECT_EQ(cella(), "7");
}

TEST_F(TastiGriglia, MovesOnEnterToTheNextColumnAndRow) {
    premi(Tasto::invio);
    EXPECT_EQ(modello.corrente(), (PostoGriglia{1, 2}));
    modello.vaiA({1, 4}, dialogo);
    premi(Tasto::invio);
    EXPECT_EQ(modello.corrente(), (PostoGriglia{2, 1}));
    modello.vaiA({500, 4}, dialogo);
    premi(Tasto::invio);
    EXPECT_EQ(modello.corrente(), (PostoGriglia{500, 4}));
}

TEST_F(TastiGriglia, GoesBackTheWayThatEnterGoes) {
    modello.vaiA({2, 2}, dialogo);
    modello.arretra(dialogo);
    EXPECT_EQ(modello.corrente(), (PostoGriglia{2, 1}));
    modello.arretra(dialogo);
    EXPECT_EQ(modello.corrente(), (PostoGriglia{1, 4}));
    modello.vaiA({1, 1}, dialogo);
    modello.arretra(dialogo);
    EXPECT_EQ(modello.corrente(), (PostoGriglia{1, 1}));
}

TEST_F(TastiGriglia, WritesTheEditorWhenItMovesOn) {
    modello.apriEditore();
    modello.scriviEditore("6");
    modello.avanza(dialogo);
    EXPECT_EQ(modello.testo({1, 1}), "6");
    EXPECT_EQ(modello.corrente(), (PostoGriglia{1, 2}));
    modello.vaiA({500, 4}, dialogo);
    modello.apriEditore();
    modello.scriviEditore("7");
    modello.avanza(dialogo);
    EXPECT_EQ(modello.testo({500, 4}), "7");
    EXPECT_FALSE(modello.editoreAperto());
    EXPECT_EQ(dialogo.messaggi.size(), 1u) << "not one of the keys";
}

TEST_F(TastiGriglia, EndsAtTheLastCellOfItsData) {
    EXPECT_EQ(modello.fine(), (PostoGriglia{2, 4}));
    EXPECT_EQ(ModelloGriglia(maschera, {}).fine(), (PostoGriglia{1, 1}));
}

TEST_F(TastiGriglia, MovesByArrowsInsideTheGrid) {
    premi(Tasto::su);
    premi(Tasto::sinistra);
    EXPECT_EQ(modello.corrente(), (PostoGriglia{1, 1}));
    premi(Tasto::giu);
    premi(Tasto::destra);
    EXPECT_EQ(modello.corrente(), (PostoGriglia{2, 2}));
}

TEST_F(TastiGriglia, PutsTheCursorBackOnABadCell) {
    scrivi("101");
    premi(Tasto::invio);
    EXPECT_EQ(modello.corrente(), (PostoGriglia{1, 1}));
    EXPECT_FALSE(modello.vaiA({2, 2}, dialogo));
    ASSERT_EQ(dialogo.messaggi.size(), 2u);
    EXPECT_TRUE(dialogo.messaggi[0].testo.ends_with("all'intervallo:\r\n0; 100"));
    EXPECT_EQ(dialogo.messaggi[0].titolo, "Prof. [m]");
    EXPECT_EQ(dialogo.messaggi[0].icona, base::Icona::stop);
    premi(Tasto::esc);
    EXPECT_TRUE(modello.vaiA({2, 2}, dialogo));
}

TEST_F(TastiGriglia, CutsATextThatIsTooLong) {
    modello.vaiA({1, 3}, dialogo);
    scrivi("abcdefg");
    EXPECT_FALSE(modello.vaiA({1, 4}, dialogo));
    EXPECT_EQ(cella(), "abcde");
    EXPECT_TRUE(modello.vaiA({1, 4}, dialogo));
}

TEST_F(TastiGriglia, AcceptsAnEmptyCellInEveryColumn) {
    for (int c = 1; c <= 4; ++c) {
        modello.vaiA({3, c}, dialogo);
        scrivi(" ");
    }
    modello.vaiA({1, 1}, dialogo);
    EXPECT_TRUE(dialogo.messaggi.empty());
    EXPECT_EQ(modello.corrente(), (PostoGriglia{1, 1}));
}

TEST_F(TastiGriglia, EditsInAnEditorThatEnterWritesAndEscDrops) {
    premi(Tasto::f2);
    EXPECT_TRUE(modello.editoreAperto());
    EXPECT_EQ(modello.testoEditore(), "3");
    modello.scriviEditore("35");
    premi(Tasto::esc);
    EXPECT_FALSE(modello.editoreAperto());
    EXPECT_EQ(cella(), "3");
    modello.apriEditore();  // a double click
    modello.scriviEditore("35");
    premi(Tasto::carattere);  // belongs to the editor
    premi(Tasto::invio);
    EXPECT_EQ(cella(), "35");
    EXPECT_EQ(modello.corrente(), (PostoGriglia{1, 1}));
    premi(Tasto::esc);  // back to what the cell had on entry
    EXPECT_EQ(cella(), "3");
}

TEST_F(TastiGriglia, WritesAnOpenEditorBeforeItLeavesTheCell) {
    modello.apriEditore();
    modello.scriviEditore("7");
    EXPECT_TRUE(modello.vaiA({2, 2}, dialogo));
    EXPECT_EQ(modello.testo({1, 1}), "7");
}

}  // namespace
}  // namespace korven::masks
