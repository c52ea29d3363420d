#include "shell/rescue/rescue_watch.hpp"

#include <gtest/gtest.h>

#include <QDialog>
#include <QTest>

#include "support/form_setup.hpp"

namespace korven::shell {
namespace {

TEST(SorvegliaLavoro, LooksNowAndThenAlsoUnderAModalFormAndEndsWithItsParent) {
    test::applicazione();
    int volte = 0;
    QObject padre;
    sorvegliaLavoro(
        padre, [&volte] { ++volte; }, 1);
    QDialog forma;
    sorvegliaLavoro(
        forma,
        [&] {
            if (volte > 1) forma.accept();
        },
        1);
    forma.exec();
    EXPECT_GT(volte, 1);
    {
        QObject breve;
        sorvegliaLavoro(
            breve, [] { ADD_FAILURE() << "its parent is gone"; }, 1);
    }
    QTest::qWait(5);
}

}  // namespace
}  // namespace korven::shell
