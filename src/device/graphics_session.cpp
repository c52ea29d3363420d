#include "device/graphics_session.hpp"

#include <QGuiApplication>
#include <clocale>

namespace korven::device {

namespace {

// What Qt has to tell here is about desktops that do not exist.
void taci(QtMsgType, const QMessageLogContext&, const QString&) {}

}  // namespace

SessioneGrafica::SessioneGrafica() {
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
