#include "drawings/filled_lines.hpp"

#include "plot/plot_engine.hpp"
#include "support/drawing_by_pen.hpp"

namespace korven::drawings {
namespace {

class RighePiene : public test::ProvaPlot {
 protected:
    RighePiene() {
        configura(test::penneNere());
        plot::plotPenna(6);
    }
    static double largo(const char* testo) { return plot::larghezzaTesto(0.25, testo); }
    using Righe = std::vector<std::string>;
};

TEST_F(RighePiene, LeaveWhatFitsOnOneLine) {
    EXPECT_EQ(righePiene("uno due tre", 0.25, largo("uno due tre"), 1), Righe{"uno due tre"});
    EXPECT_EQ(righePiene("", 0.25, 5, 1), Righe{""});
}

TEST_F(RighePiene, BreakAtTheLastBlankThatFits) {
    EXPECT_EQ(righePiene("uno due tre", 0.25, largo("uno due") + 0.01, 0),
              (Righe{"uno due", "tre"}));
}

TEST_F(RighePiene, HaveLessRoomFromTheSecondLineOn) {
    const double larghezza = largo("uno due") + 0.01;
    EXPECT_EQ(righePiene("uno due uno due", 0.25, larghezza, 0), (Righe{"uno due", "uno due"}));
    EXPECT_EQ(righePiene("uno due uno due", 0.25, larghezza, 0.1),
              (Righe{"uno due", "uno", "due"}));
}

TEST_F(RighePiene, KeepANumberWithItsNameAndItsUnit) {
    EXPECT_EQ(righePiene("taglio 2.1 %, tiro 0.2 %", 0.25, largo("taglio 2.1 %, tiro"), 0),
              (Righe{"taglio 2.1 %,", "tiro 0.2 %"}));
    EXPECT_EQ(righePiene("con F; fase 4", 0.25, largo("con F; fase"), 0),
              (Righe{"con F;", "fase 4"}));
    EXPECT_EQ(righePiene("usata > 80 %; rado", 0.25, largo("usata > 80"), 0),
              (Righe{"usata > 80 %;", "rado"}));
}

TEST_F(RighePiene, LetAWordStandAloneThatIsTooWide) {
    EXPECT_EQ(righePiene("a lunghissima b", 0.25, largo("lung"), 0),
              (Righe{"a", "lunghissima", "b"}));
}

}  // namespace
}  // namespace korven::drawings
