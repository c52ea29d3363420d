#include "shell/tables/table_pages.hpp"

#include <gtest/gtest.h>

#include <QClipboard>

#include "shell/companions/button_row.hpp"
#include "shell/tables/table_view.hpp"
#include "support/form_setup.hpp"

namespace korven::shell {
namespace {

tables::Prospetto unaRiga(const char* parola) {
    return {.colonne = {{.titolo = "Nome"}}, .righe = {{{.testo = parola}}}};
}

TEST(PagineProspettiTest, CopyTheTableOfThePageShown) {
    test::applicazione();
    QWidget finestra;
    finestra.setWindowTitle(QStringLiteral("Risultati"));
    auto* pagine = new PagineProspetti(&finestra);
    EXPECT_EQ(pagine->accessibleName(), QStringLiteral("Risultati"));
    pagine->aggiungi("nodi", "Nodi")->mostra(unaRiga("primo"));
    pagine->aggiungi("fasi", "Fasi")->mostra(unaRiga("secondo"));
    pagine->addTab(new QWidget, QStringLiteral("Curve"));
    FilaPulsanti fila(finestra);
    pagine->aggiungiCopia(fila);
    auto& copia = test::controllo<QPushButton>(fila, "copia");
    const auto copiato = [&copia] {
        copia.click();
        return QGuiApplication::clipboard()->text();
    };
    EXPECT_TRUE(copiato().contains(QStringLiteral("primo")));
    pagine->setCurrentIndex(1);
    EXPECT_TRUE(copiato().contains(QStringLiteral("secondo")));
    pagine->setCurrentIndex(2);
    EXPECT_FALSE(copia.isEnabled()) << "nothing to copy";
    pagine->setCurrentIndex(0);
    EXPECT_TRUE(copia.isEnabled());
}

}  // namespace
}  // namespace korven::shell
