#include "plot/page_layout.hpp"

#include <gtest/gtest.h>

namespace korven::plot {
namespace {

constexpr Foglio a4{21, 29.7};

TEST(FogliPerCoprire, IsTheLeastNumberWhoseOverlappingSheetsReach) {
    EXPECT_EQ(fogliPerCoprire(19, 21, 1), 1);
    EXPECT_EQ(fogliPerCoprire(21, 21, 1), 1);
    EXPECT_EQ(fogliPerCoprire(21.1, 21, 1), 2);
    EXPECT_EQ(fogliPerCoprire(41, 21, 1), 2);  // 2 * 21 - 1
    EXPECT_EQ(fogliPerCoprire(41.1, 21, 1), 3);
    EXPECT_EQ(fogliPerCoprire(61, 21, 1), 3);
    EXPECT_EQ(fogliPerCoprire(42, 21, 0), 2);
    EXPECT_EQ(fogliPerCoprire(0, 21, 1), 1);
}

TEST(FogliPerDisegno, DrawingTwoCentimetresWiderThanASheetTakesTwoAcross) {
    const Fogli fogli = fogliPerDisegno({0, 0, 23, 27}, a4, 1);
    EXPECT_EQ(fogli.nx, 2);
    EXPECT_EQ(fogli.ny, 1);
}

TEST(FogliPerDisegno, CountsTheSheetsOfEachDirection) {
    const Fogli fogli = fogliPerDisegno({-10, 0, 50, 60}, a4, 2);  // 21 40 59 78; 29.7 57.4 85.1
    EXPECT_EQ(fogli.nx, 4);
    EXPECT_EQ(fogli.ny, 3);
}

TEST(DisposizioneIntera, LaysTheUpperLeftCornerOfTheFirstSheetOnXZeroAndTheTop) {
    const Disposizione d = disposizioneIntera({0, 0, 19, 27}, a4, 1, 1, 1);
    EXPECT_EQ(d.sullaCarta({0, 27}), (Punto{0, 0}));
    EXPECT_EQ(d.sullaCarta({3, 25}), (Punto{3, 2}));
}

TEST(DisposizioneIntera, NeighbouringSheetsRepeatTheOverlap) {
    const Riquadro disegno{0, 0, 60, 60};
    const Punto p{20.5, 31};  // half a centimetre from the right edge of the first sheet
    const Punto primo = disposizioneIntera(disegno, a4, 1, 1, 2).sullaCarta(p);
    const Punto secondo = disposizioneIntera(disegno, a4, 1, 2, 2).sullaCarta(p);
    EXPECT_DOUBLE_EQ(primo.x, 20.5);
    EXPECT_DOUBLE_EQ(secondo.x, 0.5);
    EXPECT_DOUBLE_EQ(primo.y, 29 - 28.7);
    EXPECT_DOUBLE_EQ(secondo.y, 29 - 28.7);
}

TEST(DisposizioneIntera, CountsXFromTheSheetNotFromTheWindow) {
    EXPECT_EQ(disposizioneIntera({2, 0, 19, 27}, a4, 1, 1, 1).sullaCarta({2, 27}), (Punto{2, 0}));
}

TEST(DisposizioneAdattata, WideDrawingFillsTheWidthAndLiesInTheMiddleOfTheHeight) {
    // Widened to 40 x 10; 20 / 40 = 0.5 is less than 30 / 10; 5 of 30 cm high, 12.5 above.
    const Disposizione d = disposizioneAdattata({0.1, 0.1, 39.9, 9.9}, {20, 30});
    EXPECT_DOUBLE_EQ(d.scala, 0.5);
    EXPECT_NEAR(d.scostamentoX, 0, 1e-12);
    EXPECT_NEAR(d.scostamentoY, -12.5, 1e-12);
    EXPECT_NEAR(d.sullaCarta({0, 10}).x, 0, 1e-12);
    EXPECT_NEAR(d.sullaCarta({0, 10}).y, 12.5, 1e-12);
    EXPECT_NEAR(d.sullaCarta({40, 0}).x, 20, 1e-12);
    EXPECT_NEAR(d.sullaCarta({40, 0}).y, 17.5, 1e-12);
}

TEST(DisposizioneAdattata, TallDrawingFillsTheHeight) {
    const Disposizione d = disposizioneAdattata({0, 0, 9.8, 59.8}, {20, 30});
    EXPECT_DOUBLE_EQ(d.scala, 0.5);
    EXPECT_NEAR(d.scostamentoX, -7.5, 1e-12);
    EXPECT_NEAR(d.scostamentoY, 0, 1e-12);
}

TEST(DisposizioneAdattata, KeepsAMillimetreOfTheDrawingAroundIt) {
    const Disposizione d = disposizioneAdattata({0, 0, 19.8, 29.8}, {20, 30});
    EXPECT_DOUBLE_EQ(d.scala, 1);
    EXPECT_NEAR(d.sullaCarta({0, 29.8}).x, 0.1, 1e-12);
    EXPECT_NEAR(d.sullaCarta({0, 29.8}).y, 0.1, 1e-12);
    EXPECT_NEAR(d.sullaCarta({19.8, 0}).x, 19.9, 1e-12);
    EXPECT_NEAR(d.sullaCarta({19.8, 0}).y, 29.9, 1e-12);
}

TEST(DisposizioneAdattata, EnlargesASmallDrawing) {
    EXPECT_DOUBLE_EQ(disposizioneAdattata({0, 0, 4.8, 4.8}, {20, 30}).scala, 4);
}

}  // namespace
}  // namespace korven::plot
