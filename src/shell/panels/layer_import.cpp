#include "shell/panels/layer_import.hpp"

#include <QCheckBox>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTableWidget>
#include <QVBoxLayout>
#include <utility>

#include "base/colon.hpp"
#include "base/translated_texts.hpp"
#include "exchange/layer_columns.hpp"
#include "masks/needed_cells.hpp"
#include "project/project_data.hpp"
#include "shell/form_sizes.hpp"
#include "shell/qt_text.hpp"

namespace korven::shell {

namespace {

constexpr QSize misuraComoda(820, 540);
constexpr int righeMessaggi = 6;

// Which the list of ways to say where the head is has at which place.
constexpr exchange::TestaAlForo::Modo modi[] = {exchange::TestaAlForo::Modo::profondita,
                                                exchange::TestaAlForo::Modo::quota};

QLabel* etichetta(const QString& testo, QWidget* di) {
    auto* fatta = new QLabel(testo, di->parentWidget());
    fatta->setBuddy(di);
    return fatta;
}

}  // namespace

ImportaStrati::ImportaStrati(exchange::FileStrati file, exchange::RigheStrati presenti,
                             const QString& nome, QWidget* padre)
    : QDialog(padre), file_(std::move(file)), presenti_(std::move(presenti)) {
    setObjectName(QStringLiteral("ImportaStrati"));
    setWindowTitle(tradotto("Importazione degli strati") + " - " + nome);
    auto* colonna = new QVBoxLayout(this);
    if (file_.ags()) colonna->addWidget(fareForo());
    colonna->addWidget(fareScelte());
    colonna->addWidget(fareTabella(), 1);
    messaggi_ = new QPlainTextEdit(this);
    messaggi_->setObjectName(QStringLiteral("messaggi"));
    messaggi_->setAccessibleName(tradotto("Messaggi"));
    messaggi_->setReadOnly(true);
    messaggi_->setTabChangesFocus(true);
    messaggi_->setFixedHeight(fontMetrics().lineSpacing() * righeMessaggi);
    colonna->addWidget(messaggi_);
    auto* pulsanti = new QDialogButtonBox(this);
    importa_ = pulsanti->addButton(tradotto("&Importa"), QDialogButtonBox::AcceptRole);
    importa_->setObjectName(QStringLiteral("importa"));
    auto* annulla = pulsanti->addButton(tradotto("&Annulla"), QDialogButtonBox::RejectRole);
    annulla->setObjectName(QStringLiteral("annulla"));
    connect(pulsanti, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(pulsanti, &QDialogButtonBox::rejected, this, &QDialog::reject);
    colonna->addWidget(pulsanti);
    prendiMisura(*this, misuraComoda.expandedTo(sizeHint()));
    leggi();
}

void ImportaStrati::done(int esito) {
    ricordaMisure(*this);
    QDialog::done(esito);
}

QWidget* ImportaStrati::fareForo() {
    auto* parte = new QWidget(this);
    auto* riga = new QHBoxLayout(parte);
    riga->setContentsMargins(0, 0, 0, 0);
    foro_ = new QComboBox(parte);
    foro_->setObjectName(QStringLiteral("foro"));
    for (const auto& foro : file_.fori())
        foro_->addItem(foro.quota.empty()
                           ? qt(foro.nome)
                           : qt(foro.nome) + QStringLiteral(" (%1 m)").arg(qt(foro.quota)));
    modo_ = new QComboBox(parte);
    modo_->setObjectName(QStringLiteral("modo"));
    modo_->addItem(tradotto("profondità sotto il terreno del foro [m]"));
    modo_->addItem(tradotto("quota [m]"));
    testa_ = new QLineEdit(QStringLiteral("0"), parte);
    testa_->setObjectName(QStringLiteral("testa"));
    testa_->setAccessibleName(tradotto("Testa della paratia: valore"));
    riga->addWidget(etichetta(tradotto("&Foro:"), foro_));
    riga->addWidget(foro_);
    riga->addSpacing(fontMetrics().averageCharWidth() * 2);
    riga->addWidget(etichetta(tradotto("&Testa della paratia:"), modo_));
    riga->addWidget(modo_);
    riga->addWidget(testa_, 1);
    connect(foro_, &QComboBox::currentIndexChanged, this, [this] { leggi(); });
    connect(modo_, &QComboBox::currentIndexChanged, this, [this] { leggi(); });
    connect(testa_, &QLineEdit::textChanged, this, [this] { leggi(); });
    return parte;
}

QWidget* ImportaStrati::fareScelte() {
    auto* parte = new QWidget(this);
    auto* colonna = new QVBoxLayout(parte);
    colonna->setContentsMargins(0, 0, 0, 0);
    tieniValori_ = new QCheckBox(
        tradotto("Dove il file non ha &valori, tieni quelli che la tabella ha a quella profondità"),
        parte);
    tieniValori_->setObjectName(QStringLiteral("tieniValori"));
    mettiCodice_ = new QCheckBox(
        tradotto("&Metti il codice 0 (nessuna campitura) davanti alle descrizioni senza codice"),
        parte);
    mettiCodice_->setObjectName(QStringLiteral("mettiCodice"));
    mettiCodice_->setEnabled(false);  // until there is a description without
    colonna->addWidget(tieniValori_);
    colonna->addWidget(mettiCodice_);
    connect(tieniValori_, &QCheckBox::toggled, this, [this] { prepara(); });
    connect(mettiCodice_, &QCheckBox::toggled, this, [this] { prepara(); });
    return parte;
}

QWidget* ImportaStrati::fareTabella() {
    tabella_ = new QTableWidget(0, exchange::numeroColonne, this);
    tabella_->setObjectName(QStringLiteral("strati"));
    tabella_->setAccessibleName(tradotto("Strati come saranno nella tabella"));
    tabella_->setEditTriggers(QAbstractItemView::NoEditTriggers);
    tabella_->setTabKeyNavigation(false);
    tabella_->setWordWrap(false);
    QStringList nomi;
    for (std::size_t c = 0; c < exchange::numeroColonne; ++c)
        nomi << qt(exchange::nomeColonna(static_cast<exchange::Colonna>(c)));
    tabella_->setHorizontalHeaderLabels(nomi);
    tabella_->horizontalHeader()->setStretchLastSection(true);
    return tabella_;
}

void ImportaStrati::leggi() {
    if (file_.ags()) {
        const std::string testa = testa_->text().trimmed().toStdString();
        const auto modo = modi[std::max(modo_->currentIndex(), 0)];
        letti_ = file_.strati(static_cast<std::size_t>(std::max(foro_->currentIndex(), 0)),
                              {modo, testa});
    } else {
        letti_ = file_.strati();
    }
    tieniValori_->setEnabled(letti_.assenti.any() && !presenti_.empty());
    const bool senza = exchange::mancanoCodici(letti_.righe);
    if (senza && !mettiCodice_->isEnabled()) mettiCodice_->setChecked(!letti_.descrizioniConCodice);
    mettiCodice_->setEnabled(senza);
    prepara();
}

void ImportaStrati::prepara() {
    importo_ = exchange::preparaRighe(
        letti_, presenti_,
        {.tieniValori = tieniValori_->isEnabled() && tieniValori_->isChecked(),
         .mettiCodice = mettiCodice_->isEnabled() && mettiCodice_->isChecked(),
         .serveKs = masks::cellaNecessaria(masks::NumeroMaschera::strati,
                                           static_cast<int>(exchange::ks) + 1, project::Progetto)});
    mostraRighe();
    mostraMessaggi();
    importa_->setEnabled(letti_.riuscita());
}

void ImportaStrati::mostraRighe() {
    tabella_->setRowCount(static_cast<int>(importo_.righe.size()));
    for (std::size_t r = 0; r < importo_.righe.size(); ++r)
        for (std::size_t c = 0; c < exchange::numeroColonne; ++c) {
            auto* cella = new QTableWidgetItem(qt(importo_.righe[r][c]));
            if (c != exchange::descrizione)
                cella->setTextAlignment(Qt::AlignRight | Qt::AlignVCenter);
            tabella_->setItem(static_cast<int>(r), static_cast<int>(c), cella);
        }
    for (int c = 0; c < tabella_->columnCount() - 1; ++c) tabella_->resizeColumnToContents(c);
}

void ImportaStrati::mostraMessaggi() {
    QStringList righe;
    if (!letti_.riuscita()) righe << tradotto("Non si può importare:");
    for (const auto& difetto : letti_.difetti) righe << qt(difetto);
    for (const auto& nota : letti_.avvertenze) righe << qt(nota);
    for (const auto& nota : importo_.avvertenze) righe << qt(nota);
    if (letti_.riuscita())
        righe.prepend(
            qt(base::conDuePunti(base::traduttore("Strati che sostituiscono quelli della tabella"),
                                 std::to_string(importo_.righe.size()))));
    messaggi_->setPlainText(righe.join(QLatin1Char('\n')));
}

}  // namespace korven::shell
