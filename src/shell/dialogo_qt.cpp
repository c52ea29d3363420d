#include "shell/dialogo_qt.hpp"

#include <QApplication>
#include <QLayout>
#include <QPushButton>

#include "shell/form_sizes.hpp"
#include "shell/qt_text.hpp"

namespace korven::shell {

namespace {

QMessageBox::Icon iconaQt(base::Icona icona) {
    switch (icona) {
        case base::Icona::informazione:
            return QMessageBox::Information;
        case base::Icona::avviso:
            return QMessageBox::Warning;
        case base::Icona::domanda:
            return QMessageBox::Question;
        case base::Icona::stop:
            return QMessageBox::Critical;
        default:
            return QMessageBox::NoIcon;
    }
}

// Lines are parted by a carriage return, with or without a line feed, where a message says so.
QString inRighe(std::string_view testo) {
    return qt(testo).replace(QLatin1String("\r\n"), QLatin1String("\n")).replace(u'\r', u'\n');
}

// Texts are shown as they are typed: a "<" in a file name is no mark-up.
void prepara(QMessageBox& box, std::string_view testo, std::string_view titolo, base::Icona icona) {
    box.setObjectName("messaggio");
    box.setTextFormat(Qt::PlainText);
    box.setIcon(iconaQt(icona));
    box.setWindowTitle(qt(titolo));
    box.setText(inRighe(testo));
    box.setTextInteractionFlags(Qt::TextSelectableByMouse);
}

// Qt makes a box as wide as a small screen for a long path, and so its frame wider.
class Box : public QMessageBox {
 public:
    using QMessageBox::QMessageBox;

 protected:
    bool event(QEvent* evento) override {
        const bool fatto = QMessageBox::event(evento);
        const int massima = misuraMassima(*this).width();
        const bool misurato =
            evento->type() == QEvent::Show || evento->type() == QEvent::LayoutRequest;
        if (misurato && width() > massima)
            setFixedSize(massima, layout()->totalHeightForWidth(massima));
        return fatto;
    }
};

// A box waits for its user with a plain pointer, whatever the program is doing.
class PuntatorePerUnBox {
 public:
    explicit PuntatorePerUnBox(bool clessidra) : clessidra_(clessidra) {
        if (clessidra_) QApplication::setOverrideCursor(Qt::ArrowCursor);
    }
    PuntatorePerUnBox(const PuntatorePerUnBox&) = delete;
    PuntatorePerUnBox& operator=(const PuntatorePerUnBox&) = delete;
    ~PuntatorePerUnBox() {
        if (clessidra_) QApplication::restoreOverrideCursor();
    }

 private:
    bool clessidra_;
};

}  // namespace

// The main form is disabled while the viewer is open, and a window beside it may be worked in: a
// box above it would bring it to the front, in front of the window that the user is working in.
QWidget* DialogoQt::genitore() const {
    QWidget* modale = QApplication::activeModalWidget();
    if (modale != nullptr) return modale;
    if (finestra_ == nullptr || !finestra_->isVisible()) return nullptr;
    QWidget* attiva = QApplication::activeWindow();
    const bool compagna =
        attiva != nullptr && attiva->isEnabled() && attiva->parentWidget() == finestra_;
    if (finestra_->isEnabled()) return compagna ? attiva : finestra_.data();
    for (QWidget* altra : QApplication::topLevelWidgets())
        if (altra->windowType() == Qt::Window && altra->isVisible() && altra->isEnabled() &&
            altra->parentWidget() == nullptr)
            return altra;
    return finestra_;
}

void DialogoQt::messaggio(std::string_view testo, std::string_view titolo, base::Icona icona) {
    const PuntatorePerUnBox normale(clessidra_);
    Box box(genitore());
    prepara(box, testo, titolo, icona);
    box.setStandardButtons(QMessageBox::Ok);
    box.button(QMessageBox::Ok)->setText("OK");
    box.exec();
}

base::Risposta DialogoQt::domanda(std::string_view testo, std::string_view titolo,
                                  base::Pulsanti pulsanti, base::Icona icona) {
    return domandaInformata(testo, titolo, pulsanti, icona, {});
}

base::Risposta DialogoQt::domandaInformata(std::string_view testo, std::string_view titolo,
                                           base::Pulsanti pulsanti, base::Icona icona,
                                           std::string_view informazione) {
    const PuntatorePerUnBox normale(clessidra_);
    Box box(genitore());
    prepara(box, testo, titolo, icona);
    box.setInformativeText(inRighe(informazione));
    auto* si = box.addButton(tradotto("&Sì"), QMessageBox::YesRole);
    auto* no = box.addButton(tradotto("&No"), QMessageBox::NoRole);
    QPushButton* annulla = nullptr;
    if (pulsanti == base::Pulsanti::siNoAnnulla)
        annulla = box.addButton(tradotto("&Annulla"), QMessageBox::RejectRole);
    si->setObjectName("si");
    no->setObjectName("no");
    if (annulla != nullptr) annulla->setObjectName("annulla");
    // A warning asks before something is lost for good: Enter alone must not lose it.
    const bool avverte = pulsanti == base::Pulsanti::siNo && icona == base::Icona::avviso;
    box.setDefaultButton(avverte ? no : si);
    box.setEscapeButton(annulla != nullptr ? annulla : no);
    box.exec();
    if (box.clickedButton() == si) return base::Risposta::si;
    return box.clickedButton() == no ? base::Risposta::no : base::Risposta::annulla;
}

void DialogoQt::puntatore(base::Puntatore forma) {
    const bool clessidra = forma == base::Puntatore::clessidra;
    if (clessidra == clessidra_) return;
    clessidra_ = clessidra;
    if (clessidra)
        QApplication::setOverrideCursor(Qt::WaitCursor);
    else
        QApplication::restoreOverrideCursor();
}

}  // namespace korven::shell
