#include "shell/picture/live_picture.hpp"

#include <gtest/gtest.h>

#include <QPrinter>

#include "project/project_data.hpp"
#include "shell/picture/picture_view.hpp"
#include "support/main_form_bench.hpp"

namespace korven::shell {
namespace {

class FiguraNellaFormaPrincipale : public test::BancoMenu1 {
 protected:
    VitaProgetto vita;
};

TEST_F(FiguraNellaFormaPrincipale, TellsInTheStatusLineWhatWasCopied) {
    collegaFigura(finestra, vita, dialogo,
                  []() -> QPrinter& { throw std::logic_error("printer"); });
    project::Progetto = test::progettoSemplice();
    project::fileCorrente = ambiente.lavori / "muro.kvd";
    finestra.show();
    vita.guarda();
    auto& figura = *finestra.findChild<VistaFigura*>("figura");
    vita.mostra({.curva = live::Curva::pressioni});
    QTest::keyClick(&figura, Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(stato().toStdString(),
              "Figura copiata come immagine e come SVG (inviluppo, Pressioni)");
}

}  // namespace
}  // namespace korven::shell
