#include "shell/comparison/comparison_window.hpp"

#include <QComboBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QShowEvent>
#include <QTimer>
#include <QVBoxLayout>
#include <utility>

#include "base/colon.hpp"
#include "base/translated_texts.hpp"
#include "comparison/document.hpp"
#include "comparison/tables.hpp"
#include "device/document_files.hpp"
#include "dossier/identity.hpp"
#include "project/output_guard.hpp"
#include "project/project_data.hpp"
#include "shell/annex/document_view.hpp"
#include "shell/companions/button_row.hpp"
#include "shell/forms/wrapped_label.hpp"
#include "shell/qt_text.hpp"
#include "shell/tables/table_pages.hpp"
#include "shell/tables/table_view.hpp"
#include "shell/viewer/export.hpp"
#include "shell/viewer/output_saving.hpp"
#include "shell/wrapped_text.hpp"

namespace korven::shell {

namespace {

constexpr QSize misuraComoda(1000, 560);
constexpr const char* paginaGuida = "finestra_confronto";
// Keys that follow one another at once cost one computation.
constexpr int riposo = 150;  // [ms]
constexpr int lettereProgetto = 24;

QString inCorso() { return tradotto("Calcolo in corso") + QStringLiteral("..."); }

}  // namespace

FinestraConfronto::FinestraConfronto(QWidget& principale, VitaProgetto& vita, PorteConfronto porte,
                                     std::function<void(const std::string&)> guida)
    : FinestraCompagna(principale, QStringLiteral("confronto"), tradotto("Confronto"),
                       misuraComoda),
      vita_(vita),
      porte_(std::move(porte)),
      riposo_(new QTimer(this)),
      lavoro_(new ConfrontiInDisparte(
          calcoloConfronti(),
          [this](const comparison::DomandaConfronto& domanda, const RispostaConfronto& risposta) {
              accogli(domanda.numero, risposta);
          },
          this)) {
    auto* colonna = new QVBoxLayout(this);
    colonna->addWidget(fareRiga());
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
    connect(pagine_, &QTabWidget::currentChanged, this, [this] {
        if (pagine_->currentWidget() == curve_) curve_->vaiA(1);  // from its upper end
        seguiPagina();
    });
    connect(&vita, &VitaProgetto::cambiata, this, [this] { guarda(); });
    svuota({});
    campi_->setFocus();
}

QWidget* FinestraConfronto::fareRiga() {
    auto* riga = new QWidget(this);
    auto* disposizione = new QHBoxLayout(riga);
    disposizione->setContentsMargins(0, 0, 0, 0);
    con_ = new QComboBox(riga);
    con_->setObjectName(QStringLiteral("con"));
    con_->setAccessibleName(tradotto("Con che cosa si confronta il progetto aperto"));
    con_->addItem(tradotto("Stato salvato"), QString());
    con_->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    con_->setMinimumContentsLength(lettereProgetto);
    auto* etichetta = new QLabel(tradotto("Confro&nta con"), riga);
    etichetta->setBuddy(con_);
    auto* altro = new QPushButton(tradotto("&Altro progetto..."), riga);
    altro->setObjectName(QStringLiteral("altro"));
    altro->setAutoDefault(true);
    disposizione->addWidget(etichetta);
    disposizione->addWidget(con_, 1);
    disposizione->addWidget(altro);
    connect(con_, &QComboBox::activated, this, &FinestraConfronto::scegli);
    connect(altro, &QPushButton::clicked, this, &FinestraConfronto::chiediAltro);
    return riga;
}

void FinestraConfronto::farePagine() {
    pagine_ = new PagineProspetti(this);
    campi_ = pagine_->aggiungi("campi", "Campi diversi");
    risultati_ = pagine_->aggiungi("risultati", "Risultati");
    fasi_ = pagine_->aggiungi("fasi", "Risultati delle fasi");
    osservazioni_ = pagine_->aggiungi("osservazioni", "Osservazioni");
    curve_ = new VistaDocumento(pagine_);
    curve_->setAccessibleName(tradotto("Le due pareti"));
    pagine_->addTab(curve_, tradotto("Curve"));
}

QWidget* FinestraConfronto::farePulsanti(const std::function<void(const std::string&)>& guida) {
    auto* riga = new FilaPulsanti(*this);
    pagine_->aggiungiCopia(*riga);
    pdf_ = riga->aggiungi("pdf", "PD&F...", "picture_file", [this] { salvaPdf(); });
    riga->aggiungiGuida(guida ? [guida] { guida(paginaGuida); } : std::function<void()>());
    riga->finisci();
    return riga;
}

void FinestraConfronto::showEvent(QShowEvent* evento) {
    FinestraCompagna::showEvent(evento);
    if (!evento->spontaneous()) guardaOra();
}

void FinestraConfronto::hideEvent(QHideEvent* evento) {
    if (!evento->spontaneous()) {
        riposo_->stop();
        ferma();
    }
    FinestraCompagna::hideEvent(evento);
}

// Meanwhile another program may have written the file that the project is compared with.
void FinestraConfronto::changeEvent(QEvent* evento) {
    FinestraCompagna::changeEvent(evento);
    if (evento->type() == QEvent::ActivationChange && isActiveWindow()) guarda();
}

void FinestraConfronto::guarda() {
    if (isVisible()) riposo_->start();
}

void FinestraConfronto::scegli(int voce) {
    vivo_.con(con_->itemData(voce).toString().toStdString());
    guardaOra();
}

void FinestraConfronto::chiediAltro() {
    const QString percorso = qt(porte_.scegli());
    if (percorso.isEmpty()) return;
    int voce = con_->findData(percorso);
    if (voce < 0) {
        voce = con_->count();
        con_->addItem(percorso, percorso);
        con_->setItemData(voce, percorso, Qt::ToolTipRole);
    }
    con_->setCurrentIndex(voce);
    scegli(voce);
}

void FinestraConfronto::guardaOra() {
    riposo_->stop();
    const live::ProgettoVivo& vivo = vita_.vivo();
    const int nSeg = vivo.aperto() ? vivo.parete().nSeg : 0;
    vivo_.guarda(vivo.aperto() ? &vivo.dati() : nullptr, project::progettoAperto(),
                 nSeg > 0 ? std::optional(nSeg) : std::nullopt);
    const auto& domanda = vivo_.domanda();
    if (!domanda || domanda->numero != chiesta_) ferma();
    if (domanda && chiesta_ == 0) {
        chiesta_ = domanda->numero;
        lavoro_->chiedi(*domanda);
    }
    mostra();
}

void FinestraConfronto::ferma() {
    chiesta_ = 0;
    lavoro_->ferma();
}

void FinestraConfronto::accogli(int numero, const RispostaConfronto& risposta) {
    chiesta_ = 0;
    if (risposta.confronto == nullptr)
        vivo_.rinuncia(numero, risposta.guasto);
    else
        vivo_.rispondi(numero, risposta.confronto);
    mostra();
}

void FinestraConfronto::mostra() {
    const bool sospeso = vivo_.domanda().has_value();
    for (VistaProspetto* vista : {campi_, risultati_, fasi_, osservazioni_})
        vista->sospendi(sospeso);
    frasi_->setEnabled(!sospeso);
    pdf_->setEnabled(!sospeso && vivo_.confronto() != nullptr);
    if (!vivo_.impedimento().empty())
        svuota(qt(vivo_.impedimento()));
    else if (vivo_.confronto() == nullptr)
        svuota(inCorso());
    else if (vivo_.confronto() != mostrato_)
        riempi();
    seguiPagina();
}

void FinestraConfronto::riempi() {
    mostrato_ = vivo_.confronto();
    auto righe = comparison::frasiMuri(*mostrato_);
    for (auto& frase : comparison::frasi(*mostrato_)) righe.push_back(std::move(frase));
    frasi_->setText(inRighe(insieme(righe)));
    campi_->mostra(comparison::prospettoCampi(*mostrato_));
    risultati_->mostra(comparison::prospettoRisultati(*mostrato_));
    fasi_->mostra(comparison::prospettoFasi(*mostrato_));
    osservazioni_->mostra(comparison::prospettoOsservazioni(*mostrato_));
    curve_->mostra(
        device::impaginato(comparison::documentoCurve(mostrato_), comparison::formatoCurve()));
}

void FinestraConfronto::svuota(const QString& perche) {
    mostrato_ = nullptr;
    frasi_->setText(inRighe(perche));
    for (VistaProspetto* vista : {campi_, risultati_, fasi_, osservazioni_})
        vista->mostra({.note = {perche.toStdString()}});
    curve_->mostra({});
}

void FinestraConfronto::seguiPagina() {
    const auto* vista = dynamic_cast<VistaProspetto*>(pagine_->currentWidget());
    if (vivo_.domanda())
        nota_->setText(inCorso());
    else if (vista != nullptr && !vista->modello().prospetto().righe.empty())
        nota_->setText(inRighe(insieme(vista->modello().prospetto().note)));
    else
        nota_->clear();
}

void FinestraConfronto::salvaPdf() {
    const auto confronto = vivo_.confronto();
    const auto scritto = salvaUscita(
        richiestaUscita("Salvataggio del confronto in formato PDF", project::fileCorrente,
                        "confronto", {tipoPdf()}),
        *porte_.file, porte_.dialogo, [&](const std::string& dove) {
            project::controllaUscita(dove, project::fileCorrente);
            project::controllaCoppia(dove, confronto->prima.fascicolo.identita.file);
            device::scriviPdf(
                dove, comparison::documento(confronto, dossier::data(dossier::fontiDiSistema({}))),
                porte_.file->disco());
        });
    if (scritto) nota_->setText(qt(base::conDuePunti(base::traduttore("File scritto"), *scritto)));
}

}  // namespace korven::shell
