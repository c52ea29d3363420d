// Taking back and doing again in a grid.

#include <gtest/gtest.h>

#include <random>

#include "masks/grid_model.hpp"
#include "support/grid_model_bench.hpp"

namespace korven::masks {
namespace {

using base::Risposta;
using Testi = std::vector<std::string>;

class StoriaGrigliaTest : public test::BancoModelloGriglia {
 protected:
    StoriaGrigliaTest() : BancoModelloGriglia(Risposta::si) {}
};

TEST_F(StoriaGrigliaTest, TakesBackWhatWasTypedIntoACellAsOneStep) {
    scrivi("4.5");
    modello.vaiA({2, 2}, dialogo);
    scrivi("21");
    premi(Tasto::backspace);
    modello.vaiA({1, 1}, dialogo);
    modello.annulla();
    EXPECT_EQ(modello.testo({2, 2}), "19");
    EXPECT_EQ(modello.corrente(), (PostoGriglia{2, 2}));
    EXPECT_EQ(modello.detto(), "Annullato: cella Peso, riga 2");
    modello.annulla();
    EXPECT_EQ(modello.detto(), "Annullato: cella Prof., riga 1");
    EXPECT_EQ(modello.valoriTesto(), iniziali);
    EXPECT_FALSE(modello.cambiata());
    modello.annulla();
    EXPECT_EQ(modello.detto(), "Nulla da annullare");
    modello.ripeti();
    EXPECT_EQ(modello.testo({1, 1}), "4.5");
    EXPECT_EQ(modello.detto(), "Ripetuto: cella Prof., riga 1");
    modello.ripeti();
    EXPECT_EQ(modello.testo({2, 2}), "2");
}

TEST_F(StoriaGrigliaTest, TakesBackABadTextThatItsCellWouldNotLetGo) {
    scrivi("x");
    EXPECT_FALSE(modello.vaiA({1, 2}, dialogo));
    modello.annulla();
    EXPECT_EQ(cella(), "3");
    EXPECT_FALSE(modello.testoScelto());
    EXPECT_TRUE(modello.vaiA({1, 2}, dialogo));
    modello.ripeti();
    EXPECT_EQ(modello.corrente(), (PostoGriglia{1, 1}));
    EXPECT_FALSE(modello.vaiA({1, 2}, dialogo));
    EXPECT_EQ(dialogo.messaggi.size(), 2U);
}

TEST_F(StoriaGrigliaTest, LeavesNoStepWhereEscBroughtTheCellBack) {
    scrivi("4");
    premi(Tasto::esc);
    modello.vaiA({1, 2}, dialogo);
    modello.annulla();
    EXPECT_EQ(modello.detto(), "Nulla da annullare");
}

TEST_F(StoriaGrigliaTest, BringsBackWithEscWhatTheCellHeldWhenAStepWasTakenBack) {
    scrivi("4");
    modello.vaiA({1, 2}, dialogo);
    modello.vaiA({1, 1}, dialogo);
    scrivi("5");
    modello.annulla();
    EXPECT_EQ(cella(), "4");
    scrivi("6");  // replaces, as in a cell that was just entered
    EXPECT_EQ(cella(), "6");
    premi(Tasto::esc);
    EXPECT_EQ(cella(), "4");
}

TEST_F(StoriaGrigliaTest, TakesTheTextOfAnOpenEditorBackAndBringsItAgain) {
    premi(Tasto::f2);
    modello.scriviEditore("77");
    modello.annulla();
    EXPECT_FALSE(modello.editoreAperto());
    EXPECT_EQ(cella(), "3");
    modello.ripeti();
    EXPECT_EQ(cella(), "77");
}

TEST_F(StoriaGrigliaTest, ClosesAnUntouchedEditorAndTakesTheStepBeforeBack) {
    scrivi("4");
    modello.vaiA({1, 2}, dialogo);
    premi(Tasto::f2);
    modello.annulla();
    EXPECT_FALSE(modello.editoreAperto());
    EXPECT_EQ(modello.testo({1, 1}), "3");
    EXPECT_EQ(modello.corrente(), (PostoGriglia{1, 1}));
}

TEST_F(StoriaGrigliaTest, TakesInsertedAndDeletedRowsBack) {
    modello.inserisciRiga(dialogo);
    modello.vaiA({2, 3}, dialogo);
    modello.eliminaRiga();
    EXPECT_EQ(modello.valoriTesto(), (Testi{"1", "8", "19", "due", "1"}));
    modello.annulla();
    EXPECT_EQ(modello.detto(), "Annullato: riga 2 eliminata");
    EXPECT_EQ(modello.corrente(), (PostoGriglia{2, 3}));
    EXPECT_EQ(modello.testo({2, 3}), "uno");
    modello.annulla();
    EXPECT_EQ(modello.detto(), "Annullato: riga 1 inserita");
    EXPECT_EQ(modello.testo({1, 3}), "uno");
    EXPECT_FALSE(modello.cambiata());
    modello.ripeti();
    EXPECT_EQ(modello.testo({1, 3}), "");
    EXPECT_EQ(modello.testo({3, 3}), "due");
}

TEST_F(StoriaGrigliaTest, KeepsTheBlanksBelowTheDataThatAnInsertedRowWouldTake) {
    modello.vaiA({3, 3}, dialogo);
    scrivi(" ");
    modello.vaiA({1, 1}, dialogo);
    modello.inserisciRiga(dialogo);
    EXPECT_EQ(modello.testo({3, 3}), "due");
    modello.annulla();
    EXPECT_EQ(modello.testo({3, 3}), " ");
}

TEST_F(StoriaGrigliaTest, TakesAPasteBackAsOneStep) {
    modello.vaiA({2, 2}, dialogo);
    modello.incolla("1\tsette\r\n2\totto\r\n3\tnove", dialogo);
    EXPECT_EQ(modello.testo({4, 3}), "nove");
    modello.annulla();
    EXPECT_EQ(modello.detto(), "Annullato: righe 2-4 incollate");
    EXPECT_EQ(modello.valoriTesto(), iniziali);
    EXPECT_EQ(modello.corrente(), (PostoGriglia{2, 2}));
    modello.ripeti();
    EXPECT_EQ(modello.testo({2, 3}), "sette");
    modello.annulla();
    modello.incolla("5", dialogo);
    modello.annulla();
    EXPECT_EQ(modello.detto(), "Annullato: riga 2 incollata");
}

TEST_F(StoriaGrigliaTest, MakesNoStepOfAPasteThatChangedNothing) {
    modello.incolla("3", dialogo);
    modello.annulla();
    EXPECT_EQ(modello.detto(), "Nulla da annullare");
}

TEST_F(StoriaGrigliaTest, WritesFromAPanelWithACheckAndTakesItBack) {
    scrivi("4");
    EXPECT_TRUE(modello.scrivi({2, 2}, "7", dialogo));
    EXPECT_EQ(modello.corrente(), (PostoGriglia{2, 2}));
    EXPECT_FALSE(modello.scrivi({2, 1}, "101", dialogo));
    EXPECT_EQ(cella(), "8");
    EXPECT_EQ(dialogo.messaggi.size(), 1U);
    modello.annulla();
    EXPECT_EQ(modello.corrente(), (PostoGriglia{2, 2}));
    EXPECT_EQ(cella(), "19");
    modello.annulla();
    EXPECT_EQ(modello.testo({1, 1}), "3");
}

TEST_F(StoriaGrigliaTest, LeavesReadOnlyColumnsAlone) {
    maschera.campi[2].soloLettura = true;
    EXPECT_FALSE(modello.scrivi({1, 2}, "7", dialogo));
    modello.vaiA({1, 2}, dialogo);
    scrivi("9");
    modello.incolla("5\tzwei", dialogo);
    EXPECT_EQ(modello.valoriTesto()[2], "18");
    modello.annulla();
    EXPECT_EQ(modello.valoriTesto(), iniziali);
    modello.annulla();
    EXPECT_EQ(modello.detto(), "Nulla da annullare");
}

TEST_F(StoriaGrigliaTest, SaysNothingMoreOnceTheCursorMoves) {
    scrivi("4");
    modello.annulla();
    EXPECT_NE(modello.detto(), "");
    premi(Tasto::giu);
    EXPECT_EQ(modello.detto(), "");
}

// All cells, those without data as well.
Testi tutte(const ModelloGriglia& modello) {
    Testi celle;
    for (int r = 1; r <= CelleGriglia::righe; ++r)
        for (int c = 1; c <= modello.colonne(); ++c) celle.push_back(modello.testo({r, c}));
    return celle;
}

// What a user may do, drawn by lot: typing of good and bad texts, moves, rows, pastes, the editor.
class Utente {
 public:
    Utente(ModelloGriglia& modello, unsigned seme) : modello_(modello), caso_(seme) {}

