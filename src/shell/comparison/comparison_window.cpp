#include "shell/comparison/comparison_window.hpp"

#include <QComboBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <utility>

#include "base/translated_texts.hpp"
#include "comparison/document.hpp"
#include "comparison/tables.hpp"
#include "device/document_files.hpp"
#include "dossier/identity.hpp"
#include "project/output_guard.hpp"
#include "project/project_data.hpp"
#include "shell/annex/document_view.hpp"
#include "shell/companions/button_row.hpp"
#include "shell/qt_text.hpp"
#include "shell/tables/table_pages.hpp"
#include "shell/tables/table_view.hpp"
#include "shell/viewer/export.hpp"
#include "shell/viewer/output_saving.hpp"
#include "shell/wrapped_text.hpp"

namespace korven::shell {

namespace {

constexpr const char* paginaGuida = "finestra_confronto";
constexpr int lettereProgetto = 24;

}  // namespace

FinestraConfronto::FinestraConfronto(QWidget& principale, VitaProgetto& vita, PorteConfronto porte,
                                     std::function<void(const std::string&)> guida)
    : FinestraProspetti(principale, vita, QStringLiteral("confronto"), tradotto("Confronto")),
      porte_(std::move(porte)),
      lavoro_(new ConfrontiInDisparte(
          calcoloConfronti(),
          [this](const comparison::DomandaConfronto& domanda, const RispostaConfronto& risposta) {
              accogli(domanda.numero, risposta);
          },
          this)) {
    comincia({fareRiga()});
    campi_ = prospetto("campi", "Campi diversi");
    risultati_ = prospetto("risultati", "Risultati");
    fasi_ = prospetto("fasi", "Risultati delle fasi");
    osservazioni_ = prospetto("osservazioni", "Osservazioni");
    curve_ = new VistaDocumento(&pagine());
    curve_->setAccessibleName(tradotto("Le due pareti"));
    pagine().addTab(curve_, tradotto("Curve"));
    finisci(farePulsanti(guida));
    connect(&pagine(), &QTabWidget::currentChanged, this, [this] {
        if (pagine().currentWidget() == curve_) curve_->vaiA(1);  // from its upper end
        seguiPagina();
    });
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

QWidget* FinestraConfronto::farePulsanti(const std::function<void(const std::string&)>& guida) {
    auto* riga = new FilaPulsanti(*this);
    pagine().aggiungiCopia(*riga);
    pdf_ = riga->aggiungi("pdf", "PD&F...", "picture_file", [this] { salvaPdf(); });
    riga->aggiungiGuida(guida ? [guida] { guida(paginaGuida); } : std::function<void()>());
    riga->finisci();
    return riga;
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

int FinestraConfronto::osserva() {
    const live::ProgettoVivo& vivo = vita().vivo();
    const int nSeg = vivo.aperto() ? vivo.parete().nSeg : 0;
    vivo_.guarda(vivo.aperto() ? &vivo.dati() : nullptr, project::progettoAperto(),
                 nSeg > 0 ? std::optional(nSeg) : std::nullopt);
    return vivo_.domanda() ? vivo_.domanda()->numero : 0;
}

void FinestraConfronto::chiedi() { lavoro_->chiedi(*vivo_.domanda()); }

void FinestraConfronto::lascia() { lavoro_->ferma(); }

void FinestraConfronto::accogli(int numero, const RispostaConfronto& risposta) {
    if (risposta.confronto == nullptr)
        vivo_.rinuncia(numero, risposta.guasto);
    else
        vivo_.rispondi(numero, risposta.confronto);
    risposto();
}

void FinestraConfronto::mostra() {
    const bool sospeso = vivo_.domanda().has_value();
    sospendi(sospeso);
    pdf_->setEnabled(!sospeso && vivo_.confronto() != nullptr);
    if (vivo_.confronto() == nullptr || !vivo_.impedimento().empty()) {
        mostrato_ = nullptr;
        svuota(vivo_.impedimento().empty() ? inCorso() : qt(vivo_.impedimento()));
        curve_->mostra({});
    } else if (vivo_.confronto() != mostrato_) {
        riempi();
    }
    seguiPagina();
}

void FinestraConfronto::riempi() {
    mostrato_ = vivo_.confronto();
    auto righe = comparison::frasiMuri(*mostrato_);
    for (auto& frase : comparison::frasi(*mostrato_)) righe.push_back(std::move(frase));
    frasi().setText(inRighe(insieme(righe)));
    campi_->mostra(comparison::prospettoCampi(*mostrato_));
    risultati_->mostra(comparison::prospettoRisultati(*mostrato_));
    fasi_->mostra(comparison::prospettoFasi(*mostrato_));
    osservazioni_->mostra(comparison::prospettoOsservazioni(*mostrato_));
    curve_->mostra(
        device::impaginato(comparison::documentoCurve(mostrato_), comparison::formatoCurve()));
}

void FinestraConfronto::seguiPagina() {
    const auto* vista = dynamic_cast<VistaProspetto*>(pagine().currentWidget());
    if (vivo_.domanda())
        nota().setText(inCorso());
    else if (vista != nullptr && !vista->modello().prospetto().righe.empty())
        nota().setText(inRighe(insieme(vista->modello().prospetto().note)));
    else
        nota().clear();
}

void FinestraConfronto::salvaPdf() {
    const auto confronto = vivo_.confronto();
    salvaDelProgetto(
        richiestaUscita("Salvataggio del confronto in formato PDF", project::fileCorrente,
                        "confronto", {tipoPdf()}),
        *porte_.file, porte_.dialogo, nota(), [&](const std::string& dove) {
            project::controllaCoppia(dove, confronto->prima.fascicolo.identita.file);
            device::scriviPdf(
                dove, comparison::documento(confronto, dossier::data(dossier::fontiDiSistema({}))),
                porte_.file->disco());
        });
}

}  // namespace korven::shell
