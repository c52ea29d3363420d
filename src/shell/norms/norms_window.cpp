#include "shell/norms/norms_window.hpp"

#include <QCheckBox>
#include <QComboBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QShowEvent>
#include <QSignalBlocker>
#include <QTimer>
#include <QVBoxLayout>
#include <utility>

#include "base/colon.hpp"
#include "base/files.hpp"
#include "base/translated_texts.hpp"
#include "device/document_files.hpp"
#include "dossier/identity.hpp"
#include "factors/words.hpp"
#include "project/output_guard.hpp"
#include "project/project_data.hpp"
#include "shell/companions/button_row.hpp"
#include "shell/forms/wrapped_label.hpp"
#include "shell/qt_text.hpp"
#include "shell/tables/table_pages.hpp"
#include "shell/tables/table_view.hpp"
#include "shell/viewer/export.hpp"
#include "shell/viewer/output_saving.hpp"
#include "shell/wrapped_text.hpp"
#include "tables/combination_tables.hpp"
#include "workbook/xlsx_file.hpp"

namespace korven::shell {

namespace {

constexpr QSize misuraComoda(1000, 560);
constexpr const char* paginaGuida = "finestra_norme";
// Keys that follow one another at once cost one computation.
constexpr int riposo = 150;  // [ms]
constexpr int lettereNorma = 24;

QString inCorso() { return tradotto("Calcolo in corso") + QStringLiteral("..."); }

factors::Natura natura(const QCheckBox* casella) {
    return casella->isChecked() ? factors::Natura::permanente : factors::Natura::variabile;
}

}  // namespace

FinestraNorme::FinestraNorme(QWidget& principale, VitaProgetto& vita, PorteNorme porte,
                             std::function<void(const std::string&)> guida)
    : FinestraCompagna(principale, QStringLiteral("norme"), tradotto("Norme"), misuraComoda),
      vita_(vita),
      porte_(std::move(porte)),
      riposo_(new QTimer(this)),
      lavoro_(new NormeInDisparte(
          calcoloNorme(),
          [this](const desk::DomandaNorma& domanda, const RispostaNorma& risposta) {
              accogli(domanda.numero, risposta);
          },
          this)) {
    auto* colonna = new QVBoxLayout(this);
    colonna->addWidget(fareScelte());
    colonna->addWidget(fareCarichi());
    frasi_ = etichettaInRighe("frasi", this);
    colonna->addWidget(frasi_);
    farePagine();
    colonna->addWidget(pagine_, 1);
    nota_ = etichettaInRighe("nota", this);
    colonna->addWidget(nota_);
    colonna->addWidget(farePulsanti(guida));
    riposo_->setSingleShot(true);
    riposo_->setInterval(riposo);
    connect(riposo_, &QTimer::timeout, this, [this] { guardaOra(); });
    connect(&vita, &VitaProgetto::cambiata, this, [this] { guarda(); });
    svuota({});
    effetti_->setFocus();
}

QWidget* FinestraNorme::fareScelte() {
    auto* riga = new QWidget(this);
    auto* disposizione = new QHBoxLayout(riga);
    disposizione->setContentsMargins(0, 0, 0, 0);
    norma_ = new QComboBox(riga);
    norma_->setObjectName(QStringLiteral("norma"));
    norma_->setAccessibleName(tradotto("Norma di cui si calcolano le combinazioni"));
    norma_->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    norma_->setMinimumContentsLength(lettereNorma);
    auto* etichetta = new QLabel(tradotto("&Norma"), riga);
    etichetta->setBuddy(norma_);
    disposizione->addWidget(etichetta);
    disposizione->addWidget(norma_, 1);
    connect(norma_, &QComboBox::activated, this, [this](int quale) {
        vive_.scegli(quale);
        guardaOra();
    });
    return riga;
}

QWidget* FinestraNorme::fareCarichi() {
    auto* riga = new QWidget(this);
    auto* disposizione = new QHBoxLayout(riga);
    disposizione->setContentsMargins(0, 0, 0, 0);
    disposizione->addWidget(new QLabel(tradotto("Carichi permanenti:"), riga));
    const auto casella = [&](const char* nome, const char* testo) {
        auto* fatta = new QCheckBox(tradotto(testo), riga);
        fatta->setObjectName(QLatin1String(nome));
        fatta->setToolTip(tradotto("Con il segno questo carico è permanente, senza è variabile"));
        disposizione->addWidget(fatta);
        connect(fatta, &QCheckBox::toggled, this, [this] { scegliNatura(); });
        return fatta;
    };
    monte_ = casella("monte", "a &monte");
    scavo_ = casella("scavo", "sul fondo dello &scavo");
    testa_ = casella("testa", "in &testa");
    disposizione->addStretch();
    return riga;
}

void FinestraNorme::farePagine() {
    pagine_ = new PagineProspetti(this);
    effetti_ = pagine_->aggiungi("effetti", "Combinazioni e inviluppo");
    verifiche_ = pagine_->aggiungi("verifiche", "Verifiche");
    tiri_ = pagine_->aggiungi("tiri", "Tiranti e puntoni");
    fattori_ = pagine_->aggiungi("fattori", "Coefficienti applicati");
    fonti_ = pagine_->aggiungi("fonti", "Coefficienti e fonti");
    note_ = pagine_->aggiungi("note", "Note");
}

QWidget* FinestraNorme::farePulsanti(const std::function<void(const std::string&)>& guida) {
    auto* riga = new FilaPulsanti(*this);
    pagine_->aggiungiCopia(*riga);
    pdf_ = riga->aggiungi("pdf", "PD&F...", "picture_file", [this] {
        salva("Salvataggio delle combinazioni in formato PDF", tipoPdf(),
              [this](const std::string& dove) {
                  device::scriviPdf(dove, desk::documento(*mostrate_, progetto()),
                                    porte_.file->disco());
              });
    });
    xlsx_ = riga->aggiungi("xlsx", "&XLSX...", "tables", [this] {
        salva("Salvataggio delle combinazioni in formato XLSX", {"XLSX (*.xlsx)", "xlsx"},
              [this](const std::string& dove) {
                  base::scriviFile(dove,
                                   workbook::xlsx(desk::cartella(*mostrate_, progetto()), dove),
                                   porte_.file->disco());
              });
    });
    riga->aggiungiGuida(guida ? [guida] { guida(paginaGuida); } : std::function<void()>());
    riga->finisci();
    return riga;
}

void FinestraNorme::showEvent(QShowEvent* evento) {
    FinestraCompagna::showEvent(evento);
    if (!evento->spontaneous()) leggi();
}

void FinestraNorme::hideEvent(QHideEvent* evento) {
    if (!evento->spontaneous()) {
        riposo_->stop();
        ferma();
    }
    FinestraCompagna::hideEvent(evento);
}

// Meanwhile the user may have written combinations into the file.
void FinestraNorme::changeEvent(QEvent* evento) {
    FinestraCompagna::changeEvent(evento);
    if (evento->type() == QEvent::ActivationChange && isActiveWindow() && isVisible()) leggi();
}

void FinestraNorme::leggi() {
    vive_.norme(porte_.leggi());
    const QSignalBlocker muta(norma_);
    norma_->clear();
    for (const factors::Norma& norma : vive_.norme()) {
        norma_->addItem(qt(norma.titolo));
        norma_->setItemData(norma_->count() - 1, qt(norma.nome + ", " + norma.file),
                            Qt::ToolTipRole);
    }
    norma_->setCurrentIndex(vive_.scelta());
    guardaOra();
}

void FinestraNorme::scegliNatura() {
    vive_.natura({.monte = natura(monte_), .scavo = natura(scavo_), .testa = natura(testa_)});
    guardaOra();
}

void FinestraNorme::guarda() {
    if (isVisible()) riposo_->start();
}

void FinestraNorme::guardaOra() {
    riposo_->stop();
    const live::ProgettoVivo& vivo = vita_.vivo();
    vive_.guarda(vivo.aperto() ? &vivo.parete() : nullptr);
    const auto& domanda = vive_.domanda();
    if (!domanda || domanda->numero != chiesta_) ferma();
    if (domanda && chiesta_ == 0) {
        chiesta_ = domanda->numero;
        lavoro_->chiedi(*domanda);
    }
    mostra();
}

void FinestraNorme::ferma() {
    chiesta_ = 0;
    lavoro_->ferma();
}

void FinestraNorme::accogli(int numero, const RispostaNorma& risposta) {
    chiesta_ = 0;
    if (risposta.combinazioni == nullptr)
        vive_.rinuncia(numero, risposta.guasto);
    else
        vive_.rispondi(numero, risposta.combinazioni);
    mostra();
}

void FinestraNorme::mostra() {
    const bool sospeso = vive_.domanda().has_value();
    for (VistaProspetto* vista : {effetti_, verifiche_, tiri_, fattori_, fonti_, note_})
        vista->sospendi(sospeso);
    frasi_->setEnabled(!sospeso);
    for (QPushButton* pulsante : {pdf_, xlsx_})
        pulsante->setEnabled(!sospeso && vive_.combinazioni() != nullptr);
    if (!vive_.impedimento().empty())
        svuota(qt(vive_.impedimento()));
    else if (vive_.combinazioni() == nullptr)
        svuota(inCorso());
    else if (vive_.combinazioni() != mostrate_)
        riempi();
    nota_->setText(sospeso ? inCorso() : QString());
}

void FinestraNorme::riempi() {
    mostrate_ = vive_.combinazioni();
    const auto note = factors::note(*mostrate_, vita_.vivo().dati());
    frasi_->setText(inRighe(insieme(desk::frasi(*mostrate_))));
    effetti_->mostra(tables::prospettoEffetti(*mostrate_));
    auto verifiche = tables::prospettoVerifiche(*mostrate_);
    if (verifiche.righe.empty()) verifiche.note = note;
    verifiche_->mostra(std::move(verifiche));
    auto tiri = tables::prospettoTiri(*mostrate_);
    if (tiri.righe.empty())
        tiri.note = {base::traduttore("Nessun tirante è in opera in qualche fase in equilibrio.")};
    tiri_->mostra(std::move(tiri));
    fattori_->mostra(tables::prospettoFattori(*mostrate_));
    fonti_->mostra(desk::prospettoFonti(mostrate_->norma));
    note_->mostra({.note = note});
}

void FinestraNorme::svuota(const QString& perche) {
    mostrate_ = nullptr;
    frasi_->setText(inRighe(perche));
    for (VistaProspetto* vista : {effetti_, verifiche_, tiri_, fattori_, fonti_, note_})
        vista->mostra({.note = {perche.toStdString()}});
}

desk::ProgettoDetto FinestraNorme::progetto() const {
    return {project::progettoAperto(), vita_.vivo().dati(),
            dossier::data(dossier::fontiDiSistema({}))};
}

void FinestraNorme::salva(const char* titolo, const TipoFile& tipo,
                          const std::function<void(const std::string&)>& scrivi) {
    const auto scritto =
        salvaUscita(richiestaUscita(titolo, project::fileCorrente, "combinazioni", {tipo}),
                    *porte_.file, porte_.dialogo, [&](const std::string& dove) {
                        project::controllaUscita(dove, project::fileCorrente);
                        scrivi(dove);
                    });
    if (scritto) nota_->setText(qt(base::conDuePunti(base::traduttore("File scritto"), *scritto)));
}

}  // namespace korven::shell
