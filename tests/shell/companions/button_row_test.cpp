#include "shell/companions/button_row.hpp"

#include <gtest/gtest.h>

#include "support/form_setup.hpp"

namespace korven::shell {
namespace {

TEST(FilaPulsanti, PressesTheButtonThatHasTheFocusAndPartsWhatIsAtTheRight) {
    test::applicazione();
    QWidget finestra;
    FilaPulsanti fila(finestra);
    fila.resize(600, 40);
    int premuti = 0;
    QPushButton* primo = fila.aggiungi("copia", "C&opia", "copy", [&] { ++premuti; });
    fila.parti();
    QPushButton* ultimo = fila.aggiungi("chiudi", "&Chiudi", "close", [] {});
    finestra.resize(600, 40);
    finestra.show();
    EXPECT_FALSE(primo->icon().isNull());
    EXPECT_TRUE(primo->autoDefault());
    EXPECT_GT(ultimo->x(), primo->geometry().right() + 100);
    QTest::mouseClick(primo, Qt::LeftButton);
    EXPECT_EQ(premuti, 1);
}

}  // namespace
}  // namespace korven::shell
