#include "device/graphics_session.hpp"

#include <QGuiApplication>
#include <algorithm>
#include <clocale>
#include <iterator>

namespace korven::device {

namespace {

// The platform is named here and not in the environment, which child processes would inherit. Qt
// takes what it understands out of both and refers to them for as long as the application lives.
int numeroArgomenti = 0;
char programma[] = "korven32";
char opzione[] = "-platform";
char piattaforma[] = "offscreen";
char* argomenti[4];

// What Qt has to tell here is about desktops that do not exist.
void taci(QtMsgType, const QMessageLogContext&, const QString&) {}

}  // namespace

SessioneGrafica::SessioneGrafica() {
    qInstallMessageHandler(taci);
    char* const tutti[] = {programma, opzione, piattaforma, nullptr};
    std::copy(std::begin(tutti), std::end(tutti), argomenti);
    numeroArgomenti = 3;
    applicazione_ = std::make_unique<QGuiApplication>(numeroArgomenti, argomenti);
    std::setlocale(LC_NUMERIC, "C");
}

SessioneGrafica::~SessioneGrafica() {
    applicazione_.reset();
    qInstallMessageHandler(nullptr);
}

}  // namespace korven::device
