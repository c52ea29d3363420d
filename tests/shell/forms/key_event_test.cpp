#include "shell/forms/key_event.hpp"

#include <gtest/gtest.h>

namespace korven::shell {
namespace {

using masks::Tasto;

std::optional<Tasto> tasto(int quale, Qt::KeyboardModifiers con = {}, const char* testo = "") {
    return tastoDi(QKeyEvent(QEvent::KeyPress, quale, con, QString::fromUtf8(testo)));
}

TEST(TastoDi, KnowsTheKeysThatTheFormsGiveAMeaning) {
    EXPECT_EQ(tasto(Qt::Key_Return, {}, "\r"), Tasto::invio);
    EXPECT_EQ(tasto(Qt::Key_Enter, Qt::KeypadModifier, "\r"), Tasto::invio);
    EXPECT_EQ(tasto(Qt::Key_Escape, {}, "\x1b"), Tasto::esc);
    EXPECT_EQ(tasto(Qt::Key_Backspace, {}, "\b"), Tasto::backspace);
    EXPECT_EQ(tasto(Qt::Key_Delete, {}, "\x7f"), Tasto::canc);
    EXPECT_EQ(tasto(Qt::Key_Delete, Qt::KeypadModifier), Tasto::canc);
    EXPECT_EQ(tasto(Qt::Key_F1), Tasto::f1);
    EXPECT_EQ(tasto(Qt::Key_F2), Tasto::f2);
    EXPECT_EQ(tasto(Qt::Key_Up), Tasto::su);
    EXPECT_EQ(tasto(Qt::Key_Down), Tasto::giu);
    EXPECT_EQ(tasto(Qt::Key_Left), Tasto::sinistra);
    EXPECT_EQ(tasto(Qt::Key_Right), Tasto::destra);
}

TEST(TastoDi, TakesBothPointKeysForAPoint) {
    EXPECT_EQ(tasto(Qt::Key_Period, {}, "."), Tasto::punto);
    EXPECT_EQ(tasto(Qt::Key_Period, Qt::ShiftModifier, "."), Tasto::punto) << "a French keyboard";
    EXPECT_EQ(tasto(Qt::Key_Period, Qt::KeypadModifier, "."), Tasto::punto);
    EXPECT_EQ(tasto(Qt::Key_Comma, Qt::KeypadModifier, ","), Tasto::punto) << "an Italian one";
    EXPECT_EQ(tasto(Qt::Key_Comma, {}, ","), Tasto::carattere);
}

TEST(TastoDi, TakesWhatIsPrintableForACharacter) {
    for (const char* testo : {"a", "8", " ", "è", "ß", "-"})
        EXPECT_EQ(tasto(Qt::Key_unknown, {}, testo), Tasto::carattere) << testo;
    EXPECT_EQ(tasto(Qt::Key_At, Qt::ControlModifier | Qt::AltModifier, "@"), Tasto::carattere);
    EXPECT_EQ(tasto(Qt::Key_At, Qt::GroupSwitchModifier, "@"), Tasto::carattere);
}

TEST(TastoDi, LeavesCommandsAndBareModifiersToTheWindow) {
    EXPECT_EQ(tasto(Qt::Key_C, Qt::ControlModifier, "\x03"), std::nullopt);
    EXPECT_EQ(tasto(Qt::Key_C, Qt::AltModifier, "c"), std::nullopt);
    EXPECT_EQ(tasto(Qt::Key_Down, Qt::AltModifier), std::nullopt) << "opens the list of a choice";
    EXPECT_EQ(tasto(Qt::Key_Shift), std::nullopt);
    EXPECT_EQ(tasto(Qt::Key_Tab, {}, "\t"), std::nullopt);
    EXPECT_EQ(tasto(Qt::Key_F5), std::nullopt);
}

}  // namespace
}  // namespace korven::shell
