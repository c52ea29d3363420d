#include "masks/field_model.hpp"

#include <gtest/gtest.h>

#include "support/dialog_double.hpp"
#include "support/mask_setup.hpp"

namespace korven::masks {
namespace {

using Testi = std::vector<std::string>;

class ModelloCampiTest : public ::testing::Test {
 protected:
    Maschera maschera = test::mascheraCampi();
    test::DialogoFinto dialogo;
    ModelloCampi modello{maschera, {0, 2}, {"5", "abcd", "1.25"}};
};

TEST_F(ModelloCampiTest, ShowsWhatTheCommandFilledIn) {
    EXPECT_EQ(modello.campi(), 5u);
    EXPECT_EQ(modello.voceMostrata(0), 0u);
    EXPECT_EQ(modello.voceMostrata(1), 2u);
    EXPECT_EQ(modello.testo(2), "5");
    EXPECT_EQ(modello.testo(4), "1.25");
    EXPECT_EQ(modello.lunghezzaMassima(2), 0u);
    EXPECT_EQ(modello.lunghezzaMassima(3), 4u);
    EXPECT_EQ(modello.lunghezzaMassima(4), 0u);
    EXPECT_GE(modello.larghezzaCaselle(), 6u);
}

TEST_F(ModelloCampiTest, BeginsAtAnotherFieldWithoutACheckOfTheFirst) {
    ModelloCampi altro(maschera, {0, 2}, {"x", "abcd", "1.25"});
    altro.comincia(2);
    altro.comincia(4);
    EXPECT_EQ(altro.attivo(), 4u);
    altro.comincia(5);  // there is none
    EXPECT_EQ(altro.attivo(), 4u);
    maschera.campi[0].soloLettura = true;  // a choice that can't be changed
    altro.comincia(0);
    EXPECT_EQ(altro.attivo(), 4u);
}

TEST_F(ModelloCampiTest, KnowsWhichFieldsTakeANumber) {
    std::vector<bool> numeriche;
    for (std::size_t i = 0; i < modello.campi(); ++i) numeriche.push_back(modello.numerica(i));
    EXPECT_EQ(numeriche, (std::vector<bool>{false, false, true, false, true}));
}

TEST_F(ModelloCampiTest, LeadsFromTheLabelWithDotsUpTo120Characters) {
    EXPECT_EQ(modello.didascalia(2), "Lunghezza [m] " + std::string(106, '.'));
    maschera.campi[2].etichetta = std::string(130, 'x');
    EXPECT_EQ(modello.didascalia(2), std::string(130, 'x') + ' ');
}

TEST_F(ModelloCampiTest, TakesTheDotsFromATitleThenTheBlanks) {
    EXPECT_EQ(modello.titoloMessaggio(2), "Lunghezza [m]");
    maschera.campi[2].etichetta = "Prof.";  // its own dot comes before a blank
    EXPECT_EQ(modello.titoloMessaggio(2), "Prof.");
    maschera.campi[2].etichetta = std::string(118, 'x') + "..";
    EXPECT_EQ(modello.titoloMessaggio(2), std::string(118, 'x') + "..");
}

TEST_F(ModelloCampiTest, MovesByUpDownAndEnterAcrossTextsAndChoices) {
    EXPECT_EQ(modello.attivo(), 0u);
    EXPECT_FALSE(modello.premi(Tasto::su, dialogo));
    EXPECT_TRUE(modello.premi(Tasto::giu, dialogo));
    EXPECT_TRUE(modello.premi(Tasto::invio, dialogo));
    EXPECT_EQ(modello.attivo(), 2u);  // the first text
    EXPECT_TRUE(modello.premi(Tasto::su, dialogo));
    EXPECT_EQ(modello.attivo(), 1u);  // the last choice
    for (int i = 0; i < 9; ++i) modello.premi(Tasto::giu, dialogo);
    EXPECT_EQ(modello.attivo(), 4u);
    EXPECT_FALSE(modello.premi(Tasto::invio, dialogo));
}

TEST_F(ModelloCampiTest, DoesNothingOnF1) {
    EXPECT_FALSE(modello.premi(Tasto::f1, dialogo));
    EXPECT_EQ(modello.attivo(), 0u);
    EXPECT_TRUE(dialogo.messaggi.empty());
}

TEST_F(ModelloCampiTest, PassesOverAChoiceThatIsReadOnly) {
    maschera.campi[1].soloLettura = true;
    EXPECT_TRUE(modello.premi(Tasto::giu, dialogo));
    EXPECT_EQ(modello.attivo(), 2u);
    EXPECT_TRUE(modello.premi(Tasto::su, dialogo));
    EXPECT_EQ(modello.attivo(), 0u);
    EXPECT_FALSE(modello.passaA(1, dialogo));
    modello.scegli(1, 0);
    EXPECT_EQ(modello.voceMostrata(1), 2u);
}

TEST_F(ModelloCampiTest, StopsAtAReadOnlyTextAndLocksIt) {
    maschera.campi[2].soloLettura = true;
    EXPECT_TRUE(modello.passaA(2, dialogo));
    modello.scrivi(2, "7");
    EXPECT_EQ(modello.testo(2), "5");
    maschera.campi[2].massimo = 4;  // out of range, and nothing the user could do about it
    EXPECT_TRUE(modello.lascia(dialogo));
}

TEST_F(ModelloCampiTest, StartsOnTheFirstFieldThatTakesTheFocus) {
    maschera.campi[0].soloLettura = true;
    EXPECT_EQ(ModelloCampi(maschera, {}, {}).attivo(), 1u);
}

TEST_F(ModelloCampiTest, TellsAValueOutOfRangeAndKeepsTheFocus) {
    modello.passaA(2, dialogo);
    modello.scrivi(2, "11");
    EXPECT_FALSE(modello.premi(Tasto::giu, dialogo));
    EXPECT_EQ(modello.attivo(), 2u);
    ASSERT_EQ(dialogo.messaggi.size(), 1u);
    EXPECT_TRUE(dialogo.messaggi[0].testo.ends_with("all'intervallo:\r-5; 10"));
    EXPECT_EQ(dialogo.messaggi[0].titolo, "Lunghezza [m]");
    EXPECT_EQ(dialogo.messaggi[0].icona, base::Icona::stop);
    EXPECT_EQ(modello.testo(2), "11");
    modello.scrivi(2, "10");
    EXPECT_TRUE(modello.premi(Tasto::giu, dialogo));
}

TEST_F(ModelloCampiTest, TellsABlankInsideANumber) {
    modello.passaA(2, dialogo);
    modello.scrivi(2, "1 2");
    EXPECT_FALSE(modello.lascia(dialogo));
    ASSERT_EQ(dialogo.messaggi.size(), 1u);
    EXPECT_EQ(dialogo.messaggi[0].testo,
              "Non sono ammessi caratteri alfanumerici in un campo di tipo numerico.");
}

TEST_F(ModelloCampiTest, AcceptsAnEmptyNumber) {
    modello.passaA(2, dialogo);
    modello.scrivi(2, "");
    EXPECT_TRUE(modello.conferma(dialogo));
    EXPECT_EQ(modello.valoriTesto(), (Testi{"", "abcd", "1.25"}));
}

TEST_F(ModelloCampiTest, CutsATextThatIsTooLongAndKeepsTheFocusOnce) {
    modello.passaA(3, dialogo);
    modello.scrivi(3, "àbcdefg");
    EXPECT_FALSE(modello.lascia(dialogo));
    EXPECT_EQ(modello.testo(3), "àbcd");
    EXPECT_TRUE(modello.lascia(dialogo));
}

TEST_F(ModelloCampiTest, KeepsNoMoreDecimalsThanThePictureWhileTyping) {
    modello.passaA(4, dialogo);
    modello.scrivi(4, "12.345");
    EXPECT_EQ(modello.testo(4), "12.34");
    EXPECT_TRUE(modello.lascia(dialogo));
}

TEST_F(ModelloCampiTest, ShowsAtOnceWhatNoFileCanHold) {
    modello.scrivi(3, "φ 30°");
    EXPECT_EQ(modello.testo(3), "? 30°");
}

TEST_F(ModelloCampiTest, ShowsTheLastItemOfACodeBeyondAllAndChangesNothing) {
    ModelloCampi altro(maschera, {7, -0.5}, {});
    EXPECT_EQ(altro.voceMostrata(0), 1u);
    EXPECT_EQ(altro.voceMostrata(1), 0u);
    altro.scegli(0, 1);  // the item that is shown
    EXPECT_EQ(altro.valoriCombo(), (std::vector<double>{7, -0.5}));
    altro.scegli(0, 0);
    EXPECT_EQ(altro.valoriCombo()[0], 0);
    altro.scegli(0, 1);
    EXPECT_EQ(altro.valoriCombo()[0], 1);
}

TEST_F(ModelloCampiTest, ChecksTheFieldWithTheFocusOnConfirm) {
    modello.passaA(2, dialogo);
    modello.scrivi(2, "99");
    EXPECT_FALSE(modello.conferma(dialogo));
    EXPECT_EQ(dialogo.messaggi.size(), 1u);
    modello.scrivi(2, "9");
    modello.scegli(0, 1);
    EXPECT_TRUE(modello.conferma(dialogo));
    EXPECT_EQ(modello.valoriCombo(), (std::vector<double>{1, 2}));
    EXPECT_EQ(modello.valoriTesto(), (Testi{"9", "abcd", "1.25"}));
}

TEST_F(ModelloCampiTest, ShowsTheHelpOfTheFieldWithTheFocus) {
    EXPECT_EQ(modello.aiuto(), "aiuto 0");
    modello.passaA(3, dialogo);
    EXPECT_EQ(modello.aiuto(), "aiuto 3");
    modello.mostraAiuto(dialogo);
    ASSERT_EQ(dialogo.messaggi.size(), 1u);
    EXPECT_EQ(dialogo.messaggi[0].testo, "aiuto 3");
}

TEST_F(ModelloCampiTest, ShowsTheReferenceWhereThereIsNoHelpFile) {
    mostraRiferimento(maschera, dialogo);
    ASSERT_EQ(dialogo.messaggi.size(), 1u);
    EXPECT_EQ(dialogo.messaggi[0].testo, "6 EDITX");
}

TEST(ModelloCampiLettura, TellsWhatTheNumberInUseIsReadAs) {
    const Maschera maschera = test::mascheraCampi();
    ModelloCampi modello(maschera, {0, 0}, {"5", "1,5", "1.25"});
    EXPECT_EQ(modello.lettura(), "") << "a choice";
    test::DialogoFinto dialogo;
    modello.passaA(2, dialogo);
    EXPECT_EQ(modello.lettura(), "");
    modello.scrivi(2, "5.5.5");
    EXPECT_EQ(modello.lettura(), "letto come 5.5");
    modello.scrivi(2, "5");
    modello.passaA(3, dialogo);
    EXPECT_EQ(modello.lettura(), "") << "a text";
    modello.annota([](std::size_t posto, const std::vector<std::string>& testi) {
        return std::to_string(posto) + ": " + testi[posto];
    });
    EXPECT_EQ(modello.lettura(), "1: " + modello.testo(modello.attivo())) << "a text with a note";
    modello.passaA(4, dialogo);
    modello.scrivi(4, "0,5");
    EXPECT_EQ(modello.lettura(), "letto come 0: il segno decimale è il punto");
}

TEST_F(ModelloCampiTest, TakesBackFieldByFieldAndGoesThere) {
    modello.scegli(0, 1);
    modello.passaA(2, dialogo);
    modello.scrivi(2, "7");
    modello.scrivi(2, "7.5");
    modello.passaA(3, dialogo);
    EXPECT_TRUE(modello.annulla());
    EXPECT_EQ(modello.testo(2), "5");
    EXPECT_EQ(modello.attivo(), 2u);
    EXPECT_EQ(modello.detto(), "Annullato: campo Lunghezza");
    EXPECT_TRUE(modello.annulla());
    EXPECT_EQ(modello.voceMostrata(0), 0u);
    EXPECT_EQ(modello.detto(), "Annullato: campo Vincolo");
    EXPECT_FALSE(modello.annulla());
    EXPECT_EQ(modello.attivo(), 0u);
    EXPECT_TRUE(modello.ripeti());
    EXPECT_TRUE(modello.ripeti());
    EXPECT_FALSE(modello.ripeti());
    EXPECT_EQ(modello.valoriCombo(), (std::vector<double>{1, 2}));
    EXPECT_EQ(modello.testo(2), "7.5");
    modello.passaA(3, dialogo);
    EXPECT_EQ(modello.detto(), "");
}

TEST_F(ModelloCampiTest, TakesBackATextThatItsFieldWouldNotLetGo) {
    modello.passaA(2, dialogo);
    modello.scrivi(2, "x");
    EXPECT_FALSE(modello.passaA(3, dialogo));
    EXPECT_TRUE(modello.annulla());
    EXPECT_TRUE(modello.passaA(3, dialogo));
    EXPECT_TRUE(modello.ripeti());
    EXPECT_EQ(modello.attivo(), 2u);
    EXPECT_FALSE(modello.passaA(3, dialogo));
}

TEST_F(ModelloCampiTest, BringsBackACodeWithoutAnItemOfItsOwn) {
    ModelloCampi altro(maschera, {0, 6.5}, {});
    altro.passaA(1, dialogo);
    altro.scegli(1, 0);
    altro.scegli(1, 1);
    altro.annulla();
    EXPECT_EQ(altro.valoriCombo()[1], 6.5);
}

TEST_F(ModelloCampiTest, TakesTheCutOfALongTextBackWithWhatWasTyped) {
    modello.passaA(3, dialogo);
    modello.scrivi(3, "abcdef");
    EXPECT_FALSE(modello.passaA(4, dialogo));
    modello.passaA(4, dialogo);
    EXPECT_EQ(modello.testo(3), "abcd");
    EXPECT_FALSE(modello.annulla()) << "it is again what it was";
}

}  // namespace
}  // namespace korven::masks
