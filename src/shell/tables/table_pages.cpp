#include "shell/tables/table_pages.hpp"

#include "shell/companions/button_row.hpp"
#include "shell/qt_text.hpp"
#include "shell/tables/table_view.hpp"

namespace korven::shell {

PagineProspetti::PagineProspetti(QWidget* padre) : QTabWidget(padre) {
    setObjectName(QStringLiteral("pagine"));
    setAccessibleName(window()->windowTitle());
}

VistaProspetto* PagineProspetti::aggiungi(const char* nome, const char* titolo) {
    auto* vista = new VistaProspetto(QLatin1String(nome), this);
    vista->setAccessibleName(tradotto(titolo));
    addTab(vista, tradotto(titolo));
    return vista;
}

void PagineProspetti::aggiungiCopia(FilaPulsanti& fila) {
    auto* copia = fila.aggiungi("copia", "C&opia", "copy", [this] {
        if (const auto* quale = tabella()) quale->copia();
    });
    copia->setToolTip(
        tradotto("Copia la tabella, o la parte scelta, per un foglio di calcolo (Ctrl+C)"));
    connect(this, &QTabWidget::currentChanged, copia,
            [this, copia] { copia->setEnabled(tabella() != nullptr); });
}

VistaProspetto* PagineProspetti::tabella() const {
    return dynamic_cast<VistaProspetto*>(currentWidget());
}

}  // namespace korven::shell
