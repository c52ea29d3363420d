#include "desktop/random_hands.hpp"

#include <QAbstractScrollArea>
#include <QApplication>
#include <QClipboard>
#include <QFileDialog>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QMessageBox>
#include <QPushButton>
#include <QTest>
#include <QWheelEvent>
#include <QWindow>
#include <algorithm>
#include <array>
#include <utility>

namespace korven::test {

namespace {

// A name may not change with the events before it; numbers that Qt counts up would.
std::string nomeBreve(const QWidget& pezzo) {
    const std::string classe = pezzo.metaObject()->className();
    const std::string nome = pezzo.objectName().toStdString();
    return nome.empty() ? classe : classe + " " + nome;
}

QString nomeTasto(int tasto, Qt::KeyboardModifiers con) {
    return QKeySequence(QKeyCombination(con, static_cast<Qt::Key>(tasto))).toString();
}

std::string coppia(int x, int y) { return std::to_string(x) + "," + std::to_string(y); }

struct Tasto {
    int tasto;
    Qt::KeyboardModifiers con;
};

constexpr auto maiuscolo = Qt::ShiftModifier;
constexpr auto controllo = Qt::ControlModifier;

// What goes from place to place, edits, takes back and leaves.
const Tasto tastiNoti[] = {
    {Qt::Key_Tab, {}},
    {Qt::Key_Backtab, maiuscolo},
    {Qt::Key_Tab, controllo},
    {Qt::Key_Up, {}},
    {Qt::Key_Down, {}},
    {Qt::Key_Left, {}},
    {Qt::Key_Right, {}},
    {Qt::Key_Down, {}},
    {Qt::Key_Right, {}},
    {Qt::Key_Down, Qt::AltModifier},
    {Qt::Key_Left, Qt::AltModifier},
    {Qt::Key_Home, {}},
    {Qt::Key_End, {}},
    {Qt::Key_Home, controllo},
    {Qt::Key_End, controllo},
    {Qt::Key_Right, maiuscolo},
    {Qt::Key_PageUp, {}},
    {Qt::Key_PageDown, {}},
    {Qt::Key_Return, {}},
    {Qt::Key_Return, {}},
    {Qt::Key_Return, {}},
    {Qt::Key_Enter, {}},
    {Qt::Key_Space, {}},
    {Qt::Key_Escape, {}},
    {Qt::Key_Backspace, {}},
    {Qt::Key_Delete, {}},
    {Qt::Key_Insert, {}},
    {Qt::Key_Insert, maiuscolo},
    {Qt::Key_Insert, controllo},
    {Qt::Key_F1, {}},
    {Qt::Key_F2, {}},
    {Qt::Key_F3, {}},
    {Qt::Key_F4, {}},
    {Qt::Key_F10, {}},
    {Qt::Key_Z, controllo},
    {Qt::Key_Z, controllo},
    {Qt::Key_Y, controllo},
    {Qt::Key_Z, controllo | maiuscolo},
    {Qt::Key_C, controllo},
    {Qt::Key_X, controllo},
    {Qt::Key_V, controllo},
    {Qt::Key_A, controllo},
    {Qt::Key_K, controllo},
    {Qt::Key_R, controllo},
    {Qt::Key_F, controllo},
    {Qt::Key_S, controllo},
    {Qt::Key_O, controllo},
    {Qt::Key_N, controllo},
    {Qt::Key_P, controllo},
    {Qt::Key_Plus, controllo},
    {Qt::Key_Minus, controllo},
    {Qt::Key_Menu, {}},
};

bool siDigita(const QWidget* dove) {
    return dove != nullptr && (qobject_cast<const QLineEdit*>(dove) != nullptr ||
                               qobject_cast<const QAbstractScrollArea*>(dove) != nullptr);
}

// A box with nothing to type into or to choose from.
bool soloDaLasciare(const QWidget& finestra) {
    const auto visibile = [](const auto& pezzi) {
        return std::any_of(pezzi.begin(), pezzi.end(),
                           [](const auto* p) { return p->isVisible(); });
    };
    return !visibile(finestra.findChildren<QLineEdit*>()) &&
           !visibile(finestra.findChildren<QAbstractScrollArea*>());
}

bool daVedere(const QWidget& finestra) {
    return finestra.isVisible() && finestra.windowHandle() != nullptr && !finestra.size().isEmpty();
}

}  // namespace

std::string nomeDi(const QWidget& pezzo) {
    return nomeBreve(pezzo) + " in " + nomeBreve(*pezzo.window()) + " \"" +
           pezzo.window()->windowTitle().toStdString() + "\"";
}

// Steele, Lea, Flood: Fast splittable pseudorandom number generators (the mixing of SplitMix64).
std::uint64_t Caso::mescola(std::uint64_t valore) const {
    std::uint64_t x = valore + seme_ * 0x9e3779b97f4a7c15U + numero_ * 0xbf58476d1ce4e5b9U;
    x = (x ^ (x >> 30U)) * 0xbf58476d1ce4e5b9U;
    x = (x ^ (x >> 27U)) * 0x94d049bb133111ebU;
    return x ^ (x >> 31U);
}

int Caso::sotto(int n) {
    return static_cast<int>(mescola(++tiro_ * 0xd6e8feb86659fd93U) % static_cast<std::uint64_t>(n));
}

std::size_t Caso::scelto(const std::vector<std::string>& nomi) {
    std::vector<std::uint64_t> valori;
    ++tiro_;
    for (const auto& nome : nomi) {
        std::uint64_t h = 0xcbf29ce484222325U + tiro_;
        for (const char c : nome) h = (h ^ static_cast<unsigned char>(c)) * 0x100000001b3U;
        valori.push_back(mescola(h));
    }
    return static_cast<std::size_t>(std::max_element(valori.begin(), valori.end()) -
                                    valori.begin());
}

ManiACaso::ManiACaso(std::uint64_t seme, std::string cartella,
                     std::function<void(const std::string&)> annota)
    : caso(seme), cartella_(std::move(cartella)), annota_(std::move(annota)) {}

void ManiACaso::premi(int tasto, Qt::KeyboardModifiers con, const QString& testo) {
    QPointer<QWindow> dove = QGuiApplication::focusWindow();
    if (dove == nullptr) {
        QWidget* sopra = finestra();
        if (sopra == nullptr) return;
        dove = sopra->windowHandle();
        dove->requestActivate();
    }
    const QWidget* fuoco = QApplication::focusWidget();
    annota_("key " + nomeTasto(tasto, con).toStdString() + (testo.isEmpty() ? "" : " ") +
            testo.toStdString() + " to " + (fuoco != nullptr ? nomeDi(*fuoco) : "no widget"));
    qt_handleKeyEvent(dove, QEvent::KeyPress, tasto, con, testo);
    if (dove != nullptr) qt_handleKeyEvent(dove, QEvent::KeyRelease, tasto, con, testo);
}

// The window that a user can reach: the menu that is open, the modal one, else any.
QWidget* ManiACaso::finestra() {
    if (QWidget* aperto = QApplication::activePopupWidget()) return aperto;
    if (QWidget* modale = QApplication::activeModalWidget())
        if (daVedere(*modale) && !caso.unaSu(12)) return modale;
    QWidget* attiva = QApplication::activeWindow();
    if (attiva != nullptr && daVedere(*attiva) && !caso.unaSu(4)) return attiva;
    QWidgetList tutte;
    std::vector<std::string> nomi;
    for (QWidget* una : QApplication::topLevelWidgets())
        if (daVedere(*una)) {
            tutte << una;
            nomi.push_back(nomeBreve(*una));
        }
    return tutte.isEmpty() ? nullptr : tutte[static_cast<int>(caso.scelto(nomi))];
}

QWidget* ManiACaso::pezzo(QWidget& finestra) {
    QWidgetList tutti{&finestra};
    std::vector<std::string> nomi{nomeBreve(finestra)};
    std::map<std::string, int> uguali;
    for (QWidget* uno : finestra.findChildren<QWidget*>()) {
        if (uno->window() != &finestra || !uno->isVisible() || uno->visibleRegion().isEmpty())
            continue;
        tutti << uno;
        const std::string nome = nomeBreve(*uno);
        nomi.push_back(nome + " " + std::to_string(uguali[nome]++));
    }
    return tutti[static_cast<int>(caso.scelto(nomi))];
}

void ManiACaso::topoVa(QPointer<QWindow> finestra, QPoint punto, QEvent::Type tipo,
                       Qt::MouseButton bottone, Qt::MouseButtons premuti) {
    ora_ += 20;
    if (finestra == nullptr || !finestra->isVisible()) return;
    qt_handleMouseEvent(finestra, punto, finestra->mapToGlobal(punto), premuti, bottone, tipo, {},
                        ora_);
}

void ManiACaso::clic(QWidget& dove, QPoint punto, Qt::MouseButton bottone, int volte) {
    annota_((volte == 2 ? "double click " : "click ") + std::to_string(bottone) + " at " +
            coppia(punto.x(), punto.y()) + " of " + nomeDi(dove));
    ora_ += 2000;  // no double click with what was clicked before
    const QPointer<QWindow> finestra = dove.window()->windowHandle();
    const QPoint la = dove.mapTo(dove.window(), punto);
    topoVa(finestra, la, QEvent::MouseMove, Qt::NoButton, {});
    for (int n = 0; n < volte; ++n) {
        topoVa(finestra, la, QEvent::MouseButtonPress, bottone, bottone);
        topoVa(finestra, la, QEvent::MouseButtonRelease, bottone, {});
    }
}

void ManiACaso::trascina(QWidget& dove) {
    const QPointer<QWindow> finestra = dove.window()->windowHandle();
    const auto qui = [&] {
        return dove.mapTo(dove.window(),
                          QPoint(caso.sotto(dove.width()), caso.sotto(dove.height())));
    };
    const QPoint da = qui(), a = qui();
    annota_("drag from " + coppia(da.x(), da.y()) + " to " + coppia(a.x(), a.y()) + " over " +
            nomeDi(dove));
    ora_ += 2000;
    topoVa(finestra, da, QEvent::MouseButtonPress, Qt::LeftButton, Qt::LeftButton);
    for (int n = 1; n <= 4; ++n)
        topoVa(finestra, da + (a - da) * n / 4, QEvent::MouseMove, Qt::NoButton, Qt::LeftButton);
    topoVa(finestra, a, QEvent::MouseButtonRelease, Qt::LeftButton, {});
}

void ManiACaso::rotella(QWidget& dove) {
    annota_("wheel over " + nomeDi(dove));
    const QPoint punto = dove.rect().center();
    QWheelEvent giro(punto, dove.mapToGlobal(punto), {}, {0, caso.unaSu(2) ? 120 : -120}, {},
                     caso.unaSu(4) ? controllo : Qt::NoModifier, Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(&dove, &giro);
}

void ManiACaso::topo() {
    QWidget* sopra = finestra();
    if (sopra == nullptr) return;
    ++visite_[nomeBreve(*sopra)];
    QWidget& dove = *pezzo(*sopra);
    const QPoint punto(caso.sotto(dove.width()), caso.sotto(dove.height()));
    switch (caso.sotto(10)) {
        case 0:
            return clic(dove, punto, Qt::RightButton, 1);
        case 1:
        case 2:
            return clic(dove, punto, Qt::LeftButton, 2);
        case 3:
            return trascina(dove);
        case 4:
            return rotella(dove);
        default:
            return clic(dove, punto, Qt::LeftButton, 1);
    }
}

// A number as it is typed, a key that means something, or a letter with Alt or without.
void ManiACaso::tasti() {
    if (const QWidget* attiva = QApplication::activeWindow()) ++visite_[nomeBreve(*attiva)];
    const int quale = caso.sotto(10);
    if (quale < 4 || (quale < 7 && siDigita(QApplication::focusWidget()))) {
        constexpr std::string_view cifre = "0123456789..-,e";
        const char c = cifre[static_cast<std::size_t>(caso.sotto(static_cast<int>(cifre.size())))];
        return premi(QChar::fromLatin1(c).unicode(), {}, QString(QChar::fromLatin1(c)));
    }
    if (quale < 9) {
        const Tasto& t =
            tastiNoti[static_cast<std::size_t>(caso.sotto(static_cast<int>(std::size(tastiNoti))))];
        QString testo;
        if (t.con == Qt::KeyboardModifiers() && t.tasto == Qt::Key_Space) testo = " ";
        return premi(t.tasto, t.con, testo);
    }
    const char16_t lettera = static_cast<char16_t>(u'a' + caso.sotto(26));
    const bool accesso = caso.unaSu(2);
    premi(QChar(lettera).toUpper().unicode(), accesso ? Qt::AltModifier : Qt::NoModifier,
          QString(QChar(lettera)));
}

// An item of the menus as the mouse chooses it, or of the menu that is open.
void ManiACaso::menu() {
    auto* aperto = qobject_cast<QMenu*>(QApplication::activePopupWidget());
    QWidget* sopra = aperto;
    QList<QAction*> voci;
    if (aperto != nullptr) voci = aperto->actions();
    if (aperto == nullptr && QApplication::activeModalWidget() == nullptr)
        for (QWidget* una : QApplication::topLevelWidgets())
            if (auto* barra = una->findChild<QMenuBar*>();
                barra != nullptr && una->isVisible() && una->isEnabled()) {
                sopra = barra;
                voci = barra->actions();
            }
    voci.removeIf([](const QAction* v) { return v->isSeparator() || !v->isEnabled(); });
    if (voci.isEmpty()) return tasti();
    std::vector<std::string> nomi;
    for (const QAction* voce : voci)
        nomi.push_back((voce->objectName() + voce->text()).toStdString());
    QAction* voce = voci[static_cast<int>(caso.scelto(nomi))];
    const QRect dove = aperto != nullptr ? aperto->actionGeometry(voce)
                                         : qobject_cast<QMenuBar*>(sopra)->actionGeometry(voce);
    annota_("menu item \"" + voce->text().toStdString() + "\"");
    clic(*sopra, dove.center(), Qt::LeftButton, 1);
}

// Names of projects that are there and of others; never a place outside of the folder.
void ManiACaso::file(QFileDialog& dialogo) {
    if (caso.unaSu(3)) {
        annota_("no file for " + nomeDi(dialogo));
        return dialogo.reject();
    }
    const std::string nome = cartella_ + "/prova" + std::to_string(caso.sotto(4));
    annota_("file " + nome + " for " + nomeDi(dialogo));
    dialogo.setDirectory(QString::fromStdString(cartella_));
    dialogo.selectFile(QString::fromStdString(nome));
    QMetaObject::invokeMethod(&dialogo, "accept");
}

void ManiACaso::misura(QWidget& finestra) {
    const QSize nuova(300 + caso.sotto(1000), 200 + caso.sotto(800));
    annota_("size " + coppia(nuova.width(), nuova.height()) + " for " + nomeDi(finestra));
    finestra.resize(nuova);
}

// What spreadsheets and others put on the clipboard.
void ManiACaso::appunti() {
    const std::array<const char*, 6> testi = {"1\t2\t3\t4\n5\t6\t7\t8\n",
                                              "2,5\t18\t20\t30\t0\t3000\tSabbia\n",
                                              "",
                                              "abc",
                                              "1e308\t-1\tnan\n\n\n\t\t\t\n",
                                              "12"};
    const char* testo = testi[static_cast<std::size_t>(caso.sotto(static_cast<int>(testi.size())))];
    annota_(std::string("clipboard ") + testo);
    QGuiApplication::clipboard()->setText(QString::fromUtf8(testo));
    premi(Qt::Key_V, controllo);
}

// On the main form most of what there is to do is in the menus.
void ManiACaso::muovi(int numero) {
    caso.evento(numero);
    QWidget* modale = QApplication::activeModalWidget();
    if (auto* dialogo = qobject_cast<QFileDialog*>(modale)) return file(*dialogo);
    if (QApplication::activePopupWidget() != nullptr)
        return caso.sotto(10) < 6 ? menu() : caso.unaSu(2) ? topo() : tasti();
    if (modale == nullptr && caso.unaSu(3)) return menu();
    // Or most events would go to boxes.
    if (modale != nullptr && soloDaLasciare(*modale) && caso.unaSu(2))
        return premi(caso.unaSu(2) ? Qt::Key_Return : Qt::Key_Escape);
    const int quale = caso.sotto(100);
    QWidget* attiva = QApplication::activeWindow();
    if (quale < 2) return appunti();
    if (quale < 3 && attiva != nullptr) return misura(*attiva);
    if (quale < 4 && attiva != nullptr && (attiva->parentWidget() != nullptr || caso.unaSu(8))) {
        annota_("close " + nomeDi(*attiva));
        attiva->close();
        return;
    }
    return quale < 40 ? topo() : tasti();
}

bool ManiACaso::chiudiUna(const QWidget& principale, int numero) {
    caso.evento(numero);
    if (QWidget* aperto = QApplication::activePopupWidget()) {
        aperto->close();
        return true;
    }
    QWidget* modale = QApplication::activeModalWidget();
    if (auto* box = qobject_cast<QMessageBox*>(modale)) {
        annota_("leave " + nomeDi(*box));
        const auto bottoni = box->buttons();
        if (bottoni.isEmpty()) return box->close();
        // What leads out is yes here and no there.
        bottoni[caso.sotto(static_cast<int>(bottoni.size()))]->click();
        return true;
    }
    if (modale != nullptr) {
        annota_("leave " + nomeDi(*modale));
        return modale->close() || true;
    }
    for (QWidget* una : QApplication::topLevelWidgets())
        if (una != &principale && daVedere(*una)) {
            annota_("leave " + nomeDi(*una));
            una->close();
            return true;
        }
    return false;
}

}  // namespace korven::test
