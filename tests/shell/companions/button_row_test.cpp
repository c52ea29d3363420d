#include "shell/companions/button_row.hpp"

#include <gtest/gtest.h>

#include "support/form_setup.hpp"

namespace korven::shell {
namespace {

class FilaPulsantiTest : public ::testing::Test {
 protected:
    void mostra() {
        fila.finisci();
        fila.resize(600, 40);
        finestra.resize(600, 40);
        finestra.show();
    }

    QApplication& app = test::applicazione();
    QWidget finestra;
    FilaPulsanti fila{finestra};
};

TEST_F(FilaPulsantiTest, PressesTheButtonThatHasTheFocusAndPartsWhatClosesFromIt) {
    int premuti = 0;
    QPushButton* primo = fila.aggiungi("copia", "C&opia", "copy", [&] { ++premuti; });
    mostra();
    const auto& ultimo = test::controllo<QPushButton>(fila, "chiudi");
    EXPECT_FALSE(primo->icon().isNull());
    EXPECT_TRUE(primo->autoDefault());
    EXPECT_GT(ultimo.x(), primo->geometry().right() + 100);
    QTest::mouseClick(primo, Qt::LeftButton);
    EXPECT_EQ(premuti, 1);
}

TEST_F(FilaPulsantiTest, ClosesItsWindow) {
    mostra();
    ASSERT_TRUE(finestra.isVisible());
    test::controllo<QPushButton>(fila, "chiudi").click();
    EXPECT_FALSE(finestra.isVisible());
}

TEST_F(FilaPulsantiTest, ShowsTheButtonOfTheHelpWhereThereIsOne) {
    int aperta = 0;
    const auto* senza = fila.aggiungiGuida({});
    auto* con = fila.aggiungiGuida([&] { ++aperta; });
    mostra();
    EXPECT_FALSE(senza->isVisible());
    EXPECT_TRUE(con->isVisible());
    con->click();
    EXPECT_EQ(aperta, 1);
}

}  // namespace
}  // namespace korven::shell
