#include "shell/viewer/dialogs.hpp"

#include <QApplication>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QPrinter>
#include <QPrinterInfo>
#include <algorithm>
#include <utility>

#include "device/page_printer.hpp"
#include "device/text_painting.hpp"
#include "project/project_data.hpp"
#include "shell/qt_text.hpp"
#include "shell/replace_question.hpp"
#include "shell/viewer/export.hpp"

namespace korven::shell {

namespace {

QString cartellaProgetto() {
    if (project::fileCorrente.empty()) return QDir::currentPath();
    return QFileInfo(qt(project::fileCorrente)).absolutePath();
}

}  // namespace

PorteDesktop::PorteDesktop(std::function<QPrinter&()> stampante,
                           std::function<void(const std::string&)> annuncia)
    : stampante_(std::move(stampante)), annuncia_(std::move(annuncia)) {}

void PorteDesktop::scritto(const std::string& percorso) {
    if (annuncia_) annuncia_(percorso);
}

std::optional<std::string> PorteDesktop::fileDaSalvare(const FileDaSalvare& richiesta) {
    QFileDialog dialogo(QApplication::activeWindow(), qt(richiesta.titolo), cartellaProgetto());
    dialogo.setAcceptMode(QFileDialog::AcceptSave);
    dialogo.setFileMode(QFileDialog::AnyFile);
    dialogo.setOption(QFileDialog::DontConfirmOverwrite);  // asked below, in our language
    QStringList filtri;
    for (const TipoFile& tipo : richiesta.tipi) filtri << qt(tipo.nome);
    dialogo.setNameFilters(filtri);
    const auto seguiFiltro = [&](const QString& filtro) {
        const auto indice = std::max<qsizetype>(filtri.indexOf(filtro), 0);
        dialogo.setDefaultSuffix(qt(richiesta.tipi[static_cast<std::size_t>(indice)].estensione));
    };
    QObject::connect(&dialogo, &QFileDialog::filterSelected, &dialogo, seguiFiltro);
    seguiFiltro(filtri.front());
    dialogo.selectFile(qt(richiesta.nome));
    while (dialogo.exec() == QDialog::Accepted) {
        auto percorso = QDir::cleanPath(dialogo.selectedFiles().front()).toStdString();
        if (puoSostituire(percorso)) return percorso;
    }
    return {};
}

plot::Foglio PorteDesktop::foglioStampante() { return device::paginaStampante(stampante_()); }

bool PorteDesktop::haStampante() const {
    const QPrinter& stampante = stampante_();
    if (!stampante.outputFileName().isEmpty()) return true;
    return stampante.outputFormat() == QPrinter::NativeFormat &&
           !QPrinterInfo::availablePrinterNames().isEmpty();
}

std::unique_ptr<plot::Stampante> PorteDesktop::stampante(const std::string& titolo) {
    QPrinter& stampante = stampante_();
    if (haStampante()) return std::make_unique<device::StampantePagine>(stampante, qt(titolo));
    const auto percorso = fileDaSalvare(richiestaPdf());
    if (!percorso) return nullptr;
    return device::stampanteSuPdf(qt(*percorso), stampante, qt(titolo));
}

}  // namespace korven::shell
