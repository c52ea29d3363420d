#include "shell/panels/section_panel.hpp"

#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QScrollBar>
#include <QTabWidget>
#include <QTableWidget>
#include <QVBoxLayout>
#include <algorithm>
#include <utility>

#include "base/translated_texts.hpp"
#include "live/section_checks.hpp"
#include "profiles/catalogue.hpp"
#include "shell/live/live_view.hpp"
#include "shell/panels/domain_view.hpp"
#include "shell/panels/profile_chooser.hpp"
#include "shell/panels/profile_entry.hpp"
#include "shell/qt_text.hpp"

namespace korven::shell {

namespace {

QTableWidget* fareTabella(const char* nome, QWidget* padre) {
    auto* tabella = new QTableWidget(padre);
    tabella->setObjectName(QLatin1String(nome));
    tabella->setEditTriggers(QAbstractItemView::NoEditTriggers);
    tabella->setTabKeyNavigation(false);  // Tab leaves the table
    tabella->setWordWrap(false);
    tabella->setHorizontalScrollMode(QAbstractItemView::ScrollPerPixel);
    tabella->verticalHeader()->hide();
    tabella->verticalHeader()->setDefaultSectionSize(tabella->fontMetrics().height() + 6);
    tabella->horizontalHeader()->setHighlightSections(false);
    return tabella;
}

QTableWidgetItem* fareCella(const tables::Cella& cella, const tables::Colonna& colonna) {
    auto* fatta = new QTableWidgetItem(qt(cella.testo));
    fatta->setTextAlignment((colonna.numerica ? Qt::AlignRight : Qt::AlignLeft) | Qt::AlignVCenter);
    if (!cella.peso) return fatta;
    QFont grassetto = fatta->font();
    grassetto.setBold(true);
    fatta->setFont(grassetto);
    return fatta;
}

// A column is as wide as its head and its cells, in bold as a failed check is.
void allarga(QTableWidget& tabella) {
    QFont grassetto = tabella.font();
    grassetto.setBold(true);
    const QFontMetrics misure(grassetto);
    constexpr int margine = 14;
    for (int c = 0; c < tabella.columnCount(); ++c) {
        int serve = misure.horizontalAdvance(tabella.horizontalHeaderItem(c)->text());
        for (int r = 0; r < tabella.rowCount(); ++r)
            serve = std::max(serve, misure.horizontalAdvance(tabella.item(r, c)->text()));
        // Columns only grow: they would dance with every key otherwise.
        tabella.setColumnWidth(c, std::max(serve + margine, tabella.columnWidth(c)));
    }
}

void riempi(QTableWidget& tabella, const tables::Prospetto& p) {
    const auto colonne = static_cast<int>(p.colonne.size());
    if (tabella.columnCount() != colonne) {
        tabella.setColumnCount(colonne);
        for (int c = 0; c < colonne; ++c) {
            const auto& colonna = p.colonne[static_cast<std::size_t>(c)];
            auto* testa = new QTableWidgetItem(qt(colonna.testa()));
            testa->setToolTip(qt(colonna.spiegazione));
            tabella.setHorizontalHeaderItem(c, testa);
            tabella.setColumnWidth(c, 0);
        }
    }
    tabella.setAccessibleName(qt(p.titolo));
    tabella.setRowCount(static_cast<int>(p.righe.size()));
    for (int r = 0; r < tabella.rowCount(); ++r)
        for (int c = 0; c < colonne; ++c)
            tabella.setItem(
                r, c,
                fareCella(p.righe[static_cast<std::size_t>(r)][static_cast<std::size_t>(c)],
                          p.colonne[static_cast<std::size_t>(c)]));
    allarga(tabella);
}

QLabel* fareEtichetta(const char* nome, QWidget* padre) {
    auto* etichetta = new QLabel(padre);
    etichetta->setObjectName(QLatin1String(nome));
    etichetta->setTextFormat(Qt::PlainText);
    etichetta->setWordWrap(true);
    return etichetta;
}

QPushButton* farePulsante(const char* nome, const QString& testo, const QString& suggerimento,
                          QWidget* padre) {
    auto* fatto = new QPushButton(testo, padre);
    fatto->setObjectName(QLatin1String(nome));
    fatto->setToolTip(suggerimento);
    fatto->setAutoDefault(false);  // Enter confirms the form
    return fatto;
}

}  // namespace

PannelloSezione::PannelloSezione(DefinEJ& forma, VitaProgetto& vita, base::Dialogo& dialogo)
    : QWidget(&forma), forma_(forma), vita_(vita), dialogo_(dialogo) {
    setObjectName(QStringLiteral("PannelloSezione"));
    valori_ = fareEtichetta("valori", this);
    verifiche_ = fareTabella("verifiche", this);
    origine_ = fareEtichetta("origine", this);
    auto* quadri = new QTabWidget(this);
    quadri->setObjectName(QStringLiteral("quadri"));
    quadri->setAccessibleName(tradotto("Dominio N–M"));
    dominio_ = new VistaDominio(quadri);
    fasi_ = fareTabella("fasi", quadri);
    quadri->addTab(dominio_, tradotto("Dominio N–M"));
    quadri->addTab(fasi_, tradotto("Fasi"));
    auto* catalogo =
        farePulsante("catalogo", tradotto("Ca&talogo..."),
                     tradotto("Ferri, tubi e profili propri che riempiono i campi"), this);
    auto* aggiungi = farePulsante("aggiungi", tradotto("A&ggiungi al catalogo..."),
                                  tradotto("Tiene le misure scritte per altri progetti"), this);
    auto* colonna = new QVBoxLayout(this);
    colonna->setContentsMargins(0, 0, 0, 0);
    colonna->addWidget(valori_);
    colonna->addWidget(verifiche_);
    colonna->addWidget(origine_);
    colonna->addWidget(quadri, 1);
    // One below the other: on a small screen the panel is narrow.
    colonna->addWidget(catalogo);
    colonna->addWidget(aggiungi);
    // All rows that there can be: the picture below would jump with the stirrups otherwise.
    constexpr int righe = 4;
    verifiche_->setFixedHeight(verifiche_->horizontalHeader()->sizeHint().height() +
                               righe * verifiche_->verticalHeader()->defaultSectionSize() +
                               verifiche_->horizontalScrollBar()->sizeHint().height() + 12);
    connect(catalogo, &QPushButton::clicked, this, [this] { scegliProfilo(); });
    connect(aggiungi, &QPushButton::clicked, this, [this] { aggiungiProfilo(); });
    connect(&vita_, &VitaProgetto::cambiata, this, [this] { mostra(); });
    mostra();
}

void PannelloSezione::mostra() {
    const live::ProgettoVivo& vivo = vita_.vivo();
    if (!vivo.aperto()) return;
    const auto* lenti = vivo.lenti();
    const safety::Margine* margine =
        lenti != nullptr && lenti->margine ? &*lenti->margine : nullptr;
    const auto quadro = tables::quadroSezione(vivo.dati(), vivo.parete(), margine);
    QStringList righe;
    for (const auto& riga : quadro.righe) righe << qt(riga);
    valori_->setText(righe.join(QLatin1Char('\n')));
    riempi(*verifiche_, quadro.verifiche);
    QStringList note;
    for (const auto& nota : quadro.verifiche.note) note << qt(nota);
    origine_->setText(note.join(QLatin1Char('\n')));
    const bool calcolabile = live::sezioneCalcolabile(vivo.dati().sezione);
    auto dominio = lenti != nullptr ? lenti->dominio : dominio_->dominio();
    if (!calcolabile) dominio.clear();
    riempi(*fasi_, tables::prospettoDominio(vivo.parete(), margine, dominio));
    dominio_->mostra(std::move(dominio), live::fasiNelDominio(vivo.parete(), margine),
                     calcolabile ? "..." : base::traduttore("Sezione non definita."));
}

void PannelloSezione::scegliProfilo() {
    ScegliProfilo scelta(forma_.tipo(), forma_.letta(), forma_.campo(), dialogo_, this);
    if (scelta.exec() != QDialog::Accepted) return;
    forma_.prendi(base::traduttore("profilo dal catalogo"), scelta.testi());
}

void PannelloSezione::aggiungiProfilo() {
    if (profiles::profiloDi(forma_.tipo(), forma_.letta(), false).misure.empty()) {
        dialogo_.messaggio(
            base::traduttore("Non ci sono misure da tenere: i campi sono vuoti o 0."),
            base::traduttore("ATTENZIONE") + "!", base::Icona::avviso);
        return;
    }
    NuovoProfilo(forma_.tipo(), forma_.letta(), this).exec();
}

PannelloAccanto pannelloSezione(VitaProgetto& vita, base::Dialogo& dialogo) {
    return [&vita, &dialogo](DefinEJ& forma) -> QWidget* {
        return new PannelloSezione(forma, vita, dialogo);
    };
}

}  // namespace korven::shell
