#include <QColorDialog>
#include <QInputDialog>
#include <QLineEdit>

#include "device/text_painting.hpp"
#include "shell/editacfg.hpp"

namespace korven::shell {

using device::qTesto;

std::optional<plot::Colore> DialoghiEditacfg::scegliColore(QWidget* padre, plot::Colore presente) {
    const QColor scelto = QColorDialog::getColor(device::qColore(presente), padre);
    if (!scelto.isValid()) return {};
    return plot::daRgb(scelto.red(), scelto.green(), scelto.blue());
}

std::optional<std::string> DialoghiEditacfg::chiediTesto(QWidget* padre, const std::string& titolo,
                                                         const std::string& domanda,
                                                         const std::string& proposta) {
    bool dato = false;
    const QString testo = QInputDialog::getText(padre, qTesto(titolo), qTesto(domanda),
                                                QLineEdit::Normal, qTesto(proposta), &dato);
    if (!dato) return {};
    return testo.toStdString();
}

}  // namespace korven::shell
