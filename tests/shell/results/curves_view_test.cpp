#include "shell/results/curves_view.hpp"

#include <gtest/gtest.h>

#include <QSignalSpy>

#include "shell/qt_text.hpp"
#include "support/desktop_bench.hpp"
#include "support/form_setup.hpp"
#include "support/sample_projects.hpp"

namespace korven::shell {
namespace {

class VistaCurveTest : public ::testing::Test {
 protected:
    VistaCurveTest() {
        vista.resize(820, 460);
        vista.show();
        vista.mostra(curve, 5);
    }

    QApplication& app = test::applicazione();
    live::PareteViva parete = live::calcola(test::progettoSemplice(), 24);
    tables::CurveMostrate curve = tables::curve(parete, 2);
    VistaCurve vista{nullptr};
};

TEST_F(VistaCurveTest, ReadsNodeAfterNodeByKeys) {
    QTest::keyClick(&vista, Qt::Key_Home);
    EXPECT_EQ(vista.letto(), qt(lettura(curve, 0)));
    QTest::keyClick(&vista, Qt::Key_Up);
    EXPECT_EQ(vista.letto(), qt(lettura(curve, 0)));
    QTest::keyClick(&vista, Qt::Key_Down);
    EXPECT_EQ(vista.letto(), qt(lettura(curve, 1)));
    QTest::keyClick(&vista, Qt::Key_End);
    EXPECT_EQ(vista.letto(), qt(lettura(curve, 24)));
    QTest::keyClick(&vista, Qt::Key_Down);
    EXPECT_EQ(vista.letto(), qt(lettura(curve, 24)));
}

TEST_F(VistaCurveTest, ReadsWhereTheMouseIs) {
    QTest::mouseMove(&vista, QPoint(400, 2));
    EXPECT_EQ(vista.letto(), qt(lettura(curve, 0)));
    QTest::mouseMove(&vista, QPoint(400, 455));
    EXPECT_EQ(vista.letto(), qt(lettura(curve, 24)));
}

TEST_F(VistaCurveTest, StaysAtItsDepthWhenTheStageChanges) {
    QTest::keyClick(&vista, Qt::Key_Home);
    QTest::keyClick(&vista, Qt::Key_Down);
    const auto altre = tables::curve(parete, 1);
    vista.mostra(altre, 2);
    EXPECT_EQ(vista.letto(), qt(lettura(altre, 1)));
}

TEST_F(VistaCurveTest, TellsWhatIsReadToThoseWhoCannotSeeIt) {
    EXPECT_FALSE(vista.accessibleName().isEmpty());
    EXPECT_TRUE(vista.accessibleDescription().contains(vista.letto()));
    EXPECT_TRUE(vista.accessibleDescription().startsWith(QStringLiteral("Fase 2")));
}

TEST_F(VistaCurveTest, AsksForStagesByPageKeys) {
    QSignalSpy chieste(&vista, &VistaCurve::faseChiesta);
    QTest::keyClick(&vista, Qt::Key_PageDown);
    QTest::keyClick(&vista, Qt::Key_PageUp);
    ASSERT_EQ(chieste.count(), 2);
    EXPECT_EQ(chieste[0][0].toInt(), 1);
    EXPECT_EQ(chieste[1][0].toInt(), -1);
}

TEST_F(VistaCurveTest, WithoutCurvesSaysWhy) {
    const auto senza = tables::curve(live::calcola(test::progettoVuoto()), 0);
    QSignalSpy lette(&vista, &VistaCurve::letta);
    vista.mostra(senza, 0);
    EXPECT_EQ(vista.letto(), QString());
    EXPECT_EQ(lette.last()[0].toString(), qt(senza.perche));
    QTest::keyClick(&vista, Qt::Key_Down);
    QTest::mouseMove(&vista, QPoint(30, 30));
    EXPECT_FALSE(vista.grab().isNull());
}

}  // namespace
}  // namespace korven::shell
