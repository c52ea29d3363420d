#include "shell/tables/table_view.hpp"

#include <QClipboard>
#include <QContextMenuEvent>
#include <QGuiApplication>
#include <QHeaderView>
#include <QKeyEvent>
#include <QMenu>
#include <QMimeData>
#include <QPainter>
#include <QScopedValueRollback>
#include <algorithm>
#include <numeric>
#include <set>
#include <utility>

#include "shell/qt_text.hpp"
#include "shell/tables/bar_delegate.hpp"
#include "shell/wrapped_text.hpp"
#include "tables/table_text.hpp"

namespace korven::shell {

namespace {

constexpr int margine = 14;           // beside the text of a cell [px]
constexpr int larghezzaBarre = 70;    // of a column with bars at least [px]
constexpr int larghezzaParole = 360;  // of a column of words at most [px]
constexpr int paroleStrette = 150;    // of one that goes into several lines at least [px]

// The widest text of a column, near enough by its length.
QString piuLungo(const ModelloProspetto& modello, int colonna) {
    const std::string* lungo = nullptr;
    for (const auto& riga : modello.prospetto().righe) {
        const std::string& testo = riga[static_cast<std::size_t>(colonna)].testo;
        if (lungo == nullptr || testo.size() > lungo->size()) lungo = &testo;
    }
    return lungo == nullptr ? QString() : qt(*lungo);
}

bool haBarre(const ModelloProspetto& modello, int colonna) {
    const auto& righe = modello.prospetto().righe;
    return std::any_of(righe.begin(), righe.end(), [=](const auto& riga) {
        return riga[static_cast<std::size_t>(colonna)].barra.has_value();
    });
}

QFont grassetto(QFont carattere) {
    carattere.setBold(true);
    return carattere;
}

}  // namespace

QString insieme(const std::vector<std::string>& frasi) {
    QStringList righe;
    for (const std::string& frase : frasi) righe << qt(frase);
    return righe.join(QLatin1Char('\n'));
}

VistaProspetto::VistaProspetto(const QString& nome, QWidget* padre)
    : QTableView(padre), modello_(new ModelloProspetto(this)) {
    setObjectName(nome);
    setModel(modello_);
    setItemDelegate(new DelegatoBarre(this));
    setAlternatingRowColors(true);
    setTabKeyNavigation(false);  // Tab leaves the table
    setHorizontalScrollMode(ScrollPerPixel);
    verticalHeader()->hide();
    verticalHeader()->setDefaultSectionSize(fontMetrics().height() + 6);
    horizontalHeader()->setHighlightSections(false);
    horizontalHeader()->setSortIndicator(-1, Qt::AscendingOrder);
    horizontalHeader()->setSortIndicatorClearable(true);
    setSortingEnabled(true);
    connect(horizontalHeader(), &QHeaderView::sectionResized, this,
            [this](int colonna, int, int larghezza) { tieni(colonna, larghezza); });
    connect(horizontalHeader(), &QHeaderView::sortIndicatorChanged, this, [this] {
        if (misura(false)) adatta();
    });
}

// A last one of words takes what is left of the window.
void VistaProspetto::tieni(int colonna, int larghezza) {
    if (dispone_ || larghezza == 0) return;
    if (horizontalHeader()->stretchLastSection() && colonna + 1 == modello_->columnCount()) return;
    tenute_[colonna] = larghezza;
    if (wordWrap()) resizeRowsToContents();
}

void VistaProspetto::mostra(tables::Prospetto prospetto) {
    if (!prospetto.titolo.empty()) setAccessibleName(qt(prospetto.titolo));
    setAccessibleDescription(prospetto.righe.empty() ? insieme(prospetto.note) : QString());
    const bool altra = prospetto.colonne != modello_->prospetto().colonne;
    {
        const QScopedValueRollback<bool> durante(dispone_, true);
        modello_->mostra(std::move(prospetto));
        // Numbers far from those beside them can't be read along their row.
        const auto& colonne = modello_->prospetto().colonne;
        horizontalHeader()->setStretchLastSection(!colonne.empty() && !colonne.back().numerica);
    }
    if (misura(altra))
        adatta();
    else if (wordWrap())
        resizeRowsToContents();
    viewport()->update();
}

int VistaProspetto::freccia(int colonna) const {
    if (colonna != horizontalHeader()->sortIndicatorSection()) return 0;
    return style()->pixelMetric(QStyle::PM_HeaderMarkSize, nullptr, this);
}

tables::LarghezzaTesto VistaProspetto::larghezzaTesta() const {
    // In bold letters, as some desktops write them, a head may use the room beside it.
    return [misure = QFontMetrics(horizontalHeader()->font()),
            grasse = QFontMetrics(grassetto(horizontalHeader()->font()))](std::string_view testo) {
        return std::max(misure.horizontalAdvance(qt(testo)),
                        grasse.horizontalAdvance(qt(testo)) + 2 - margine);
    };
}

// Columns only grow while the table is the same: they would dance with every key otherwise.
bool VistaProspetto::misura(bool altra) {
    const std::vector<int> prima = larghezze_, primaStrette = strette_;
    if (altra) {
        larghezze_.clear();
        strette_.clear();
        tenute_.clear();
    }
    larghezze_.resize(static_cast<std::size_t>(modello_->columnCount()));
    strette_.resize(larghezze_.size());
    const auto larga = larghezzaTesta();
    const QFontMetrics misure(grassetto(font()));
    for (int c = 0; c < modello_->columnCount(); ++c) {
        const auto i = static_cast<std::size_t>(c);
        const tables::Colonna& colonna = modello_->prospetto().colonne[i];
        const int celle =
            std::max(std::min(misure.horizontalAdvance(piuLungo(*modello_, c)), larghezzaParole),
                     haBarre(*modello_, c) ? larghezzaBarre : 0);
        const auto almeno = [&](int& larghezza, int testa) {
            larghezza = std::max(larghezza, std::max(testa + freccia(c), celle) + margine);
        };
        almeno(larghezze_[i], larga(colonna.testa()));
        almeno(strette_[i], tables::larghezzaMinimaTesta(colonna, larga));
    }
    return altra || larghezze_ != prima || strette_ != primaStrette;
}

// What is missing in width is taken from the heads, which are broken into lines, and then from the
// words, which have the height of rows instead or, without `wordWrap`, their tool tip.
std::vector<int> VistaProspetto::ripartite() const {
    std::vector<int> volute = larghezze_;
    for (const auto& [colonna, tenuta] : tenute_)
        volute[static_cast<std::size_t>(colonna)] = tenuta;
    const auto mancano = [&] {
        return std::accumulate(volute.begin(), volute.end(), 0) - viewport()->width();
    };
    std::vector<int> cede(volute.size());
    for (std::size_t c = 0; c < volute.size(); ++c)
        if (!tenute_.contains(static_cast<int>(c))) cede[c] = larghezze_[c] - strette_[c];
    if (const int manca = mancano(), tutto = std::accumulate(cede.begin(), cede.end(), 0);
        manca > 0 && tutto > 0)
        for (std::size_t c = 0; c < volute.size(); ++c)
            volute[c] -= manca >= tutto ? cede[c] : (cede[c] * manca + tutto - 1) / tutto;
    int manca = mancano();
    for (std::size_t c = volute.size(); c-- > 0;) {
        if (tenute_.contains(static_cast<int>(c)) || manca <= 0 ||
            modello_->prospetto().colonne[c].numerica)
            continue;
        const int larga = volute[c];
        const int testa = larghezzaMinimaTesta(modello_->prospetto().colonne[c], larghezzaTesta()) +
                          freccia(static_cast<int>(c)) + margine;
        volute[c] =
            std::clamp(larga - manca, std::min(std::max(paroleStrette, testa), larga), larga);
        manca -= larga - volute[c];
    }
    return volute;
}

void VistaProspetto::adatta() {
    // A scroll bar that comes or goes asks before the new columns are measured.
    if (larghezze_.size() != modello_->prospetto().colonne.size()) return;
    const QScopedValueRollback<bool> durante(dispone_, true);
    const std::vector<int> volute = ripartite();
    for (std::size_t c = 0; c < volute.size(); ++c) setColumnWidth(static_cast<int>(c), volute[c]);
    spezzaTeste();
    if (wordWrap()) resizeRowsToContents();
}

// As wide as they are now, the last one included, which may take what is left of the window.
void VistaProspetto::spezzaTeste() {
    QStringList teste;
    for (int c = 0; c < modello_->columnCount(); ++c)
        teste << qt(tables::testaInRighe(modello_->prospetto().colonne[static_cast<std::size_t>(c)],
                                         columnWidth(c) - margine - freccia(c), larghezzaTesta()));
    modello_->mostraTeste(std::move(teste));
    updateGeometries();
}

void VistaProspetto::resizeEvent(QResizeEvent* evento) {
    {
        const QScopedValueRollback<bool> durante(dispone_, true);
        QTableView::resizeEvent(evento);
    }
    adatta();
}

void VistaProspetto::paintEvent(QPaintEvent* evento) {
    QTableView::paintEvent(evento);
    if (modello_->rowCount() > 0) return;
    const auto& note = modello_->prospetto().note;
    QPainter(viewport())
        .drawText(
            viewport()->rect().adjusted(margine, margine, -margine, -margine),
            Qt::AlignTop | (note.size() > 1 ? Qt::AlignLeft : Qt::AlignHCenter) | Qt::TextWordWrap,
            inRighe(insieme(note)));
}

QMimeData* VistaProspetto::copiato() const {
    std::set<int> righe, colonne;
    for (const QModelIndex& uno : selectionModel()->selectedIndexes()) {
        righe.insert(uno.row());
        colonne.insert(uno.column());
    }
    const bool tutto = righe.size() * colonne.size() <= 1;
    std::vector<std::size_t> qualiRighe, qualiColonne;
    for (int r = 0; r < modello_->rowCount(); ++r)
        if (tutto || righe.contains(r)) qualiRighe.push_back(modello_->riga(r));
    for (int c = 0; c < modello_->columnCount(); ++c)
        if (tutto || colonne.contains(c)) qualiColonne.push_back(static_cast<std::size_t>(c));
    auto* dati = new QMimeData;
    const tables::Parte parte{qualiRighe, qualiColonne};
    dati->setText(qt(testoTabulato(modello_->prospetto(), parte)));
    dati->setHtml(qt(testoHtml(modello_->prospetto(), parte)));
    return dati;
}

void VistaProspetto::copia() const {
    if (modello_->columnCount() > 0) QGuiApplication::clipboard()->setMimeData(copiato());
}

void VistaProspetto::keyPressEvent(QKeyEvent* evento) {
    if (evento->matches(QKeySequence::Copy)) return copia();
    QTableView::keyPressEvent(evento);
}

void VistaProspetto::contextMenuEvent(QContextMenuEvent* evento) {
    QMenu menu(this);
    const auto voce = [&](const char* testo, const QKeySequence& tasto, auto azione) {
        auto* fatta = menu.addAction(tradotto(testo), this, azione);
        fatta->setShortcut(tasto);
    };
    voce("C&opia", QKeySequence::Copy, [this] { copia(); });
    voce("Seleziona &tutto", QKeySequence::SelectAll, [this] { selectAll(); });
    menu.addSeparator();
    const int colonna = std::max(currentIndex().column(), 0);
    voce("Ordina cr&escente", {}, [=, this] { sortByColumn(colonna, Qt::AscendingOrder); });
    voce("Ordina &decrescente", {}, [=, this] { sortByColumn(colonna, Qt::DescendingOrder); });
    voce("Ordine o&riginale", {}, [this] { sortByColumn(-1, Qt::AscendingOrder); });
    const QPoint dove = evento->reason() == QContextMenuEvent::Keyboard
                            ? viewport()->mapToGlobal(visualRect(currentIndex()).bottomLeft())
                            : evento->globalPos();
    menu.exec(dove);
}

}  // namespace korven::shell
