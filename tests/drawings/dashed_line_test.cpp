#include "drawings/dashed_line.hpp"

#include "support/drawing_by_pen.hpp"

namespace korven::drawings {
namespace {

class Tratteggio : public test::ProvaPlot {
 protected:
    Tratteggio() {
        configura(test::penneNere());
        plot::plotApri(0, 0, 19, 27);
        plot::plotPenna(4);
    }
};

// Dashes of 0.3 and gaps of 0.2; the last one is cut at the end.
TEST_F(Tratteggio, BeginsWithADashAndEndsWithinTheLine) {
    tratteggia(1, 5, 2.1, 5, 0.3);
    EXPECT_EQ(test::polilinee(4),
              (std::vector<std::string>{"1.000 5.000, 1.300 5.000", "1.500 5.000, 1.800 5.000",
                                        "2.000 5.000, 2.100 5.000"}));
}

TEST_F(Tratteggio, OfALineWithoutLengthIsNothing) {
    tratteggia(1, 5, 1, 5);
    EXPECT_TRUE(test::polilinee(4).empty());
}

// Lines of y = x - c, 1 cm apart across the slope: c steps by the root of 2.
TEST_F(Tratteggio, FillsARectangleWithLinesThatEndAtItsSides) {
    rigato(0, 0, 2, 1, 1);
    EXPECT_EQ(test::polilinee(4),
              (std::vector<std::string>{"0.414 0.000, 1.414 1.000", "1.828 0.000, 2.000 0.172"}));
}

}  // namespace
}  // namespace korven::drawings
