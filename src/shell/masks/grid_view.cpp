#include "shell/masks/grid_view.hpp"

#include <QAbstractButton>
#include <QApplication>
#include <QClipboard>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPainter>
#include <QScrollBar>
#include <QStyledItemDelegate>
#include <QVBoxLayout>
#include <algorithm>
#include <optional>
#include <utility>

#include "shell/forms/key_event.hpp"
#include "shell/masks/grid_table.hpp"
#include "shell/qt_text.hpp"

namespace korven::shell {

using masks::PostoGriglia;
using masks::Tasto;

namespace {

// Of a text without room its end is shown while it is typed. A text that is selected, as after a
// box has told its fault, is marked as in a line of text: the text alone, not its whole cell.
class Cella : public QStyledItemDelegate {
 public:
    Cella(const QTableView& griglia, const masks::ModelloGriglia& modello, const bool& scrivendo,
          QObject* padre)
        : QStyledItemDelegate(padre), griglia_(griglia), modello_(modello), scrivendo_(scrivendo) {}

    void paint(QPainter* pittore, const QStyleOptionViewItem& opzione,
               const QModelIndex& indice) const override {
        if (!modello_.testoScelto() || indice != griglia_.currentIndex())
            return QStyledItemDelegate::paint(pittore, opzione, indice);
        const QPalette& tinte = opzione.palette;
        pittore->fillRect(opzione.rect, tinte.base());
        pittore->setPen(tinte.color(QPalette::Highlight));
        pittore->drawRect(opzione.rect.adjusted(0, 0, -1, -1));
        constexpr int margine = 3;
        const QRect posto = opzione.rect.adjusted(margine, 1, -margine, -1);
        const int verso = indice.data(Qt::TextAlignmentRole).toInt();
        const QString testo =
            opzione.fontMetrics.elidedText(indice.data().toString(), Qt::ElideRight, posto.width());
        pittore->fillRect(opzione.fontMetrics.boundingRect(posto, verso, testo) & posto,
                          tinte.highlight());
        pittore->setPen(tinte.color(QPalette::HighlightedText));
        pittore->drawText(posto, verso, testo);
    }

 protected:
    void initStyleOption(QStyleOptionViewItem* opzione, const QModelIndex& indice) const override {
        QStyledItemDelegate::initStyleOption(opzione, indice);
        if (scrivendo_ && indice == griglia_.currentIndex()) opzione->textElideMode = Qt::ElideLeft;
    }

