#include "masks/field_type.hpp"

#include <gtest/gtest.h>

namespace korven::masks {
namespace {

TEST(TipoCampo, IsANumberForZeroAlone) {
    EXPECT_TRUE(tipoCampo("0").numero);
    EXPECT_TRUE(tipoCampo("0").illimitato);
    EXPECT_FALSE(tipoCampo("10").numero);
    EXPECT_FALSE(tipoCampo("00").numero);
}

TEST(TipoCampo, OfADecimalNumberIsATextOfThatLength) {
    EXPECT_EQ(tipoCampo("40").lunghezza, 40u);
    EXPECT_FALSE(tipoCampo("40").illimitato);
    EXPECT_FALSE(tipoCampo("40").figura);
}

TEST(TipoCampo, WithAnAtSignHasNoLengthLimit) { EXPECT_TRUE(tipoCampo("40@").illimitato); }

TEST(TipoCampo, OfAPictureCountsTheDecimalsAfterItsPoint) {
    EXPECT_TRUE(tipoCampo("###.##@").figura);
    EXPECT_EQ(tipoCampo("###.##@").decimali, 2u);
    EXPECT_EQ(tipoCampo("#.@").decimali, 0u);
    EXPECT_FALSE(tipoCampo("###@").figura);  // no point
    EXPECT_FALSE(tipoCampo("@#.#").figura);  // another beginning
}

// The length rule of texts looks for a number in front and finds none.
TEST(TipoCampo, OfAPictureWithoutAnAtSignTakesNoTextAtAll) {
    EXPECT_FALSE(tipoCampo("##.##").illimitato);
    EXPECT_EQ(tipoCampo("##.##").lunghezza, 0u);
}

TEST(TipoColonna, IsATextIfItBeginsWithASlashWhichCounts) {
    const auto tipo = tipoColonna("/1234");
    EXPECT_TRUE(tipo.testo);
    EXPECT_EQ(tipo.lunghezza, 5u);
    EXPECT_FALSE(tipo.illimitato);
    EXPECT_TRUE(tipoColonna("/@234").illimitato);
    EXPECT_FALSE(tipoColonna("####").testo);
    EXPECT_FALSE(tipoColonna("12/").testo);
}

TEST(ConDecimaliAmmessi, CutsThemFromTheEndOfAPicture) {
    const auto tipo = tipoCampo("#.##@");
    EXPECT_EQ(conDecimaliAmmessi("1.234", tipo), "1.23");
    EXPECT_EQ(conDecimaliAmmessi("1.23", tipo), "1.23");
    EXPECT_EQ(conDecimaliAmmessi("12345", tipo), "12345");
    EXPECT_EQ(conDecimaliAmmessi("1.234", tipoCampo("0")), "1.234");
    EXPECT_EQ(conDecimaliAmmessi("1.2", tipoCampo("#.@")), "1.");
}

}  // namespace
}  // namespace korven::masks
