#include <QColorDialog>
#include <QInputDialog>
#include <QLineEdit>

#include "device/text_painting.hpp"
#include "shell/editacfg.hpp"
#include "shell/qt_text.hpp"

namespace korven::shell {

std::optional<plot::Colore> DialoghiEditacfg::scegliColore(QWidget* padre, plot::Colore presente) {
    const QColor scelto = QColorDialog::getColor(device::qColore(presente), padre);
    if (!scelto.isValid()) return {};
    return plot::daRgb(scelto.red(), scelto.green(), scelto.blue());
}

std::optional<std::string> DialoghiEditacfg::chiediTesto(QWidget* padre, const std::string& titolo,
                                                         const std::string& domanda,
                                                         const std::string& proposta) {
    bool dato = false;
    const QString testo = QInputDialog::getText(padre, qt(titolo), qt(domanda), QLineEdit::Normal,
                                                qt(proposta), &dato);
    if (!dato) return {};
    return testo.toStdString();
}

}  // namespace korven::shell
