#include "batch/batch_bench.hpp"

namespace korven::batch {
namespace {

namespace fs = std::filesystem;
using test::dice;
using TuboChiuso = test::BancoConsole;

TEST_F(TuboChiuso, OnStandardErrorIsSilence) {
    ASSERT_EQ(esegui("relazione").codice, 0);
    const auto interi = file();
    fs::remove(cartella / "muro.OUT");
    fs::remove(cartella / "muro.TAB");
    const auto esito = esegui("relazione", {}, {.erroriNonLetti = true});
    EXPECT_EQ(esito.codice, 0);
    EXPECT_TRUE(dice(esito.uscita, "File scritto"));
    EXPECT_EQ(file(), interi);
}

TEST_F(TuboChiuso, OnStandardOutputIsToldAsOutputThatCantBeWritten) {
    for (const bool anche : {false, true}) {  // on both outputs, as with "2>&1 | head"
        const auto esito = esegui("calcola", {}, {.uscitaNonLetta = true, .erroriNonLetti = anche});
        EXPECT_EQ(esito.codice, 3);
        EXPECT_EQ(dice(esito.errori, "impossibile scrivere sull'uscita normale"), !anche);
        EXPECT_EQ(esegui("calcola").codice, 0);
        fs::remove(cartella / "muro.OUT");
    }
}

}  // namespace
}  // namespace korven::batch
