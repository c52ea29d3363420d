#include "drawings/annex/inks.hpp"

#include <gtest/gtest.h>

namespace korven::drawings {
namespace {

TEST(SpessoreCarta, IsAHairsbreadthForGridsAndHatchesWhateverTheScreenHas) {
    for (const scene::Ruolo ruolo : {scene::Ruolo::griglia, scene::Ruolo::strato})
        for (const double pixel : {1.0, 2.0, 12.0})
            EXPECT_EQ(spessoreCarta(ruolo, pixel), 0.01) << pixel;
}

// 0.018 cm a pixel; a bar that is wider than a line keeps its width, 30 pixels in a centimetre.
TEST(SpessoreCarta, OfOtherLinesGrowsWithTheirPixelsAndOfBarsIsTheirOwn) {
    EXPECT_DOUBLE_EQ(spessoreCarta(scene::Ruolo::curva, 1), 0.018);
    EXPECT_DOUBLE_EQ(spessoreCarta(scene::Ruolo::curva, 3), 0.054);
    EXPECT_DOUBLE_EQ(spessoreCarta(scene::Ruolo::curva, 12), 0.4);
}

}  // namespace
}  // namespace korven::drawings
