#include "analysis/anchors_in_place.hpp"

#include <gtest/gtest.h>

#include "support/wall_builder.hpp"

namespace korven::analysis {
namespace {

// Row 2 is what a table of two anchors left when the second was taken out.
project::DatiProgetto unTiranteDiDue(double inOpera) {
    return test::muro()
        .tirante(2, 500)
        .tirante(4, 500)
        .con(&project::DatiProgetto::nTiranti, 1)
        .fase({.tiranti = inOpera})
        .dati();
}

TEST(TirantiInOpera, AreNeverMoreThanTheTableCounts) {
    EXPECT_EQ(tirantiInOpera(unTiranteDiDue(1), 1), 1);
    EXPECT_EQ(tirantiInOpera(unTiranteDiDue(2), 1), 1);
    EXPECT_EQ(tirantiInOpera(unTiranteDiDue(20), 1), 1);
    project::DatiProgetto nessuno = unTiranteDiDue(2);
    nessuno.nTiranti = 0;
    EXPECT_EQ(tirantiInOpera(nessuno, 1), 0);
}

TEST(TirantiInOpera, AreTheWholePartOfWhatTheStageSays) {
    EXPECT_EQ(tirantiInOpera(unTiranteDiDue(0.9), 1), 0);
    EXPECT_EQ(tirantiInOpera(unTiranteDiDue(1.9), 1), 1);
    EXPECT_EQ(tirantiInOpera(unTiranteDiDue(-3), 1), 0);
    EXPECT_EQ(tirantiInOpera(unTiranteDiDue(1), 0), 0);  // before the first stage
}

TEST(TirantiInOpera, RefuseANumberBeyondTheTable) {
    EXPECT_THROW((void)tirantiInOpera(unTiranteDiDue(21), 1), base::ErroreIndice);
    EXPECT_THROW((void)tirantiInOpera(unTiranteDiDue(1e300), 1), base::ErroreIndice);
}

}  // namespace
}  // namespace korven::analysis
