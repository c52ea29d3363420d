#include "desktop/handled_session.hpp"

#include <fcntl.h>
#include <unistd.h>

#include <QTableView>
#include <QTimer>

#include "base/table.hpp"
#include "commands/rescue/kept_rescue.hpp"
#include "commands/start/language_start.hpp"
#include "project/output_guard.hpp"
#include "project/project_data.hpp"
#include "shell/help/guida.hpp"

namespace korven::test {

namespace {

constexpr int traControlli = 25;  // events
constexpr int traRitorni = 60;
constexpr int passiRitorno = 500;    // of the history of a form
constexpr int passiSenzaSegno = 25;  // as an empty row inserted after the last one
constexpr int passiUscita = 400;  // windows that may lie over the main form, with their questions

}  // namespace

std::string SessioneAManiLibere::Nomi::uno() {
    if (di_.mani_.caso.unaSu(4)) return {};
    return di_.cartella_ + "/lavori/prova" + std::to_string(di_.mani_.caso.sotto(5)) + ".kvd";
}
std::string SessioneAManiLibere::Nomi::apri(const std::string&) { return uno(); }
std::string SessioneAManiLibere::Nomi::nuovo(const std::string&) { return uno(); }
std::optional<std::string> SessioneAManiLibere::Nomi::salva(const std::string&) {
    const std::string nome = uno();
    return nome.empty() ? std::nullopt : std::optional(nome);
}

SessioneAManiLibere::SessioneAManiLibere(int seme, int eventi, std::string cartella,
                                         const std::string& registro)
    : seme_(seme),
      eventi_(eventi),
      cartella_(std::move(cartella)),
      registro_(::open(registro.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0600)),
      mani_(static_cast<std::uint64_t>(seme), cartella_ + "/lavori",
            [this](const std::string& riga) { annota(riga); }) {
    stampante_.setOutputFormat(QPrinter::PdfFormat);
    stampante_.setOutputFileName(QString::fromStdString(cartella_ + "/lavori/stampa.pdf"));
}

SessioneAManiLibere::~SessioneAManiLibere() { ::close(registro_); }

// At once and whole, so that the last line of a program that dies is there.
void SessioneAManiLibere::annota(const std::string& riga) {
    const std::string tutta = "#" + std::to_string(fatti_) + " " + riga + "\n";
    [[maybe_unused]] const auto scritti = ::write(registro_, tutta.data(), tutta.size());
}

void SessioneAManiLibere::guasto(const std::string& cosa) {
    annota("WRONG: " + cosa);
    if (guasto_.empty()) guasto_ = "event " + std::to_string(fatti_) + ": " + cosa;
}

std::string SessioneAManiLibere::corri(shell::Applicazione& applicazione) {
    while (fatti_ < eventi_ && guasto_.empty()) {
        avvia();
        try {
            applicazione.gira();
        } catch (const base::ErroreIndice& errore) {
            // More rows than a project holds end the program, in words.
            annota(std::string("ended: ") + errore.what());
        }
        sessione_.reset();
    }
    return guasto_;
}

// As a program that starts anew, with one of the projects.
void SessioneAManiLibere::avvia() {
    project::azzeraProgetto();
    project::fileCorrente.clear();
    project::modificato = false;
    project::progettiProtetti = {};
    commands::recuperoTenuto = {};
    mani_.caso.evento(-1 - fatti_);
    const int quale = mani_.caso.sotto(6);
    if (!commands::iniziaLingua({.dialogo = dialogo_, .scegli = [](const auto&) { return 1; }}))
        return guasto("no language");
    ++sessioni_;
    annota("session with prova" + std::to_string(quale));
    sessione_ = std::make_unique<desktop::Sessione>(
        desktop::PorteSessione{.dialogo = dialogo_,
                               .nomi = nomi_,
                               .stampante = [this]() -> QPrinter& { return stampante_; },
                               .outdoc = cartella_ + "/programma/outdoc",  // there is none
                               .riavvia = [] {}});
    dialogo_.sopra(&sessione_->finestra());
    sessione_->finestra().show();
    uscite_ = 0;
    prossimo();
    const std::string progetto = cartella_ + "/lavori/prova" + std::to_string(quale) + ".kvd";
    QTimer::singleShot(0, &sessione_->finestra(), [this, quale, progetto] {
        sessione_->comincia(quale == 5 ? std::string() : progetto);
    });
}

// A timer of its own for each event: one that is being served does not come again in the loop of
// the window that the event has opened.
void SessioneAManiLibere::prossimo() {
    QTimer::singleShot(1, &sessione_->finestra(), [this] { passo(); });
}

void SessioneAManiLibere::passo() {
    if (!guasto_.empty() || fatti_ >= eventi_) return finisci();
    if (!sessione_->finestra().isVisible()) {
        // The program ends with its last window.
        if (const auto cosa = finestreSole(); !cosa.empty())
            guasto("left behind by the main form: " + cosa);
        return QCoreApplication::exit();
    }
    prossimo();
    ricorda();
    if (ritorno_) return torna();
    ++fatti_;
    if (fatti_ % traControlli == 0) guarda();
    if (fatti_ % traRitorni == 0) cominciaRitorno();
    if (!ritorno_) mani_.muovi(fatti_);
}

// What a form holds before the first event that it gets.
void SessioneAManiLibere::ricorda() {
    QWidget* aperta = formaAperta();
    if (aperta == nullptr || aperta == forma_) return;
    forma_ = aperta;
    iniziale_ = contenutoDi(*aperta);
}

void SessioneAManiLibere::guarda() {
    ++confronti_;
    if (const auto cosa = finestreStrane(); !cosa.empty()) guasto(cosa);
    // During a run and its output the project waits to be looked at.
    const QWidget* modale = QApplication::activeModalWidget();
    const bool ferma = (modale == nullptr && sessione_->finestra().isEnabled()) || formaAperta();
    if (!ferma || QApplication::activePopupWidget() != nullptr) return;
    const QWidget* forma = formaAperta();
    std::string cosa = vitaDiversa(*sessione_, forma);
    // Before anything is typed the project is shown, which confirming the form may change: it puts
    // rows in order.
    if (forma != nullptr && forma == forma_ && contenutoDi(*forma) == iniziale_ &&
        vitaDiversa(*sessione_, nullptr).empty())
        cosa.clear();
    if (!cosa.empty()) guasto("live project: " + cosa);
}

void SessioneAManiLibere::cominciaRitorno() {
    QWidget* aperta = formaAperta();
    if (aperta == nullptr || aperta != forma_) return;
    const auto ora = contenutoDi(*aperta);
    ritorno_ = Ritorno{aperta, iniziale_, {}, ora};
    annota("back to the beginning");
}

// One step back, or forth again once the beginning is reached. A box over the form, which tells of
// a value that can't be left, ends the attempt.
void SessioneAManiLibere::torna() {
    Ritorno& r = *ritorno_;
    if (r.forma == nullptr || formaAperta() != r.forma) return ritorno_.reset();
    r.forma->activateWindow();
    // A panel beside a table has fields of its own.
    if (auto* griglia = r.forma->findChild<QTableView*>("MSFlexGrid1");
        griglia != nullptr && r.forma->focusWidget() != r.forma->findChild<QWidget*>("Text1"))
        griglia->setFocus();
    mani_.premi(r.avanti ? Qt::Key_Y : Qt::Key_Z, Qt::ControlModifier);
    if (!ritorno_ || r.forma == nullptr || formaAperta() != r.forma) return ritorno_.reset();
    const auto ora = contenutoDi(*r.forma);
    r.fermi = ora == r.ultimo ? r.fermi + 1 : 0;
    r.ultimo = ora;
    if (++r.passi >= passiRitorno) return ritorno_.reset();
    if (r.fermi < passiSenzaSegno) return;
    fineDiUnVerso(ora);
}

// Undo must lead to what the form was opened with. What redo leads to is asked twice: a text that
// its cell does not let go is taken back for good.
void SessioneAManiLibere::fineDiUnVerso(const ContenutoForma& ora) {
    Ritorno& r = *ritorno_;
    const bool primaVolta = r.avanti && !r.allaFine;
    if (primaVolta) r.allaFine = ora;
    const auto cosa = differenza(ora, r.avanti ? *r.allaFine : r.primaDiTutto);
    if (!cosa.empty())
        guasto((r.avanti ? "redo does not bring back " : "undo does not bring back ") + cosa +
               " of " + nomeDi(*r.forma));
    if (r.avanti && !primaVolta) {
        ++ritorni_;
        return ritorno_.reset();
    }
    r.avanti = !r.avanti;
    r.fermi = r.passi = 0;
}

// Everything that is open can be left, down to the main form.
void SessioneAManiLibere::finisci() {
    prossimo();
    if (mani_.chiudiUna(sessione_->finestra(), uscite_)) {
        if (++uscite_ == passiUscita) {
            guasto("a window that can't be left");
            std::exit(3);
        }
        return;
    }
    if (guasto_.empty())
        if (const auto cosa = vitaDiversa(*sessione_, nullptr); !cosa.empty())
            guasto("live project at the end: " + cosa);
    QCoreApplication::exit();
}

}  // namespace korven::test
