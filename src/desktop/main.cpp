#include <QDir>
#include <QIcon>
#include <QPixmapCache>
#include <QTimer>
#include <algorithm>
#include <clocale>
#include <csignal>
#include <cstdio>
#include <string>
#include <utility>
#include <vector>

#include "base/file_error.hpp"
#include "base/files.hpp"
#include "base/folders/program_folder.hpp"
#include "base/folders/user_data.hpp"
#include "base/process/closed_pipe.hpp"
#include "base/process/program_questions.hpp"
#include "base/process/restart.hpp"
#include "base/translated_texts.hpp"
#include "commands/fatal_error.hpp"
#include "commands/report_export.hpp"
#include "commands/start/desktop_arguments.hpp"
#include "commands/start/language_start.hpp"
#include "commands/start/user_folder.hpp"
#include "desktop/session.hpp"
#include "project/project_data.hpp"
#include "safety/words.hpp"
#include "shell/application.hpp"
#include "shell/dialogo_qt.hpp"
#include "shell/file_dialogs_qt.hpp"
#include "shell/main/selezling.hpp"
#include "shell/program_printer.hpp"
#include "shell/qt_text.hpp"
#include "shell/termination.hpp"
#include "shell/toolkit_texts.hpp"

// korven32: the desktop program. Chooses what is behind the ports, and tells the one error that
// ends a program.

namespace korven::desktop {
namespace {

void traduciQt(QCoreApplication& applicazione) {
    auto testi = shell::testiQt(base::linguaCorrente());
    if (!testi) return;
    testi->setParent(&applicazione);
    QCoreApplication::installTranslator(testi.release());
}

// How the program began, and whether it is to begin once more when it has ended.
struct Avvio {
    std::string argomento;  // the project that the command line names; empty: none
    bool ancora = false;
};

int inLingua(shell::Applicazione& applicazione, shell::DialogoQt& dialogo, Avvio& avvio) {
    safety::luogoEquilibrio = safety::LuogoEquilibrio::finestra;
    commands::scegliCartellaProgramma();
    QApplication::setWindowIcon(QIcon(shell::qt(base::fileProgramma("korven32.svg"))));
    if (!commands::iniziaLingua({.dialogo = dialogo, .scegli = shell::chiediLingua})) return 0;
    traduciQt(applicazione);

    const shell::Terminazione terminazione;
    shell::DialogoFileQt nomi;
    shell::StampanteProgramma stampante;
    Sessione sessione({.dialogo = dialogo,
                       .nomi = nomi,
                       .stampante = [&]() -> QPrinter& { return stampante.stampante(); },
                       .outdoc = commands::convertitore(),
                       .riavvia = [&] { avvio.ancora = true; }});
    shell::Menu1& finestra = sessione.finestra();
    dialogo.sopra(&finestra);
    nomi.sopra(&finestra);
    QObject::connect(&applicazione, &QGuiApplication::commitDataRequest, &finestra,
                     &shell::Menu1::fineSessione, Qt::DirectConnection);
    finestra.show();
    QTimer::singleShot(0, &finestra, [&] { sessione.comincia(avvio.argomento); });
    return applicazione.gira();
}

// What is asked for without a window is answered where there is no display too.
int domande(const std::vector<std::string>& argomenti) {
    const auto letti = commands::leggiArgomenti(argomenti, base::esisteFile);
    if (letti.richiesta == base::Richiesta::nessuna && letti.sconosciuto.empty()) return -1;
    base::seguiCartellaUtente();
    base::scegliLinguaSilenziosa();
    return commands::rispondi(letti);
}

// Each dialog of files and each menu of changing items keeps its icons under new names, which
// nobody asks for again: with Qt's own limit of 10 MiB a day's session grows by all of them. What a
// window draws at a time takes less than one.
void limitaImmagini() {
    constexpr int kibibyte = 2048;
    QPixmapCache::setCacheLimit(kibibyte);
}

int finestre(int argc, char** argv, Avvio& avvio) {
    shell::Applicazione applicazione(argc, argv);
    QCoreApplication::setOrganizationName("korven32");
    QCoreApplication::setApplicationName("korven32");
    QGuiApplication::setDesktopFileName("local.korven32.korven32");
    limitaImmagini();
    std::setlocale(LC_NUMERIC, "C");
    shell::segnoDecimaleQt();
    avvio.argomento = QCoreApplication::arguments().value(1).toStdString();
    shell::DialogoQt dialogo;
    try {
        return inLingua(applicazione, dialogo, avvio);
    } catch (const std::exception& errore) {
        const std::string recuperato = commands::recuperaProgetto();
        dialogo.puntatore(base::Puntatore::normale);
        dialogo.messaggio(commands::testoFine(errore, recuperato),
                          base::traduttore("ATTENZIONE") + "!", base::Icona::stop);
        return 1;
    }
}

// With the project that was open last, if it is on a disk.
void ricomincia(const std::vector<std::string>& argomenti, const Avvio& avvio) {
    const bool scritto = base::esisteFile(project::fileCorrente);
    base::ricomincia(commands::argomentiRiavvio(argomenti, avvio.argomento,
                                                scritto ? project::fileCorrente : std::string()));
    std::perror("korven32");
}

int programma(int argc, char** argv) {
    base::occupaCanaliChiusi();
    base::resistiAiTubiChiusi();
    std::signal(SIGXFSZ, SIG_IGN);  // a file at its size limit is a failed write like others
    const std::vector<std::string> argomenti(argv, argv + argc);
    if (const int codice = domande({argv + std::min(argc, 1), argv + argc}); codice >= 0)
        return codice;
    Avvio avvio;
    const int codice = finestre(argc, argv, avvio);
    if (!avvio.ancora) return codice;
    ricomincia(argomenti, avvio);
    return 1;
}

}  // namespace
}  // namespace korven::desktop

int main(int argc, char** argv) { return korven::desktop::programma(argc, argv); }
