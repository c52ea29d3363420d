#include "shell/accessible_roles.hpp"

#include <gtest/gtest.h>

#include <QAccessible>
#include <QPushButton>

#include "support/form_setup.hpp"

namespace korven::shell {
namespace {

QAccessible::Role ruolo(QWidget& pezzo) {
    return QAccessible::queryAccessibleInterface(&pezzo)->role();
}

class RuoliAccessibili : public ::testing::Test {
 protected:
    RuoliAccessibili() { insegnaRuoli(); }

    QApplication& app = test::applicazione();
};

TEST_F(RuoliAccessibili, TellPicturesAndWindowsAsSuch) {
    QWidget finestra;
    auto* quadro = new QWidget(&finestra);
    auto* parte = new QWidget(&finestra);
    presentaFigura(*quadro);
    EXPECT_EQ(ruolo(finestra), QAccessible::Window);
    EXPECT_EQ(ruolo(*quadro), QAccessible::Graphic);
    EXPECT_EQ(ruolo(*parte), QAccessible::Client);
}

TEST_F(RuoliAccessibili, FollowAWidgetThatBecomesPartOfAnother) {
    QWidget finestra;
    auto* parte = new QWidget;
    EXPECT_EQ(ruolo(*parte), QAccessible::Window);
    parte->setParent(&finestra);
    EXPECT_EQ(ruolo(*parte), QAccessible::Client);
}

TEST_F(RuoliAccessibili, LeaveControlsWhatTheyAre) {
    QPushButton bottone("Chiudi");
    EXPECT_EQ(ruolo(bottone), QAccessible::Button);
    EXPECT_EQ(QAccessible::queryAccessibleInterface(&bottone)->text(QAccessible::Name), "Chiudi");
}

}  // namespace
}  // namespace korven::shell
