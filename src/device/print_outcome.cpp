#include "device/print_outcome.hpp"

#include <QFile>
#include <QFileInfo>
#include <QPrinter>
#include <QPrinterInfo>
#include <algorithm>

namespace korven::device {

namespace {

bool suFile(const QPrinter& stampante) { return !stampante.outputFileName().isEmpty(); }

// A disk that was full, or a limit of the system, cuts the file short without a word of Qt.
bool pdfIntero(const QString& percorso) {
    constexpr qint64 coda = 32;
    const QFileInfo dove(percorso);
    if (dove.exists() && !dove.isFile()) return true;  // a device can't be looked into
    QFile file(percorso);
    if (!file.open(QIODevice::ReadOnly)) return false;
    file.seek(std::max<qint64>(0, file.size() - coda));
    return file.readAll().trimmed().endsWith("%%EOF");
}

}  // namespace

std::string destinazionePagine(const QPrinter& stampante) {
    return (suFile(stampante) ? stampante.outputFileName() : stampante.printerName()).toStdString();
}

bool conosciuta(const QPrinter& stampante) {
    return suFile(stampante) || !QPrinterInfo::printerInfo(stampante.printerName()).isNull();
}

bool consegnata(const QPrinter& stampante) {
    if (stampante.printerState() == QPrinter::Error || !conosciuta(stampante)) return false;
    return !suFile(stampante) || pdfIntero(stampante.outputFileName());
}

}  // namespace korven::device
