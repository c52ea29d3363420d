#include "shell/panels/profile_chooser.hpp"

#include <QComboBox>
#include <QDialogButtonBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTableWidget>
#include <QVBoxLayout>
#include <algorithm>

#include "base/filled_text.hpp"
#include "base/translated_texts.hpp"
#include "shell/form_sizes.hpp"
#include "shell/qt_text.hpp"
#include "shell/section/section_sketch_view.hpp"
#include "shell/wrapped_text.hpp"

namespace korven::shell {

namespace {

constexpr QSize misuraComoda(860, 480);

// What stands for a whole section in the choice of what is filled.
constexpr std::size_t tuttiICampi = masks::numeroCampiSezione;

QTableWidget* fareTabella(QWidget* padre) {
    auto* tabella = new QTableWidget(0, 4, padre);
    tabella->setObjectName(QStringLiteral("profili"));
    tabella->setAccessibleName(tradotto("Profili"));
    tabella->setHorizontalHeaderLabels(
        {tradotto("Nome"), tradotto("Misure"), tradotto("Fonte"), tradotto("Catalogo")});
    tabella->setSelectionBehavior(QAbstractItemView::SelectRows);
    tabella->setSelectionMode(QAbstractItemView::SingleSelection);
    tabella->setEditTriggers(QAbstractItemView::NoEditTriggers);
    tabella->setTabKeyNavigation(false);
    tabella->setWordWrap(false);
    tabella->setHorizontalScrollMode(QAbstractItemView::ScrollPerPixel);
    tabella->verticalHeader()->hide();
    tabella->verticalHeader()->setDefaultSectionSize(tabella->fontMetrics().height() + 6);
    tabella->horizontalHeader()->setHighlightSections(false);
    return tabella;
}

}  // namespace

ScegliProfilo::ScegliProfilo(project::Parte tipo, const project::Sezione& sezione,
                             std::size_t campo, base::Dialogo& dialogo, QWidget* padre)
    : QDialog(padre), tipo_(tipo), sezione_(sezione), dialogo_(dialogo) {
    setObjectName(QStringLiteral("ScegliProfilo"));
    setWindowTitle(tradotto("Catalogo dei profili"));
    auto* colonna = new QVBoxLayout(this);
    colonna->addWidget(fareCerca());
    auto* fila = new QHBoxLayout;
    tabella_ = fareTabella(this);
    fila->addWidget(tabella_, 3);
    schizzo_ = new VistaSchizzo([](std::size_t) {}, this);
    schizzo_->setObjectName(QStringLiteral("schizzo"));
    schizzo_->setAccessibleName(tradotto("Sezione con il profilo scelto"));
    fila->addWidget(schizzo_, 2);
    colonna->addLayout(fila, 1);
    nota_ = new QLabel(this);
    nota_->setObjectName(QStringLiteral("nota"));
    nota_->setTextFormat(Qt::PlainText);
    nota_->setWordWrap(true);
    colonna->addWidget(nota_);
    auto* pulsanti = new QDialogButtonBox(this);
    prendi_ = pulsanti->addButton(tradotto("&Prendi"), QDialogButtonBox::AcceptRole);
    prendi_->setObjectName(QStringLiteral("prendi"));
    elimina_ = pulsanti->addButton(tradotto("&Elimina..."), QDialogButtonBox::ActionRole);
    elimina_->setObjectName(QStringLiteral("elimina"));
    elimina_->setAutoDefault(false);
    auto* annulla = pulsanti->addButton(tradotto("&Annulla"), QDialogButtonBox::RejectRole);
    annulla->setObjectName(QStringLiteral("annulla"));
    colonna->addWidget(pulsanti);
    connect(pulsanti, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(pulsanti, &QDialogButtonBox::rejected, this, &QDialog::reject);
    connect(elimina_, &QPushButton::clicked, this, [this] { elimina(); });
    connect(tabella_, &QTableWidget::itemSelectionChanged, this, [this] { mostra(); });
    connect(tabella_, &QTableWidget::itemActivated, this, &QDialog::accept);
    catalogo_ = profiles::leggiCatalogo();
    riempiCampi(campo);
    connect(riempie_, &QComboBox::currentIndexChanged, this, [this] { filtra(); });
    connect(cerca_, &QLineEdit::textChanged, this, [this] { filtra(); });
    filtra();
    prendiMisura(*this, misuraComoda.expandedTo(sizeHint()));
    cerca_->setFocus();
}

QWidget* ScegliProfilo::fareCerca() {
    auto* parte = new QWidget(this);
    auto* riga = new QHBoxLayout(parte);
    riga->setContentsMargins(0, 0, 0, 0);
    cerca_ = new QLineEdit(parte);
    cerca_->setObjectName(QStringLiteral("cerca"));
    cerca_->setPlaceholderText(tradotto("nome, misure o fonte"));
    cerca_->setClearButtonEnabled(true);
    cerca_->installEventFilter(this);
    auto* etichetta = new QLabel(tradotto("Ce&rca:"), parte);
    etichetta->setBuddy(cerca_);
    riempie_ = new QComboBox(parte);
    riempie_->setObjectName(QStringLiteral("riempie"));
    auto* cosa = new QLabel(tradotto("Rie&mpie:"), parte);
    cosa->setBuddy(riempie_);
    for (QWidget* pezzo : {static_cast<QWidget*>(etichetta), static_cast<QWidget*>(cerca_),
                           static_cast<QWidget*>(cosa), static_cast<QWidget*>(riempie_)})
        riga->addWidget(pezzo, pezzo == cerca_ ? 1 : 0);
    return parte;
}

void ScegliProfilo::riempiCampi(std::size_t campo) {
    riempie_->addItem(tradotto("tutti i campi"), QVariant::fromValue(tuttiICampi));
    for (const std::size_t ferro : profiles::campiFerro(tipo_)) {
        riempie_->addItem(tradotto(masks::campiSezione[ferro].campo().cosa),
                          QVariant::fromValue(ferro));
        if (ferro == campo) riempie_->setCurrentIndex(riempie_->count() - 1);
    }
    // Of whole sections the user may have none: then bars come first.
    const auto& tutti = catalogo_.profili;
    const bool soliFerri = std::none_of(tutti.begin(), tutti.end(), [this](const auto& p) {
        return p.genere != profiles::Genere::ferro && profiles::adatto(p, tipo_);
    });
    if (soliFerri && riempie_->count() > 1 && riempie_->currentIndex() == 0)
        riempie_->setCurrentIndex(1);
}

// Lines that are no rows; else what to do about an empty list.
void ScegliProfilo::annota() {
    QString testo;
    if (!catalogo_.guaste.empty()) {
        const auto& prima = catalogo_.guaste.front();
        testo = qt(base::riempito(base::traduttore("Righe non lette: %1. %2, riga %3: %4"),
                                  {std::to_string(catalogo_.guaste.size()), prima.file,
                                   std::to_string(prima.riga), prima.motivo}));
    } else if (mostrati_.empty()) {
        testo = tradotto("Nessun profilo. I propri si registrano con «Aggiungi al catalogo».");
    }
    nota_->setText(inRighe(testo));
    nota_->setVisible(!testo.isEmpty());
}

std::size_t ScegliProfilo::campo() const { return riempie_->currentData().value<std::size_t>(); }

void ScegliProfilo::filtra() {
    const bool ferri = campo() != tuttiICampi;
    const std::string cercato = cerca_->text().toStdString();
    mostrati_.clear();
    for (std::size_t i = 0; i < catalogo_.profili.size(); ++i) {
        const auto& p = catalogo_.profili[i];
        if (profiles::adatto(p, tipo_) && (p.genere == profiles::Genere::ferro) == ferri &&
            profiles::trovato(p, cercato))
            mostrati_.push_back(i);
    }
    tabella_->setRowCount(static_cast<int>(mostrati_.size()));
    for (int r = 0; r < tabella_->rowCount(); ++r) {
        const auto& p = catalogo_.profili[mostrati_[static_cast<std::size_t>(r)]];
        const QString testi[] = {qt(p.nome), qt(profiles::misureMostrate(p)), qt(p.fonte),
                                 tradotto(p.proprio ? "dell'utente" : "fornito")};
        for (int c = 0; c < 4; ++c) tabella_->setItem(r, c, new QTableWidgetItem(testi[c]));
    }
    tabella_->resizeColumnsToContents();
    tabella_->clearSelection();
    if (!mostrati_.empty()) tabella_->selectRow(0);
    annota();
    mostra();
}

const profiles::Profilo* ScegliProfilo::scelto() const {
    const auto righe = tabella_->selectionModel()->selectedRows();
    if (righe.isEmpty()) return nullptr;
    const auto riga = static_cast<std::size_t>(righe.front().row());
    return riga < mostrati_.size() ? &catalogo_.profili[mostrati_[riga]] : nullptr;
}

masks::SezioneEditata::Testi ScegliProfilo::testi() const {
    const auto* profilo = scelto();
    return profilo != nullptr ? profiles::testi(*profilo, campo()) : masks::SezioneEditata::Testi{};
}

void ScegliProfilo::mostra() {
    const auto* profilo = scelto();
    prendi_->setEnabled(profilo != nullptr);
    elimina_->setEnabled(profilo != nullptr && profilo->proprio);
    project::Sezione sezione = sezione_;
    bool modificato = false;
    masks::SezioneEditata con(sezione, modificato);
    con.scegli(tipo_);
    con.scrivi({}, testi());
    schizzo_->mostra(drawings::schizzoSezione(tipo_, con.letta()));
    schizzo_->setAccessibleDescription(profilo != nullptr ? qt(profiles::misureMostrate(*profilo))
                                                          : schizzo_->accessibleName());
}

void ScegliProfilo::elimina() {
    const auto* profilo = scelto();
    if (profilo == nullptr || !profilo->proprio) return;
    const auto titolo = base::traduttore("ATTENZIONE") + "!";
    if (dialogo_.domanda(base::riempito(base::traduttore("Eliminare dal catalogo il profilo «%1»?"),
                                        {profilo->nome}),
                         titolo, base::Pulsanti::siNo, base::Icona::domanda) != base::Risposta::si)
        return;
    if (const auto perche = profiles::togliProfilo(*profilo); !perche.empty())
        dialogo_.messaggio(perche, titolo, base::Icona::avviso);
    catalogo_ = profiles::leggiCatalogo();
    filtra();
}

void ScegliProfilo::done(int esito) {
    if (esito == Accepted && scelto() == nullptr) return;
    ricordaMisure(*this);
    QDialog::done(esito);
}

bool ScegliProfilo::eventFilter(QObject* oggetto, QEvent* evento) {
    if (oggetto == cerca_ && evento->type() == QEvent::KeyPress &&
        static_cast<QKeyEvent*>(evento)->key() == Qt::Key_Down && tabella_->rowCount() > 0) {
        tabella_->setFocus();
        return true;
    }
    return QDialog::eventFilter(oggetto, evento);
}

}  // namespace korven::shell
