#include "analysis/progress.hpp"

#include <gtest/gtest.h>

#include "base/translated_texts.hpp"
#include "support/temporary_folder.hpp"

namespace korven::analysis {
namespace {

TEST(DidascaliaAvanzamento, ShowsMetresAndTenTimesTheMoment) {
    EXPECT_EQ(didascaliaAvanzamento(2, 5, 0.0125, 4.5), "fase=2   iter.=5   Ymax=0.0125   Mmax=45");
}

TEST(DidascaliaAvanzamento, WritesNumbersWithoutPadding) {
    EXPECT_EQ(didascaliaAvanzamento(12, 1234, 0, 0), "fase=12   iter.=1234   Ymax=0   Mmax=0");
    EXPECT_EQ(didascaliaAvanzamento(1, 1, 12, 0.0625), "fase=1   iter.=1   Ymax=12   Mmax=0.625");
}

TEST(DidascaliaAvanzamento, SpeaksTheLanguageOfTheUser) {
    const test::CartellaProvvisoria cartella;
    test::metti(cartella / "testi.txt", "fase\nStufe\nphase\nfase\nstage\nfase\n\n");
    test::metti(cartella / "vuoto.txt", "");
    base::caricaTesti(cartella / "vuoto.txt", cartella / "testi.txt");
    base::impostaLingua(5);
    EXPECT_EQ(didascaliaAvanzamento(1, 2, 0.5, 1), "stage=1   iter.=2   Ymax=0.5   Mmax=10");
    base::impostaLingua(1);
    base::caricaTesti(cartella / "vuoto.txt", cartella / "vuoto.txt");
}

TEST(StatiNodo, AreEqualWhenBothSidesAre) {
    const StatiNodo a{StatoLato::attivo, StatoLato::passivo};
    EXPECT_EQ(a, (StatiNodo{StatoLato::attivo, StatoLato::passivo}));
    EXPECT_NE(a, (StatiNodo{StatoLato::attivo, StatoLato::elastico}));
    EXPECT_NE(a, (StatiNodo{StatoLato::passivo, StatoLato::passivo}));
    EXPECT_EQ(StatiNodo{}, (StatiNodo{StatoLato::elastico, StatoLato::elastico}));
}

}  // namespace
}  // namespace korven::analysis