    void agisce() {
        switch (lancia(9)) {
            case 0:
                modello_.inserisciRiga(dialogo_);
                break;
            case 1:
                modello_.eliminaRiga();
                break;
            case 2:
                modello_.incolla(appunti_[lancia(3)], dialogo_);
                break;
            case 3:
                modello_.apriEditore();
                modello_.scriviEditore(parole_[lancia(6)]);
                break;
            case 4:
                modello_.scrivi(posto(), parole_[lancia(6)], dialogo_);
                break;
            case 5:
            case 6:
                modello_.vaiA(posto(), dialogo_);
                break;
            default:
                for (const char c : parole_[lancia(6)])
                    modello_.premi(Tasto::carattere, std::string(1, c), dialogo_);
                modello_.premi(tasti_[lancia(6)], "", dialogo_);
        }
    }
    std::size_t lancia(std::size_t n) { return caso_() % n; }

 private:
    PostoGriglia posto() {
        return {static_cast<int>(lancia(12)) + 1, static_cast<int>(lancia(4)) + 1};
    }
    ModelloGriglia& modello_;
    std::mt19937 caso_;
    test::DialogoFinto dialogo_{Risposta::si};
    const std::string parole_[6] = {"12", "x", " ", "1", "troppo lungo", "0"};
    const std::string appunti_[3] = {"1\t2\r\n3\t4", "a\tb\tc\td", " \r\n7"};
    const Tasto tasti_[6] = {Tasto::invio, Tasto::esc, Tasto::backspace,
                             Tasto::giu,   Tasto::f2,  Tasto::destra};
};

TEST(StoriaGriglia, ReturnsToTheBeginningAndToTheEndOfWhateverWasDone) {
    const Maschera maschera = test::mascheraGriglia();
    for (unsigned seme = 1; seme <= 40; ++seme) {
        ModelloGriglia modello(maschera, {"2", "3", "18", "uno", "0", "8", "19", "due", "1"});
        Utente utente(modello, seme);
        const Testi inizio = tutte(modello);
        for (int i = 0; i < 150; ++i) {
            utente.agisce();
            // On the way some steps are taken back, and done again or written over.
            if (utente.lancia(10) == 0) modello.annulla();
            if (utente.lancia(10) == 0) modello.ripeti();
        }
        while (modello.ripeti(), modello.detto() != "Nulla da ripetere") {
        }
        const Testi fine = tutte(modello);
        const std::size_t limite = 1000;
        std::size_t passi = 0;
        while (modello.annulla(), modello.detto() != "Nulla da annullare")
            ASSERT_LT(++passi, limite) << seme;
        EXPECT_GT(passi, 10U) << seme;
        EXPECT_TRUE(tutte(modello) == inizio) << seme;
        for (std::size_t i = 0; i < passi; ++i) modello.ripeti();
        EXPECT_TRUE(tutte(modello) == fine) << seme;
        modello.ripeti();
        EXPECT_EQ(modello.detto(), "Nulla da ripetere") << seme;
    }
}

TEST_F(StoriaGrigliaTest, PutsRowsInPlaceOfAllAsOneStep) {
    modello.vaiA({2, 2}, dialogo);
    scrivi("77");
    modello.sostituisci({{"1", "20", "tre", "1"}, {"2"}, {"3", "", "", "", "oltre"}},
                        "strati importati", dialogo);
    EXPECT_EQ(modello.valoriTesto(),
              (Testi{"3", "1", "20", "tre", "1", "2", "", "", "", "3", "", "", ""}));
    EXPECT_EQ(modello.corrente(), (PostoGriglia{1, 1}));
    EXPECT_TRUE(dialogo.messaggi.empty());
    EXPECT_TRUE(dialogo.domande.empty());
    modello.annulla();
    EXPECT_EQ(modello.detto(), "Annullato: strati importati");
    EXPECT_EQ(modello.testo({2, 2}), "77") << "typed before, a step of its own";
    modello.annulla();
    EXPECT_EQ(modello.valoriTesto(), iniziali);
    modello.ripeti();
    modello.ripeti();
    EXPECT_EQ(modello.testo({1, 3}), "tre");
    EXPECT_EQ(modello.testo({3, 1}), "3");
}

TEST_F(StoriaGrigliaTest, LeavesBadValuesOutOfTheRowsThatItPutsInPlace) {
    modello.sostituisci({{"101", "20", "lungo!", "7"}, {"102", "21", "due", "0"}}, "x", dialogo);
    EXPECT_EQ(modello.valoriTesto(), (Testi{"2", "", "20", "", "", "", "21", "due", "0"}));
    EXPECT_EQ(dialogo.messaggi.size(), 3U);  // one a column
    modello.annulla();
    EXPECT_EQ(modello.valoriTesto(), iniziali);
}

TEST_F(StoriaGrigliaTest, PutsNoMoreRowsInPlaceThanItHas) {
    modello.sostituisci(std::vector<Testi>(600, Testi{"1", "2", "", ""}), "x", dialogo);
    EXPECT_EQ(modello.valoriTesto().front(), "500");
    EXPECT_EQ(dialogo.messaggi.size(), 1U);
    modello.sostituisci({}, "x", dialogo);
    EXPECT_EQ(modello.valoriTesto(), Testi{"0"});
}

}  // namespace
}  // namespace korven::masks
