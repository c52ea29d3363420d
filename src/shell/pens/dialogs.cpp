#include <QColorDialog>
#include <QInputDialog>

#include "device/text_painting.hpp"
#include "shell/pens/editacfg.hpp"
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
    QInputDialog dialogo(padre);
    dialogo.setWindowTitle(qt(titolo));
    dialogo.setLabelText(qt(domanda));
    dialogo.setTextValue(qt(proposta));
    dialogo.setOkButtonText(QStringLiteral("OK"));
    dialogo.setCancelButtonText(tradotto("&Annulla"));
    if (dialogo.exec() != QDialog::Accepted) return {};
    return dialogo.textValue().toStdString();
}

}  // namespace korven::shell
