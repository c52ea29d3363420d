#include "shell/main/menu1.hpp"

#include <QApplication>
#include <QCloseEvent>
#include <QDragEnterEvent>
#include <QFileInfo>
#include <QKeyEvent>
#include <QLabel>
#include <QMenuBar>
#include <QMimeData>
#include <QScreen>
#include <QSessionManager>
#include <QShortcut>
#include <QStatusBar>
#include <QTimer>
#include <QToolButton>
#include <array>
#include <utility>

#include "base/colon.hpp"
#include "commands/document_names.hpp"
#include "commands/menu_tree.hpp"
#include "project/project_data.hpp"
#include "shell/form_sizes.hpp"
#include "shell/forms/elided_label.hpp"
#include "shell/icons/icon_set.hpp"
#include "shell/main/picture_frame.hpp"
#include "shell/main/wall_picture.hpp"
#include "shell/place_beside.hpp"
#include "shell/qt_text.hpp"

namespace korven::shell {

namespace {

constexpr const char* proprietaGuida = "voceGuida";

void battezza(QAction* azione, const commands::VoceMenu& voce) {
    azione->setObjectName(qt(voce.nome));
    azione->setProperty(proprietaGuida, voce.guida);
    azione->setMenuRole(QAction::NoRole);
    if (!voce.tasti.empty())
        azione->setShortcut(QKeySequence(qt(voce.tasti), QKeySequence::PortableText));
}

// Not in the menu bar, which would show it in place of the caption.
QIcon iconaDi(const commands::VoceMenu& voce) {
    const auto nome = iconaVoce(voce.nome);
    return nome.empty() ? QIcon() : icona(nome);
}

// On a small screen the whole form is to be seen, with the frame that the desktop draws around it.
QSize misuraIniziale(const QSize& schermo) {
    constexpr QSize cornice(16, 48);
    return QSize(900, 620).boundedTo(schermo - cornice);
}

// The one project among what is dragged over the form; empty if it is anything else.
std::string progettoTrascinato(const QMimeData& dati) {
    const auto indirizzi = dati.urls();
    if (indirizzi.size() != 1 || !indirizzi.first().isLocalFile()) return {};
    const QString file = indirizzi.first().toLocalFile();
    const bool progetto = QFileInfo(file).suffix().compare(qt(commands::estensioneProgetti),
                                                           Qt::CaseInsensitive) == 0;
    return progetto && QFileInfo(file).isFile() ? file.toStdString() : std::string();
}

}  // namespace

Menu1::Menu1() {
    setObjectName("menu1");
    setWindowTitle("KORVEN 32");
    cornice_ = new CorniceFigura(this);
    setCentralWidget(cornice_);
    connect(&cornice_->quadro(), &QuadroParatia::premuta, this,
            [this] { esegui(commands::voceMenu("about")); });
    stato_ = new EtichettaAccorciata(this);
    stato_->setObjectName("stato");
    stato_->mostra(tradotto("Nessun progetto aperto"));
    statusBar()->addWidget(stato_, 1);
    osservazioni_ = fareOsservazioni();
    statusBar()->addPermanentWidget(osservazioni_);
    modifiche_ = new QLabel(tradotto("Modifiche non salvate"), this);
    modifiche_->setObjectName("modifiche");
    statusBar()->addPermanentWidget(modifiche_);
    modifiche_->setVisible(project::modificato);
    setAcceptDrops(true);
    // The key for the menus on all desktops, which Qt leaves to its programs.
    connect(new QShortcut(Qt::Key_F10, this), &QShortcut::activated, this, [this] {
        if (!menuBar()->actions().isEmpty())
            menuBar()->setActiveAction(menuBar()->actions().first());
    });
    // What else does again, in many programs; the menu shows Ctrl+Y.
    connect(new QShortcut(Qt::CTRL | Qt::SHIFT | Qt::Key_Z, this), &QShortcut::activated, this,
            [this] { esegui(commands::voceMenu("ripeti")); });
    resize(misuraIniziale(screen()->availableSize()));
    setMinimumSize(480, 340);
    // Before a window manager has moved the form, since the box that greets goes over it.
    move(postoPrincipale(screen()->availableGeometry()));
    ripristinaMisure(*this);
}

QToolButton* Menu1::fareOsservazioni() {
    const QKeySequence tasti(qt(commands::voceMenu("controlli").tasti));
    auto* pulsante = new QToolButton(this);
    pulsante->setObjectName("osservazioni");
    pulsante->setAutoRaise(true);
    pulsante->setCursor(Qt::PointingHandCursor);
    pulsante->setToolTip(tradotto("Elenco delle osservazioni") + " (" +
                         tasti.toString(QKeySequence::NativeText) + ")");
    pulsante->setAccessibleDescription(pulsante->toolTip());
    pulsante->hide();
    connect(pulsante, &QToolButton::clicked, this,
            [this] { esegui(commands::voceMenu("controlli")); });
    return pulsante;
}

void Menu1::collega(commands::Programma& programma) {
    programma_ = &programma;
    costruisciMenu();
}

void Menu1::costruisciMenu() {
    menuBar()->clear();
    // The menu that takes the items of each level: the bar, then the menu opened last above it.
    std::array<QMenu*, 3> aperti{};
    for (const auto& voce : commands::albero()) {
        const auto livello = static_cast<std::size_t>(voce.livello);
        QMenu* sopra = livello == 0 ? nullptr : aperti[livello - 1];
        const QString testo = tradotto(voce.testo);
        if (sopra != nullptr && voce.staccata) sopra->addSeparator();
        if (commands::apreMenu(voce)) {
            QMenu* menu = sopra != nullptr ? sopra->addMenu(testo) : menuBar()->addMenu(testo);
            menu->installEventFilter(this);
            battezza(menu->menuAction(), voce);
            if (sopra != nullptr) menu->setIcon(iconaDi(voce));
            if (voce.riempi != nullptr)
                connect(menu, &QMenu::aboutToShow, this,
                        [this, menu, &voce] { riempi(*menu, voce.riempi(*programma_)); });
            aperti[livello] = menu;
            continue;
        }
        QAction* azione = sopra != nullptr ? sopra->addAction(testo) : menuBar()->addAction(testo);
        battezza(azione, voce);
        azione->setEnabled(programma_->puo(voce));
        if (sopra != nullptr) azione->setIcon(iconaDi(voce));
        connect(azione, &QAction::triggered, this, [this, &voce] { esegui(voce); });
        if (voce.possibile != nullptr) chiediAllApertura(*sopra, *azione, voce);
        // Its windows share the keys, but that for the help, which each has a page of its own.
        if (!voce.tasti.empty() && voce.nome != "sommario") addAction(azione);
    }
}

// The keys of an item that can't be chosen are dead: it is so while its menu is open and no longer.
void Menu1::chiediAllApertura(const QMenu& menu, QAction& azione, const commands::VoceMenu& voce) {
    connect(&menu, &QMenu::aboutToShow, &azione, [this, &azione, &voce] {
        azione.setEnabled(programma_->puo(voce) && programma_->possibile(voce));
        if (voce.cosa == nullptr) return;
        const std::string cosa = voce.cosa(*programma_);
        azione.setText(tradotto(voce.testo) + qt(cosa.empty() ? cosa : base::duePunti() + cosa));
    });
    connect(&menu, &QMenu::aboutToHide, &azione,
            [this, &azione, &voce] { azione.setEnabled(programma_->puo(voce)); });
}

void Menu1::riempi(QMenu& menu, std::vector<commands::VoceMutevole> voci) {
    menu.clear();
    for (auto& voce : voci) {
        if (voce.staccata) menu.addSeparator();
        QAction* azione = menu.addAction(qt(voce.testo));
        azione->setEnabled(static_cast<bool>(voce.scelta));
        connect(azione, &QAction::triggered, this, [this, scelta = std::move(voce.scelta)] {
            salutata_ = false;
            scelta();
            aggiorna();
        });
    }
}

void Menu1::esegui(const commands::VoceMenu& voce) {
    if (programma_ == nullptr || !programma_->puo(voce) || !programma_->possibile(voce)) return;
    salutata_ = false;  // a session that was to end goes on, and the project may change again
    const bool finisce = programma_->esegui(voce);
    aggiorna();
    if (!finisce) return;
    salutata_ = true;
    close();
}

void Menu1::editaDa(const masks::PostoCampo& posto) {
    if (programma_ == nullptr) return;
    salutata_ = false;
    programma_->editaDa(posto);
    aggiorna();
}

bool Menu1::prendi(const project::DatiProgetto& dati, const std::string& nome) {
    if (programma_ == nullptr) return false;
    salutata_ = false;
    const bool presi = programma_->prendi(dati, nome);
    aggiorna();
    return presi;
}

void Menu1::accogliFigura(QWidget* figura, QSize emblema) { cornice_->accogli(figura, emblema); }
void Menu1::mostraFigura() { cornice_->mostra(); }

void Menu1::aggiorna() {
    modifiche_->setVisible(project::modificato);
    emit aggiornata();
}

void Menu1::osservazioni(const std::string& conteggio, bool gravi) {
    QFont carattere = statusBar()->font();
    carattere.setBold(gravi);
    osservazioni_->setFont(carattere);
    osservazioni_->setText(qt(conteggio));
    osservazioni_->setAccessibleName(qt(conteggio));
    osservazioni_->setVisible(!conteggio.empty());
}

void Menu1::titolo(const std::string& testo) { setWindowTitle(qt(testo)); }
void Menu1::stato(const std::string& testo) { stato_->mostra(qt(testo)); }
void Menu1::statoInBreve(const std::string& breve, const std::string& intero) {
    stato_->mostra(qt(breve), qt(intero));
}

void Menu1::closeEvent(QCloseEvent* evento) {
    if (!salutata_ && programma_ != nullptr && !programma_->esegui(commands::voceMenu("fine"))) {
        evento->ignore();
        return;
    }
    salutata_ = true;
    ricordaMisure(*this);
    evento->accept();
}

void Menu1::fineSessione(QSessionManager& gestore) {
    const bool chiedibile = gestore.allowsInteraction();
    const bool finisce = sessioneFinisce(chiedibile);
    if (!chiedibile) return;
    gestore.release();
    if (!finisce) gestore.cancel();
}

bool Menu1::sessioneFinisce(bool chiedibile) {
    if (programma_ == nullptr) return true;
    const bool finisce = programma_->fineSessione(chiedibile);
    salutata_ = finisce && chiedibile;
    return finisce;
}

void Menu1::dragEnterEvent(QDragEnterEvent* evento) {
    // The viewer of drawings disables the form, which keeps the mouse from it but no drop.
    if (programma_ != nullptr && isEnabled() && !progettoTrascinato(*evento->mimeData()).empty())
        evento->acceptProposedAction();
}

void Menu1::dropEvent(QDropEvent* evento) {
    const std::string file = progettoTrascinato(*evento->mimeData());
    if (programma_ == nullptr || !isEnabled() || file.empty()) return;
    evento->acceptProposedAction();
    // The program that the file comes from waits for the end of the drop, not for our questions.
    QTimer::singleShot(0, this, [this, file] {
        salutata_ = false;
        programma_->documento().apri(file);
        aggiorna();
    });
}

bool Menu1::eventFilter(QObject* oggetto, QEvent* evento) {
    const auto* menu = qobject_cast<QMenu*>(oggetto);
    const bool f1 =
        evento->type() == QEvent::KeyPress && static_cast<QKeyEvent*>(evento)->key() == Qt::Key_F1;
    if (menu == nullptr || !f1 || menu->activeAction() == nullptr)
        return QMainWindow::eventFilter(oggetto, evento);
    const int voce = menu->activeAction()->property(proprietaGuida).toInt();
    while (QWidget* aperto = QApplication::activePopupWidget()) aperto->close();
    programma_->apriGuida(voce);
    return true;
}

}  // namespace korven::shell
