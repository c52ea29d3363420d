#include "shell/help/porta.hpp"

#include <QApplication>
#include <QKeyEvent>
#include <QMenu>
#include <QMenuBar>
#include <QTableView>
#include <QTimer>
#include <QVariant>
#include <QWindow>

#include "base/files.hpp"
#include "commands/start/language_start.hpp"
#include "help/contexts.hpp"
#include "help/places.hpp"
#include "shell/dialogo_qt.hpp"
#include "shell/failure_box.hpp"
#include "shell/help/guida.hpp"

namespace korven::shell {

namespace {

constexpr const char* proprietaContesto = "contestoGuida";
constexpr const char* proprietaCampo = "campoGuida";
constexpr const char* proprietaPagina = "paginaGuida";
constexpr const char* proprietaVoceMenu = "voceGuida";

std::string nomeDi(const QWidget& controllo) { return controllo.objectName().toStdString(); }

// The entry that a window or control names; 0 if it names none.
int voceDi(const QWidget& controllo) {
    const int detta = controllo.property(proprietaContesto).toInt();
    return detta != 0 ? detta : help::voceForma(nomeDi(controllo));
}

void aggiungiAncora(const QWidget& controllo, std::vector<std::string>& ancore) {
    if (const auto* griglia = qobject_cast<const QTableView*>(&controllo))
        ancore.push_back(help::ancoraColonna(griglia->currentIndex().column()));
    const std::string campo = controllo.property(proprietaCampo).toString().toStdString();
    for (const auto& nome : {campo, nomeDi(controllo)})
        if (!nome.empty()) ancore.push_back(help::ancoraCampo(nome));
}

// The system follows the chain of the windows that belong to one another without an end to it.
bool appartiene(const QWindow* una, const QWindow* altra) {
    while (una != nullptr && una != altra) una = una->transientParent();
    return una != nullptr;
}

}  // namespace

PortaGuida::PortaGuida(QWidget& principale, base::Dialogo& dialogo)
    : QObject(&principale), principale_(principale), dialogo_(dialogo) {
    qApp->installEventFilter(this);
}

PortaGuida::~PortaGuida() {
    qApp->removeEventFilter(this);
    finestra_.reset();
}

bool PortaGuida::carica() {
    if (finestra_) return true;
    return conAvviso(dialogo_, [this] {
        finestra_ = std::make_unique<FinestraGuida>(help::leggiGuida(commands::fileGuida));
    });
}

void PortaGuida::apri(int contesto, const std::vector<std::string>& ancore) {
    if (!carica()) return;
    if (const auto* pagina = help::paginaDelContesto(finestra_->guida(), contesto)) {
        std::string ancora;
        for (auto i = ancore.rbegin(); i != ancore.rend(); ++i)
            if (help::haAncora(*pagina, *i)) ancora = *i;
        finestra_->mostra(*pagina, ancora);
    } else {
        finestra_->mostraSommario();
    }
    mostraFinestra();
}

void PortaGuida::apriPagina(const std::string& nome) {
    if (!carica()) return;
    if (const auto* pagina = help::paginaDiNome(finestra_->guida(), nome))
        finestra_->mostra(*pagina);
    else
        finestra_->mostraSommario();
    mostraFinestra();
}

void PortaGuida::mostraFinestra() {
    aggancia();
    if (finestra_->isMinimized()) finestra_->showNormal();
    finestra_->show();
    finestra_->raise();
    finestra_->activateWindow();
}

// A modal window shuts all others out but those that belong to it. So the help belongs to whichever
// window is modal, and to the main form when none is.
void PortaGuida::aggancia() {
    if (!finestra_) return;
    QWidget* modale = QApplication::activeModalWidget();
    finestra_->winId();  // makes the window of the system, which is what belongs to another
    QWidget* sopra = &principale_;
    if (modale != nullptr && modale->windowHandle() != nullptr &&
        !appartiene(modale->windowHandle(), finestra_->windowHandle()))
        sopra = modale;
    if (sopra_ != sopra) {
        sopra_ = sopra;
        finestra_->windowHandle()->setTransientParent(sopra->windowHandle());
    }
}

void PortaGuida::agganciaDopo() {
    QTimer::singleShot(0, this, [this] { aggancia(); });
}

bool PortaGuida::f1(QWidget& controllo) {
    if (qobject_cast<QMenu*>(&controllo) != nullptr) return false;  // the main form sees to it
    if (const auto* barra = qobject_cast<QMenuBar*>(&controllo);
        barra != nullptr && barra->activeAction() != nullptr) {
        apri(help::contestoGuida(barra->activeAction()->property(proprietaVoceMenu).toInt()));
        return true;
    }
    std::vector<std::string> ancore;
    for (QWidget* w = &controllo; w != nullptr; w = w->parentWidget()) {
        if (help::senzaF1(nomeDi(*w))) return false;
        if (const auto pagina = w->property(proprietaPagina).toString(); !pagina.isEmpty()) {
            apriPagina(pagina.toStdString());
            return true;
        }
        if (const int voce = voceDi(*w); voce != 0) {
            apri(help::contestoGuida(voce), ancore);
            return true;
        }
        aggiungiAncora(*w, ancore);
    }
    sommario();
    return true;
}

bool PortaGuida::eventFilter(QObject* oggetto, QEvent* evento) {
    switch (evento->type()) {
        case QEvent::KeyPress: {
            const auto* tasto = static_cast<QKeyEvent*>(evento);
            auto* controllo = qobject_cast<QWidget*>(oggetto);
            if (tasto->key() != Qt::Key_F1 || tasto->modifiers() != Qt::NoModifier) return false;
            return controllo != nullptr && f1(*controllo);
        }
        case QEvent::WindowBlocked:
            if (oggetto == finestra_.get()) agganciaDopo();
            return false;
        case QEvent::Hide:
            if (oggetto == sopra_ && oggetto != &principale_) {
                sopra_ = nullptr;
                agganciaDopo();
            }
            return false;
        default:
            return false;
    }
}

void collegaGuida(commands::FormeProgramma& forme, QWidget& principale) {
    if (!base::esisteFile(commands::fileGuida)) return;
    // The box of a broken help file, above whatever window is active.
    struct Porta : DialogoQt, PortaGuida {
        explicit Porta(QWidget& sotto) : PortaGuida(sotto, *static_cast<DialogoQt*>(this)) {
            sopra(&sotto);
        }
    };
    auto* porta = new Porta(principale);
    forme.guida = [porta](int contesto) { porta->apri(contesto); };
    forme.sommario = [porta] { porta->sommario(); };
    forme.paginaGuida = [porta](const std::string& nome) { porta->apriPagina(nome); };
}

}  // namespace korven::shell
