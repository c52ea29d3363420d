#include "masks/history.hpp"

#include <gtest/gtest.h>

#include <map>

namespace korven::masks {
namespace {

using Prova = Storia<char, int>;

// Places with numbers, and the history of what was done to them.
struct Foglio {
    std::map<char, int> valori;
    Prova storia;

    void scrivi(char posto, int valore) {
        storia.scritto(std::string("campo ") + posto, posto, valori[posto], valore);
        valori[posto] = valore;
    }
    auto metti() {
        return [this](char posto, int valore) { valori[posto] = valore; };
    }
    auto annulla() { return storia.annulla(metti()); }
    auto ripeti() { return storia.ripeti(metti()); }
};

TEST(Storia, TakesTheStepsBackFromTheLastAndDoesThemAgain) {
    Foglio foglio;
    foglio.scrivi('a', 1);
    foglio.scrivi('b', 2);
    EXPECT_EQ(foglio.storia.daAnnullare(), "campo b");
    EXPECT_EQ(foglio.annulla(), 'b');
    EXPECT_EQ(foglio.valori, (std::map<char, int>{{'a', 1}, {'b', 0}}));
    EXPECT_EQ(foglio.storia.daAnnullare(), "campo a");
    EXPECT_EQ(foglio.storia.daRipetere(), "campo b");
    EXPECT_EQ(foglio.annulla(), 'a');
    EXPECT_EQ(foglio.annulla(), std::nullopt);
    EXPECT_EQ(foglio.ripeti(), 'a');
    EXPECT_EQ(foglio.ripeti(), 'b');
    EXPECT_EQ(foglio.ripeti(), std::nullopt);
    EXPECT_EQ(foglio.valori, (std::map<char, int>{{'a', 1}, {'b', 2}}));
}

TEST(Storia, MakesOneStepOfWhatIsTypedIntoAPlaceUntilItIsLeft) {
    Foglio foglio;
    for (const int n : {1, 12, 123}) foglio.scrivi('a', n);
    foglio.storia.chiudi();
    foglio.scrivi('a', 9);
    foglio.annulla();
    EXPECT_EQ(foglio.valori['a'], 123);
    foglio.annulla();
    EXPECT_EQ(foglio.valori['a'], 0);
}

TEST(Storia, KeepsWhatWasTakenBackWhileNothingNewIsLeftInAPlace) {
    Foglio foglio;
    foglio.scrivi('a', 1);
    foglio.annulla();
    foglio.scrivi('b', 5);
    EXPECT_FALSE(foglio.storia.ripetibile());
    foglio.scrivi('b', 0);
    EXPECT_FALSE(foglio.storia.annullabile());
    foglio.ripeti();
    EXPECT_EQ(foglio.valori['a'], 1);
}

TEST(Storia, ForgetsWhatWasTakenBackWithANewStep) {
    Foglio foglio;
    foglio.scrivi('a', 1);
    foglio.annulla();
    foglio.scrivi('b', 5);
    EXPECT_EQ(foglio.ripeti(), std::nullopt);
    EXPECT_EQ(foglio.storia.daRipetere(), "");
    foglio.annulla();
    EXPECT_EQ(foglio.annulla(), std::nullopt);
}

TEST(Storia, TakesAStepOfManyPlacesBackAtOnceAndNoneOfNoPlace) {
    Foglio foglio;
    foglio.valori = {{'a', 1}, {'b', 2}};
    foglio.storia.fatto({"due campi", 'b', {{'a', 0, 1}, {'b', 0, 2}}});
    foglio.storia.fatto({"niente", 'c', {}});
    EXPECT_EQ(foglio.annulla(), 'b');
    EXPECT_EQ(foglio.valori, (std::map<char, int>{{'a', 0}, {'b', 0}}));
    EXPECT_FALSE(foglio.storia.annullabile());
}

TEST(Storia, RemembersAsManyStepsAsItsBoundAndForgetsTheOldest) {
    static_assert(Prova::massimo >= 100);
    Foglio foglio;
    for (int n = 1; n <= static_cast<int>(Prova::massimo) + 3; ++n) {
        foglio.scrivi('a', n);
        foglio.storia.chiudi();
    }
    std::size_t annullati = 0;
    while (foglio.annulla()) ++annullati;
    EXPECT_EQ(annullati, Prova::massimo);
    EXPECT_EQ(foglio.valori['a'], 3);
}

TEST(Storia, SaysWhatItTookBackUntilSomethingElseIsDone) {
    Foglio foglio;
    foglio.scrivi('a', 1);
    EXPECT_EQ(foglio.storia.detto(), "");
    foglio.annulla();
    EXPECT_EQ(foglio.storia.detto(), "Annullato: campo a");
    foglio.annulla();
    EXPECT_EQ(foglio.storia.detto(), "Nulla da annullare");
    foglio.ripeti();
    EXPECT_EQ(foglio.storia.detto(), "Ripetuto: campo a");
    foglio.ripeti();
    EXPECT_EQ(foglio.storia.detto(), "Nulla da ripetere");
    foglio.scrivi('b', 1);
    EXPECT_EQ(foglio.storia.detto(), "");
}

TEST(Storia, IsEmptyAfterItWasCleared) {
    Foglio foglio;
    foglio.scrivi('a', 1);
    foglio.storia.svuota();
    EXPECT_FALSE(foglio.storia.annullabile());
    EXPECT_FALSE(foglio.storia.ripetibile());
}

TEST(PassoCampo, LeavesTheUnitOut) {
    EXPECT_EQ(passoCampo("Lunghezza diaframma [m]"), "campo Lunghezza diaframma");
    EXPECT_EQ(passoCampo("Vincolo del piede"), "campo Vincolo del piede");
}

}  // namespace
}  // namespace korven::masks
