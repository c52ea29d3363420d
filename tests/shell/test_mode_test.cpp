// The translators' test mode opens a box for a text that the table lacks. It must do so while a
// window is made, never while it is painted: the box would lead to the next painting and that to
// the next box.

#include <gtest/gtest.h>

#include <initializer_list>

#include "base/text_table.hpp"
#include "base/translated_texts.hpp"
#include "shell/main/informazioni.hpp"
#include "shell/main/menu1.hpp"
#include "shell/run/temp_calc.hpp"
#include "shell/section/definej.hpp"
#include "support/dialog_double.hpp"
#include "support/form_setup.hpp"

namespace korven::shell {
namespace {

class ModoProva : public ::testing::Test {
 protected:
    ModoProva() {
        base::tabellaTesti.nTesti = 0;
        base::impostaLingua(5);
        base::impostaModoProva(&dialogo);
    }
    ~ModoProva() override {
        base::impostaModoProva(nullptr);
        base::impostaLingua(1);
    }
    QApplication& app = test::applicazione();
    test::UtenteNuovo utente;
    test::DialogoFinto dialogo;
};

TEST_F(ModoProva, TellsOfTheTextsOfAWindowWhileItIsMadeAndNotWhileItIsPainted) {
    project::Sezione sezione;
    bool modificato = false;
    DefinEJ definej(sezione, modificato, nullptr);
    Informazioni informazioni("", nullptr);
    Menu1 menu1;
    TempCalc tempCalc(nullptr);
    tempCalc.mostra({0.01, 2, 0.5, 3, {0, 0.005, 0.01}, {0, 1, 2}, {1}});
    EXPECT_GT(dialogo.messaggi.size(), 20u);
    for (QWidget* finestra :
         std::initializer_list<QWidget*>{&definej, &informazioni, &menu1, &tempCalc}) {
        dialogo.messaggi.clear();
        finestra->grab();
        EXPECT_TRUE(dialogo.messaggi.empty())
            << finestra->objectName().toStdString() << ": " << dialogo.messaggi.front().testo;
    }
}

}  // namespace
}  // namespace korven::shell
