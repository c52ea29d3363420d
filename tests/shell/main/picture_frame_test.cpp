#include "shell/main/picture_frame.hpp"

#include <gtest/gtest.h>

#include <QTest>

#include "shell/main/wall_picture.hpp"

namespace korven::shell {
namespace {

class CorniceFiguraTest : public ::testing::Test {
 protected:
    CorniceFiguraTest() {
        QObject::connect(&cornice.quadro(), &QuadroParatia::premuta, [this] { ++premuta; });
        cornice.resize(600, 400);
        cornice.show();
        figura = new QWidget;
        cornice.accogli(figura, {60, 36});
    }
    CorniceFigura cornice;
    QWidget* figura;
    int premuta = 0;
};

TEST_F(CorniceFiguraTest, ShowsThePaintingWithoutAProject) {
    EXPECT_EQ(cornice.quadro().geometry(), cornice.rect());
    EXPECT_FALSE(figura->isVisible());
    QTest::mouseClick(&cornice.quadro(), Qt::LeftButton);
    EXPECT_EQ(premuta, 1);
}

TEST_F(CorniceFiguraTest, LeavesThePaintingAsASmallEmblemThatDoesTheSame) {
    cornice.mostra();
    EXPECT_TRUE(figura->isVisible());
    EXPECT_EQ(figura->geometry(), cornice.rect());
    EXPECT_EQ(cornice.quadro().geometry(), QRect(3, 361, 60, 36));
    EXPECT_EQ(cornice.childAt(20, 380), &cornice.quadro());
    QTest::mouseClick(&cornice.quadro(), Qt::LeftButton);
    EXPECT_EQ(premuta, 1);
    cornice.resize(500, 300);
    EXPECT_EQ(figura->geometry(), cornice.rect());
    EXPECT_EQ(cornice.quadro().geometry().bottomLeft(), QPoint(3, 296));
}

TEST_F(CorniceFiguraTest, GivesThePictureTheKeyboard) {
    figura->setFocusPolicy(Qt::StrongFocus);
    cornice.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&cornice));
    cornice.mostra();
    EXPECT_TRUE(figura->hasFocus());
}

}  // namespace
}  // namespace korven::shell
