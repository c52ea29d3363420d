#include "device/graphics_session.hpp"

#include <QGuiApplication>
#include <QHashFunctions>
#include <clocale>
#include <cstdio>

namespace korven::device {

namespace {

// What Qt has to tell here is about desktops that do not exist, but for its last words: after them
// it ends the program.
void taci(QtMsgType tipo, const QMessageLogContext&, const QString& testo) {
    if (tipo == QtFatalMsg) std::fputs((testo.toStdString() + '\n').c_str(), stderr);
}

}  // namespace

SessioneGrafica::SessioneGrafica() {
    // Qt writes the fonts of a PDF file in the order of a table that would be another in each run.
    QHashSeed::setDeterministicGlobalSeed();
    qInstallMessageHandler(taci);
    applicazione_ = std::make_unique<QGuiApplication>(numeroArgomenti_, argomenti_.data());
    std::setlocale(LC_NUMERIC, "C");
}

SessioneGrafica::~SessioneGrafica() {
    applicazione_.reset();
    qInstallMessageHandler(nullptr);
}

bool SessioneGrafica::aperta() { return QCoreApplication::instance() != nullptr; }

}  // namespace korven::device
