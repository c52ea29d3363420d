#include "masks/grid_model.hpp"

#include <gtest/gtest.h>

#include "base/table.hpp"
#include "support/grid_model_bench.hpp"

namespace korven::masks {
namespace {

using Testi = std::vector<std::string>;
using base::Risposta;

class ModelloGrigliaTest : public test::BancoModelloGriglia {};

TEST_F(ModelloGrigliaTest, ShowsTheRowsItIsGivenTrimmed) {
    const ModelloGriglia altro(maschera, {"1", " 3 ", "18"});
    EXPECT_EQ(altro.testo({1, 1}), "3");
    EXPECT_EQ(altro.testo({1, 2}), "18");
    EXPECT_EQ(altro.testo({1, 3}), "");
    EXPECT_EQ(altro.colonne(), 4);
    EXPECT_EQ(altro.etichetta(0), "N");
    EXPECT_EQ(altro.titolo(), "Tabella");
    EXPECT_EQ(altro.corrente(), (PostoGriglia{1, 1}));
}

TEST_F(ModelloGrigliaTest, BeginsAtAnotherCellWithoutACheckOfTheFirst) {
    ModelloGriglia altro(maschera, {"2", "x", "18", "uno", "0", "8", "19", "due", "1"});
    altro.comincia({2, 3});
    EXPECT_EQ(altro.corrente(), (PostoGriglia{2, 3}));
    altro.premi(Tasto::carattere, "t", dialogo);
    EXPECT_EQ(altro.testo({2, 3}), "t");  // as where the cursor has just arrived
    altro.comincia({501, 9});
    EXPECT_EQ(altro.corrente(), (PostoGriglia{500, 4}));
    altro.comincia({0, -1});
    EXPECT_EQ(altro.corrente(), (PostoGriglia{1, 1}));
    EXPECT_TRUE(dialogo.messaggi.empty());
}

TEST_F(ModelloGrigliaTest, HasTheTextOfTheOpenEditorAmongWhatIsTyped) {
    modello.apriEditore();
    modello.scriviEditore("12");
    EXPECT_EQ(modello.valoriDigitati()[1], "12");
    EXPECT_EQ(modello.valoriTesto()[1], "3");
    premi(Tasto::esc);
    EXPECT_EQ(modello.valoriDigitati(), modello.valoriTesto());
}

TEST_F(ModelloGrigliaTest, IsWrittenIntoByAPanelIfTheColumnTakesIt) {
    EXPECT_TRUE(modello.scrivi({2, 2}, "21", dialogo));
    EXPECT_EQ(modello.corrente(), (PostoGriglia{2, 2}));
    EXPECT_EQ(cella(), "21");
    premi(Tasto::esc);
    EXPECT_EQ(cella(), "21");  // the cursor has arrived after the text
    EXPECT_FALSE(modello.scrivi({2, 1}, "101", dialogo));
    EXPECT_EQ(modello.testo({2, 1}), "8");
    EXPECT_EQ(dialogo.messaggi.size(), 1U);
    scrivi("x");
    EXPECT_FALSE(modello.scrivi({1, 1}, "4", dialogo));  // the current cell can't be left
    EXPECT_EQ(modello.testo({1, 1}), "3");
}

TEST_F(ModelloGrigliaTest, TakesATitleThatFollowsTheRowCount) {
    const ModelloGriglia altro(maschera, {"1|Altro titolo", "3", "18", "", ""});
    EXPECT_EQ(altro.titolo(), "Altro titolo");
    EXPECT_EQ(altro.testo({1, 2}), "18");
}

TEST_F(ModelloGrigliaTest, RefusesMoreRowsThanItHas) {
    EXPECT_THROW(ModelloGriglia(maschera, {"501"}), base::ErroreIndice);
    EXPECT_NO_THROW(ModelloGriglia(maschera, {"500"}));
    EXPECT_NO_THROW(ModelloGriglia(maschera, {"-1", "x"}));
}

TEST_F(ModelloGrigliaTest, MakesAColumnAsWideAsItsLabelOrItsType) {
    EXPECT_EQ(modello.campioniLarghezza(1),
              (std::array<std::string, 2>{" Prof. [m] ", " 888888 "}));
    EXPECT_EQ(modello.campioniLarghezza(3), (std::array<std::string, 2>{" Nome ", " 88888 "}));
    EXPECT_TRUE(modello.numerica(1));
    EXPECT_FALSE(modello.numerica(3));
}

TEST_F(ModelloGrigliaTest, LeavesAReadOnlyColumnAlone) {
    maschera.campi[1].soloLettura = true;
    scrivi("9");
    premi(Tasto::f2);
    EXPECT_FALSE(modello.editoreAperto());
    EXPECT_EQ(cella(), "3");
    maschera.campi[1].massimo = 1;  // out of range, and nothing the user could do about it
    EXPECT_TRUE(modello.vaiA({2, 2}, dialogo));
}

TEST_F(ModelloGrigliaTest, ShowsTheHelpOfTheColumnWithItsKeysBelow) {
    EXPECT_EQ(modello.aiuto(), "la profondità");
    modello.vaiA({1, 4}, dialogo);
    EXPECT_EQ(modello.aiuto(), "il tipo\n0=traz.,1=tutti");
    modello.mostraAiuto(dialogo);
    EXPECT_EQ(dialogo.messaggi.at(0).testo, "il tipo\n0=traz.,1=tutti");
}

TEST_F(ModelloGrigliaTest, InsertsARowAtTheCurrentOne) {
    modello.vaiA({2, 1}, dialogo);
    modello.inserisciRiga(dialogo);
    EXPECT_EQ(cella(), "");
    EXPECT_EQ(modello.testo({3, 3}), "due");
    premi(Tasto::esc);  // the row is a new one: nothing comes back
    EXPECT_EQ(cella(), "");
}

TEST_F(ModelloGrigliaTest, DoesNotPushABadCellDown) {
    scrivi("999");
    modello.inserisciRiga(dialogo);
    EXPECT_EQ(dialogo.messaggi.size(), 1u);
    EXPECT_EQ(cella(), "999");
    modello.eliminaRiga();  // a bad row can go
    EXPECT_EQ(cella(), "8");
    EXPECT_EQ(modello.corrente(), (PostoGriglia{1, 1}));
}

TEST_F(ModelloGrigliaTest, ConfirmsAndPacksItsRows) {
    EXPECT_TRUE(modello.conferma(dialogo));
    EXPECT_EQ(modello.valoriTesto(), (Testi{"2", "3", "18", "uno", "0", "8", "19", "due", "1"}));
    EXPECT_TRUE(dialogo.domande.empty());
}

TEST_F(ModelloGrigliaTest, ClosesTheEditorBeforeItConfirms) {
    modello.apriEditore();
    modello.scriviEditore("x");
    EXPECT_FALSE(modello.conferma(dialogo));
    EXPECT_EQ(dialogo.messaggi.size(), 1u);
    modello.apriEditore();
    modello.scriviEditore("4");
    EXPECT_TRUE(modello.conferma(dialogo));
    EXPECT_EQ(modello.valoriTesto()[1], "4");
}

TEST_F(ModelloGrigliaTest, AsksAboutAGapAndKeepsTheOrderOfItsRows) {
    ModelloGriglia conVuoto(maschera,
                            {"3", "1", "2", "a", "0", "", "", "", "", "3", "4", "b", "1"});
    conVuoto.vaiA({3, 2}, dialogo);
    dialogo.risposte = {Risposta::si, Risposta::annulla, Risposta::no};
    EXPECT_FALSE(conVuoto.conferma(dialogo));
    EXPECT_EQ(conVuoto.corrente(), (PostoGriglia{3, 2}));
    EXPECT_FALSE(conVuoto.conferma(dialogo));  // nobody answered
    EXPECT_TRUE(conVuoto.conferma(dialogo));
    EXPECT_EQ(conVuoto.valoriTesto(), (Testi{"2", "1", "2", "a", "0", "3", "4", "b", "1"}));
    ASSERT_EQ(dialogo.domande.size(), 3u);
    EXPECT_EQ(dialogo.domande[0],
              (test::DialogoFinto::Detto{"Alcune righe di dati non sono state completate: volete "
                                         "controllare i dati inseriti?",
                                         "ATTENZIONE!", base::Icona::domanda}));
}

TEST_F(ModelloGrigliaTest, AsksAboutAnEmptyCellUnlessTheMaskAllowsIt) {
    const Testi testi = {"1", "1", "", "a", "0"};
    maschera.genere = GenereMaschera::grigliaFissa;
    dialogo.risposte = {Risposta::no};
    EXPECT_TRUE(ModelloGriglia(maschera, testi).conferma(dialogo));
    EXPECT_EQ(dialogo.domande.size(), 1u);
    maschera.genere = GenereMaschera::grigliaLibera;
    EXPECT_TRUE(ModelloGriglia(maschera, testi).conferma(dialogo));
    EXPECT_EQ(dialogo.domande.size(), 1u);
}

TEST(AzionePulsante, FollowsTheKindOfTheMask) {
    using enum AzioneGriglia;
    const auto azioni = [](GenereMaschera genere) {
        const Maschera maschera = test::mascheraGriglia(genere);
        std::vector<AzioneGriglia> tutte;
        for (std::size_t i = 0; i < 6; ++i) tutte.push_back(azionePulsante(maschera, i));
        return tutte;
    };
    const std::vector<AzioneGriglia> righe = {conferma,    annulla, inserisciRiga,
                                              eliminaRiga, guida,   guida};
    EXPECT_EQ(azioni(GenereMaschera::griglia), righe);
    EXPECT_EQ(azioni(GenereMaschera::grigliaLibera), righe);
    EXPECT_EQ(azioni(GenereMaschera::grigliaFissa),
              (std::vector<AzioneGriglia>{conferma, annulla, guida, guida, guida, guida}));
}

TEST_F(ModelloGrigliaTest, TellsWhatANumberIsReadAsWhileItIsTyped) {
    EXPECT_EQ(modello.lettura(), "");
    scrivi("20,5");
    EXPECT_EQ(modello.lettura(), "letto come 20: il segno decimale è il punto");
    premi(Tasto::esc);
    EXPECT_EQ(modello.lettura(), "");
    premi(Tasto::f2);
    modello.scriviEditore("20.5.7");
    EXPECT_EQ(modello.lettura(), "letto come 20.5");
    premi(Tasto::esc);
    modello.vaiA({1, 3}, dialogo);
    scrivi("1,5");
    EXPECT_EQ(modello.lettura(), "") << "a text";
}

TEST_F(ModelloGrigliaTest, SelectsTheTextOfACellWhoseFaultABoxTold) {
    scrivi("999");
    EXPECT_FALSE(modello.testoScelto());
    premi(Tasto::invio);
    ASSERT_EQ(dialogo.messaggi.size(), 1u);
    EXPECT_TRUE(modello.testoScelto());
    EXPECT_EQ(cella(), "999");
    scrivi("7");
    EXPECT_EQ(cella(), "7") << "replaced";
    EXPECT_FALSE(modello.testoScelto());
    scrivi("77");
    premi(Tasto::giu);
    EXPECT_TRUE(modello.testoScelto());
    premi(Tasto::esc);
    EXPECT_EQ(cella(), "3") << "the text on entry";
    EXPECT_FALSE(modello.testoScelto());
}

TEST_F(ModelloGrigliaTest, KnowsWhetherItsRowsWereChanged) {
    EXPECT_FALSE(modello.cambiata());
    premi(Tasto::f2);
    EXPECT_FALSE(modello.cambiata());
    modello.scriviEditore("33");
    EXPECT_TRUE(modello.cambiata());
    premi(Tasto::esc);
    EXPECT_FALSE(modello.cambiata());
    scrivi("4");
    EXPECT_TRUE(modello.cambiata());
    premi(Tasto::esc);
    EXPECT_FALSE(modello.cambiata()) << "as it was";
}

TEST_F(ModelloGrigliaTest, AsksBeforeChangedRowsAreThrownAway) {
    EXPECT_TRUE(modello.siPuoLasciare(dialogo));
    EXPECT_TRUE(dialogo.domande.empty());
    scrivi("4");
    dialogo.risposte = {Risposta::no, Risposta::si};
    EXPECT_FALSE(modello.siPuoLasciare(dialogo));
    EXPECT_TRUE(modello.siPuoLasciare(dialogo));
    EXPECT_FALSE(modello.siPuoLasciare(dialogo)) << "nobody answers";
    EXPECT_EQ(dialogo.domande[0], (test::DialogoFinto::Detto{
                                      "Le righe sono state modificate. Volete chiudere la tabella "
                                      "senza conservare le modifiche?",
                                      "ATTENZIONE!", base::Icona::avviso}));
}

TEST(CapienzaGriglia, IsToldInTitleAndStripFromTheFirstRowAboveIt) {
    const Maschera maschera = test::mascheraGriglia();
    test::DialogoFinto dialogo;
    ModelloGriglia modello(maschera, {"2", "1", "", "", "", "2", "", "", ""}, 2);
    EXPECT_EQ(modello.titolo(), "Tabella");
    EXPECT_EQ(modello.eccesso(), "");
    modello.vaiA({5, 1}, dialogo);
    modello.premi(Tasto::carattere, "3", dialogo);
    EXPECT_EQ(modello.titolo(), "Tabella - righe scritte: 3, capienza della tabella: 2");
    EXPECT_EQ(modello.eccesso(),
              "righe scritte: 3, capienza della tabella: 2. Eliminate le righe di troppo: con la "
              "conferma il programma le scrive in un file di testo e viene chiuso.");
    modello.premi(Tasto::backspace, "", dialogo);
    EXPECT_EQ(modello.eccesso(), "");
}

}  // namespace
}  // namespace korven::masks
