#include "analysis/anchors_in_place.hpp"

#include <gtest/gtest.h>

namespace korven::analysis {
namespace {

// Row 2 is what a table of two anchors left behind when the second was taken out.
project::DatiProgetto unTiranteDiDue(double inOpera) {
    project::DatiProgetto d;
    d.nTiranti = 1;
    for (int a = 1; a <= 2; ++a) {
        d.profTirante[a] = 2.0 * a;
        d.rigTirante[a] = 500;
    }
    d.nFasi = 1;
    d.tirantiFase[1] = inOpera;
    return d;
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