 private:
    const QTableView& griglia_;
    const masks::ModelloGriglia& modello_;
    const bool& scrivendo_;
};

}  // namespace

VistaGriglia::VistaGriglia(masks::ModelloGriglia& modello, base::Dialogo& dialogo,
                           std::function<void()> cambiato, QWidget* genitore)
    : QTableView(genitore),
      modello_(modello),
      dialogo_(dialogo),
      cambiato_(std::move(cambiato)),
      tabella_(new TabellaGriglia(modello, this)),
      editore_(new QLineEdit(viewport())) {
    setObjectName(QStringLiteral("MSFlexGrid1"));
    setAccessibleName(qt(modello.titolo()));
    setModel(tabella_);
    setItemDelegate(new Cella(*this, modello, scrivendo_, this));
    setEditTriggers(NoEditTriggers);
    setSelectionMode(SingleSelection);
    setHorizontalScrollMode(ScrollPerPixel);
    setWordWrap(false);
    for (auto* testata : {horizontalHeader(), verticalHeader()})
        testata->setSectionsClickable(false);
    horizontalHeader()->setHighlightSections(true);
    verticalHeader()->setDefaultAlignment(Qt::AlignCenter);
    constexpr int aria = 8;
    verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    verticalHeader()->setDefaultSectionSize(fontMetrics().height() + aria);
    misuraColonne();
    mostraAngolo();
    editore_->setObjectName(QStringLiteral("Text1"));
    editore_->hide();
    editore_->installEventFilter(this);
    connect(editore_, &QLineEdit::textChanged, this, [this](const QString& testo) {
        modello_.scriviEditore(testo.toStdString());
        cambiato_();
    });
    connect(horizontalHeader(), &QHeaderView::sectionResized, this, [this] { mostraEditore(); });
    // Aids for those who can't see move the cursor in this way.
    connect(selectionModel(), &QItemSelectionModel::currentChanged, this,
            [this](const QModelIndex& nuovo) {
                if (nuovo.isValid()) vai(TabellaGriglia::posto(nuovo));
            });
}

// The wider of label and digits, as the model has them. The label of the current column is bold.
void VistaGriglia::misuraColonne() {
    QFont grassetto = font();
    grassetto.setBold(true);
    const QFontMetrics etichette(grassetto);
    constexpr int bordi = 6;
    const auto larghezza = [&](int colonna) {
        const auto [etichetta, cifre] = modello_.campioniLarghezza(colonna);
        return std::max(etichette.horizontalAdvance(qt(etichetta)),
                        fontMetrics().horizontalAdvance(qt(cifre))) +
               bordi;
    };
    for (int c = 1; c <= modello_.colonne(); ++c) setColumnWidth(c - 1, larghezza(c));
    verticalHeader()->setFixedWidth(larghezza(0));
    horizontalHeader()->setStretchLastSection(!modello_.numerica(modello_.colonne()));
}

// The corner holds the label of the row numbers.
void VistaGriglia::mostraAngolo() {
    auto* angolo = findChild<QAbstractButton*>();
    if (angolo == nullptr) return;
    angolo->setAttribute(Qt::WA_TransparentForMouseEvents);
    auto* etichetta = new QLabel(qt(modello_.etichetta(0)), angolo);
    etichetta->setObjectName(QStringLiteral("angolo"));
    etichetta->setAlignment(Qt::AlignCenter);
    auto* disposizione = new QVBoxLayout(angolo);
    disposizione->setContentsMargins(0, 0, 0, 0);
    disposizione->addWidget(etichetta);
}

int VistaGriglia::larghezzaColonne() const {
    return verticalHeader()->width() + horizontalHeader()->length() +
           verticalScrollBar()->sizeHint().width() + 2 * frameWidth() + 4;
}

void VistaGriglia::aggiorna() {
    tabella_->cambiate();
    const QModelIndex corrente = tabella_->indice(modello_.corrente());
    setCurrentIndex(corrente);
    scrollTo(corrente);
    // Before the editor is hidden: a control that goes with the focus hands it on like a Tab key.
    if (!modello_.editoreAperto()) setFocus();
    mostraEditore();
    if (modello_.editoreAperto()) editore_->setFocus();
    cambiato_();
}

void VistaGriglia::mostraEditore() {
    editore_->setVisible(modello_.editoreAperto());
    if (!modello_.editoreAperto()) return;
    const PostoGriglia posto = modello_.corrente();
    editore_->setGeometry(visualRect(tabella_->indice(posto)));
    editore_->setAlignment(modello_.numerica(posto.colonna) ? Qt::AlignRight : Qt::AlignLeft);
    editore_->setAccessibleName(qt(modello_.etichetta(posto.colonna)));
    if (editore_->text() != qt(modello_.testoEditore()))
        editore_->setText(qt(modello_.testoEditore()));
}

void VistaGriglia::annulla() {
    modello_.annulla();
    scrivendo_ = false;
    aggiorna();
}

void VistaGriglia::ripeti() {
    modello_.ripeti();
    scrivendo_ = false;
    aggiorna();
}

void VistaGriglia::vai(PostoGriglia posto) {
    if (posto == modello_.corrente()) return;
    scrivendo_ = false;
    modello_.vaiA(posto, dialogo_);
    aggiorna();
}

void VistaGriglia::premi(Tasto tasto, const QString& testo) {
    const PostoGriglia prima = modello_.corrente();
    modello_.premi(tasto, testo.toStdString(), dialogo_);
    scrivendo_ = tasto != Tasto::esc && modello_.corrente() == prima;
    aggiorna();
}

bool VistaGriglia::appunti(const QKeyEvent& evento) {
    if (evento.matches(QKeySequence::Copy)) {
        QApplication::clipboard()->setText(qt(modello_.copia()));
        return true;
    }
    if (!evento.matches(QKeySequence::Paste)) return false;
    modello_.incolla(QApplication::clipboard()->text().toStdString(), dialogo_);
    aggiorna();
    return true;
}

bool VistaGriglia::sposta(const QKeyEvent& evento) {
    const bool ctrl = evento.modifiers().testFlag(Qt::ControlModifier);
    const PostoGriglia qui = modello_.corrente();
    switch (evento.key()) {
        case Qt::Key_Tab:
        case Qt::Key_Backtab: {
            const bool avanti = evento.key() == Qt::Key_Tab;
            // Out of the table: its own way would lead to the next cell.
            // NOLINTNEXTLINE(bugprone-parent-virtual-call)
            if (ctrl) return QWidget::focusNextPrevChild(avanti);
            avanti ? modello_.avanza(dialogo_) : modello_.arretra(dialogo_);
            aggiorna();
            return true;
        }
        case Qt::Key_Home:
            vai(ctrl ? PostoGriglia{} : PostoGriglia{qui.riga, 1});
            return true;
        case Qt::Key_End:
            vai(ctrl ? modello_.fine() : PostoGriglia{qui.riga, modello_.colonne()});
            return true;
        case Qt::Key_PageUp:
            vai(TabellaGriglia::posto(moveCursor(MovePageUp, Qt::NoModifier)));
            return true;
        case Qt::Key_PageDown:
            vai(TabellaGriglia::posto(moveCursor(MovePageDown, Qt::NoModifier)));
            return true;
        default:
            return false;
    }
}

void VistaGriglia::keyPressEvent(QKeyEvent* evento) {
    evento->accept();
    if (appunti(*evento) || sposta(*evento)) return;
    auto tasto = tastoDi(*evento);
    if (!tasto || *tasto == Tasto::f1) return evento->ignore();
    if (virgolaDelTastierino(*evento) && !modello_.numerica(modello_.corrente().colonna))
        tasto = Tasto::carattere;
    premi(*tasto, evento->text());
}

// Accents typed by dead keys come this way, and whatever an input method composes.
void VistaGriglia::inputMethodEvent(QInputMethodEvent* evento) {
    const QString testo = evento->commitString();
    if (!testo.isEmpty())
        premi(testo == QLatin1String(".") ? Tasto::punto : Tasto::carattere, testo);
    evento->accept();
}

// The cursor is moved by the model alone: what the view would do by itself selects without asking.
void VistaGriglia::mousePressEvent(QMouseEvent* evento) {
    const QModelIndex indice = indexAt(evento->position().toPoint());
    if (evento->button() != Qt::LeftButton || !indice.isValid()) return;
    if (TabellaGriglia::posto(indice) == modello_.corrente() && modello_.editoreAperto()) return;
    vai(TabellaGriglia::posto(indice));
}

void VistaGriglia::mouseDoubleClickEvent(QMouseEvent* evento) {
    const QModelIndex indice = indexAt(evento->position().toPoint());
    if (evento->button() != Qt::LeftButton || !indice.isValid()) return;
    if (TabellaGriglia::posto(indice) != modello_.corrente())
        return;  // the first click could not leave the cell
    modello_.apriEditore();
    aggiorna();
}

void VistaGriglia::mouseMoveEvent(QMouseEvent*) {}

void VistaGriglia::mouseReleaseEvent(QMouseEvent*) {}

bool VistaGriglia::premiNellEditore(const QKeyEvent& evento) {
    if (evento.key() == Qt::Key_Tab || evento.key() == Qt::Key_Backtab) return sposta(evento);
    const auto tasto = tastoDi(evento);
    if (!tasto) return false;
    if (*tasto == Tasto::invio || *tasto == Tasto::esc) {
        premi(*tasto, {});
        return true;
    }
    if (!virgolaDelTastierino(evento) || !modello_.numerica(modello_.corrente().colonna))
        return false;
    editore_->insert(QStringLiteral("."));
    return true;
}

bool VistaGriglia::eventFilter(QObject* oggetto, QEvent* evento) {
    if (oggetto == editore_ && evento->type() == QEvent::KeyPress &&
        premiNellEditore(*static_cast<QKeyEvent*>(evento)))
        return true;
    return QTableView::eventFilter(oggetto, evento);
}

}  // namespace korven::shell
