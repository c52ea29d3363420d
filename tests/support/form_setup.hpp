#pragma once

#include <gtest/gtest.h>
#include <stdlib.h>

#include <QApplication>
#include <QSettings>
#include <QString>
#include <QTest>
#include <QWidget>
#include <cstdio>
#include <cstdlib>
#include <stdexcept>
#include <string>

#include "support/temporary_folder.hpp"

namespace korven::test {

// What Qt has to tell here is about a desktop that does not exist; a fault still ends the test.
inline void taci(QtMsgType tipo, const QMessageLogContext&, const QString& testo) {
    if (testo.startsWith(QLatin1String("This plugin does not support"))) return;
    std::fprintf(stderr, "%s\n", qPrintable(testo));
    if (tipo == QtFatalMsg) std::abort();
}

/// The application that forms need, on a screen that is not there. What forms remember of the user
/// goes to a folder of its own.
inline QApplication& applicazione() {
    static const CartellaProvvisoria utente;
    static int argc = 3;
    static char programma[] = "korven32", opzione[] = "-platform", schermo[] = "offscreen";
    static char* argv[] = {programma, opzione, schermo, nullptr};
    // Never deleted: at the end of the process Qt itself is half gone.
    static QApplication* const unica = [] {
        if (qApp != nullptr) return qApp;
        qInstallMessageHandler(taci);
        ::setenv("XDG_CONFIG_HOME", utente.percorso().c_str(), 1);
        return new QApplication(argc, argv);
    }();
    return *unica;
}

/// What forms remember of their user goes to a folder of this test alone and is forgotten with it.
class UtenteNuovo {
 public:
    UtenteNuovo() { ricorda(cartella_.percorso()); }
    UtenteNuovo(const UtenteNuovo&) = delete;
    UtenteNuovo& operator=(const UtenteNuovo&) = delete;
    ~UtenteNuovo() { ricorda("/dev/null"); }

 private:
    static void ricorda(const std::string& dove) {
        QSettings::setPath(QSettings::IniFormat, QSettings::UserScope,
                           QString::fromStdString(dove));
    }
    CartellaProvvisoria cartella_;
};

/// The control of a form with that name. Fails the test when there is none.
template <class Controllo = QWidget>
Controllo& controllo(const QWidget& forma, const char* nome) {
    auto* trovato = forma.findChild<Controllo*>(QLatin1String(nome));
    if (trovato == nullptr) throw std::runtime_error(std::string("no control ") + nome);
    return *trovato;
}

}  // namespace korven::test
