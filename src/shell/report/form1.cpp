#include "shell/report/form1.hpp"

#include <QApplication>
#include <QClipboard>
#include <QCloseEvent>
#include <QFontDatabase>
#include <QFontMetricsF>
#include <QKeyEvent>
#include <QListView>
#include <QScreen>
#include <QScrollBar>
#include <QVBoxLayout>
#include <algorithm>

#include "base/files.hpp"
#include "commands/output_title.hpp"
#include "shell/form_sizes.hpp"
#include "shell/qt_text.hpp"

namespace korven::shell {

namespace {

constexpr double puntiPerPollice = 72;
constexpr double twipPerPollice = 1440;
constexpr double bordoElenco = 60;  // on each side: the list is 120 twips less than the form

constexpr int colonneProposte = 112;  // characters in the width of a window first opened

QFont fontElenco() {
    const QString voluto = QStringLiteral("Liberation Mono");
    QFont font = QFontDatabase::systemFont(QFontDatabase::FixedFont);
    if (QFontDatabase::hasFamily(voluto)) font.setFamily(voluto);
    font.setStyleHint(QFont::Monospace);
    font.setFixedPitch(true);
    font.setKerning(false);
    constexpr int corpo = 10;
    font.setPointSize(corpo);
    return font;
}

}  // namespace

Form1::Form1(QWidget* padre) : QWidget(padre, Qt::Window), elenco_(new QListView(this)) {
    setObjectName(QStringLiteral("Form1"));
    elenco_->setObjectName(QStringLiteral("List1"));
    elenco_->setAccessibleName(tradotto("&Tabulati").remove(QLatin1Char('&')));
    elenco_->setFont(fontElenco());
    elenco_->setUniformItemSizes(true);
    elenco_->setTextElideMode(Qt::ElideNone);
    elenco_->setHorizontalScrollMode(QAbstractItemView::ScrollPerPixel);
    elenco_->setSelectionMode(QAbstractItemView::ExtendedSelection);
    elenco_->setEditTriggers(QAbstractItemView::NoEditTriggers);
    righe_.impostaFont(elenco_->font());
    elenco_->setModel(&righe_);
    elenco_->installEventFilter(this);
    elenco_->viewport()->installEventFilter(this);

    auto* tutto = new QVBoxLayout(this);
    const int bordo = qRound(bordoElenco / twipPerPollice * logicalDpiX());
    tutto->setContentsMargins(bordo, bordo, bordo, bordo);
    tutto->addWidget(elenco_);
    setFocusProxy(elenco_);

    const QFontMetricsF misure(elenco_->font());
    larghezze_ = std::make_unique<markup::CharacterWidths>(
        [misure](std::string_view testo) { return misure.horizontalAdvance(qt(testo)); });
}

void Form1::mostra(const std::string& relazione) {
    if (!base::esisteFile(relazione)) return;
    apri();
    const int prima = righe_.rowCount();
    try {
        markup::previewReport(relazione, *this);
    } catch (...) {
        consegna();
        throw;
    }
    consegna();
    if (righe_.rowCount() <= prima) return;
    const QModelIndex inizio = righe_.index(prima);
    elenco_->selectionModel()->setCurrentIndex(inizio, QItemSelectionModel::NoUpdate);
    elenco_->scrollTo(inizio, QAbstractItemView::PositionAtTop);
}

void Form1::apri() {
    setWindowTitle(qt(commands::titoloUscite()));
    if (!isVisible() && !ripristinaMisure(*this)) {
        const QSize schermo = screen()->availableSize() * 9 / 10;
        const QFontMetrics misure(elenco_->font());
        const int larghezza = colonneProposte * misure.horizontalAdvance(QLatin1Char('0')) +
                              elenco_->verticalScrollBar()->sizeHint().width();
        resize(std::min(larghezza, schermo.width()), schermo.height());
    }
    show();
    raise();
    activateWindow();
    elenco_->setFocus();
}

double Form1::puntiPerPixel() const { return puntiPerPollice / logicalDpiX(); }

double Form1::windowWidth() { return width() * puntiPerPixel(); }

double Form1::textWidth(std::string_view testo) { return (*larghezze_)(testo)*puntiPerPixel(); }

void Form1::addLine(std::string_view testo) { nuove_.push_back(qt(testo)); }

// All at once: a list that is told of each line lays itself out as often.
void Form1::consegna() {
    righe_.aggiungi(nuove_);
    nuove_.clear();
    elenco_->doItemsLayout();  // the width of the widest line may be another now
}

void Form1::copia() const {
    QModelIndexList scelte = elenco_->selectionModel()->selectedIndexes();
    std::sort(scelte.begin(), scelte.end());
    QStringList testi;
    for (const QModelIndex& riga : scelte) testi << riga.data().toString();
    if (!testi.isEmpty()) QApplication::clipboard()->setText(testi.join(QLatin1Char('\n')));
}

bool Form1::eventFilter(QObject* oggetto, QEvent* evento) {
    if (oggetto == elenco_->viewport() && evento->type() == QEvent::MouseButtonDblClick) {
        close();
        return true;
    }
    // The list itself would copy the current line alone.
    if (oggetto == elenco_ && evento->type() == QEvent::KeyPress &&
        static_cast<QKeyEvent*>(evento)->matches(QKeySequence::Copy)) {
        copia();
        return true;
    }
    return QWidget::eventFilter(oggetto, evento);
}

void Form1::keyPressEvent(QKeyEvent* evento) {
    if (evento->key() == Qt::Key_Escape)
        close();
    else
        QWidget::keyPressEvent(evento);
}

void Form1::closeEvent(QCloseEvent* evento) {
    ricordaMisure(*this);
    righe_.svuota();
    evento->accept();
}

}  // namespace korven::shell
