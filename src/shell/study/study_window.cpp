#include "shell/study/study_window.hpp"

#include <QComboBox>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QShowEvent>
#include <QSignalBlocker>
#include <QSplitter>
#include <QTimer>
#include <QVBoxLayout>
#include <utility>

#include "analysis/segment_count.hpp"
#include "base/files.hpp"
#include "base/filled_text.hpp"
#include "base/translated_texts.hpp"
#include "device/document_files.hpp"
#include "dossier/identity.hpp"
#include "project/output_guard.hpp"
#include "project/project_data.hpp"
#include "shell/annex/document_view.hpp"
#include "shell/companions/button_row.hpp"
#include "shell/forms/scrolled_part.hpp"
#include "shell/forms/wrapped_label.hpp"
#include "shell/qt_text.hpp"
#include "shell/study/study_form.hpp"
#include "shell/tables/table_pages.hpp"
#include "shell/tables/table_view.hpp"
#include "shell/viewer/export.hpp"
#include "shell/viewer/output_saving.hpp"
#include "shell/wrapped_text.hpp"
#include "workbook/xlsx_file.hpp"

namespace korven::shell {

namespace {

constexpr QSize misuraComoda(1180, 560);
constexpr const char* paginaGuida = "finestra_studio";
constexpr int ritmo = 100;                  // of the progress [ms]
constexpr std::size_t righeTabella = 2000;  // that a table shows
constexpr int lettereRisultato = 20;

std::string primaDelCalcolo() {
    return base::traduttore("Scegliere a sinistra che cosa varia, poi Calcola.");
}

}  // namespace

FinestraStudio::FinestraStudio(QWidget& principale, VitaProgetto& vita, PorteStudio porte,
                               std::function<void(const std::string&)> guida)
    : FinestraCompagna(principale, QStringLiteral("studio"), tradotto("Studio"), misuraComoda),
      vita_(vita),
      porte_(std::move(porte)),
      ritmo_(new QTimer(this)),
      lavoro_(new StudiInDisparte(
          calcoloStudi(),
          [this](const DomandaStudio& domanda, const RispostaStudio& risposta) {
              accogli(domanda, risposta);
          },
          this)) {
    auto* meta = new QSplitter(Qt::Horizontal, this);
    meta->setChildrenCollapsible(false);
    forma_ = new FormaStudio(this);
    meta->addWidget(new ParteScorrevole(forma_, meta));
    meta->addWidget(fareRisultati(meta));
    meta->setStretchFactor(1, 1);
    auto* colonna = new QVBoxLayout(this);
    colonna->addWidget(meta, 1);
    nota_ = etichettaInRighe("nota", this);
    colonna->addWidget(nota_);
    colonna->addWidget(fareAttesa());
    colonna->addWidget(farePulsanti(guida));
    ritmo_->setInterval(ritmo);
    connect(ritmo_, &QTimer::timeout, this, [this] { avanza(); });
    connect(&vita, &VitaProgetto::cambiata, this, [this] {
        if (isVisible()) segui();
    });
    connect(forma_, &FormaStudio::cambiata, this, [this] { seguiScritto(); });
    riempi();
    forma_->setFocus();
    QWidget::setTabOrder(forma_->ultimo(), risultato_);
    QWidget::setTabOrder(risultato_, pagine_);
}

QWidget* FinestraStudio::fareRisultati(QWidget* meta) {
    auto* parte = new QWidget(meta);
    auto* colonna = new QVBoxLayout(parte);
    colonna->setContentsMargins(0, 0, 0, 0);
    auto* riga = new QWidget(parte);
    auto* disposizione = new QHBoxLayout(riga);
    disposizione->setContentsMargins(0, 0, 0, 0);
    risultato_ = new QComboBox(riga);
    risultato_->setObjectName(QStringLiteral("risultato"));
    risultato_->setAccessibleName(tradotto("Risultato che è disegnato"));
    risultato_->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    risultato_->setMinimumContentsLength(lettereRisultato);
    auto* etichetta = new QLabel(tradotto("&Risultato"), riga);
    etichetta->setBuddy(risultato_);
    disposizione->addWidget(etichetta);
    disposizione->addWidget(risultato_, 1);
    colonna->addWidget(riga);
    pagine_ = new PagineProspetti(parte);
    grafico_ = new VistaDocumento(pagine_);
    grafico_->setAccessibleName(tradotto("Grafico"));
    pagine_->addTab(grafico_, tradotto("Grafico"));
    varianti_ = pagine_->aggiungi("varianti", "Varianti");
    riassunto_ = pagine_->aggiungi("riassunto", "Riassunto");
    distribuzioni_ = pagine_->aggiungi("distribuzioni", "Distribuzioni");
    correlazioni_ = pagine_->aggiungi("correlazioni", "Correlazioni");
    seguiCampioni({});
    colonna->addWidget(pagine_, 1);
    connect(risultato_, &QComboBox::activated, this, [this] { disegna(); });
    connect(varianti_, &QTableView::activated, this, &FinestraStudio::prendi);
    return parte;
}

QWidget* FinestraStudio::fareAttesa() {
    attesa_ = new QWidget(this);
    attesa_->setObjectName(QStringLiteral("attesa"));
    auto* disposizione = new QHBoxLayout(attesa_);
    disposizione->setContentsMargins(0, 0, 0, 0);
    barra_ = new QProgressBar(attesa_);
    barra_->setObjectName(QStringLiteral("avanzamento"));
    barra_->setAccessibleName(tradotto("Varianti calcolate"));
    disposizione->addWidget(barra_, 1);
    auto* ferma = new QPushButton(tradotto("Fer&ma"), attesa_);
    ferma->setObjectName(QStringLiteral("ferma"));
    ferma->setAutoDefault(false);
    connect(ferma, &QPushButton::clicked, this, [this] { basta(); });
    disposizione->addWidget(ferma);
    attesa_->hide();
    return attesa_;
}

QWidget* FinestraStudio::farePulsanti(const std::function<void(const std::string&)>& guida) {
    auto* riga = new FilaPulsanti(*this);
    calcola_ = riga->aggiungi("calcola", "Ca&lcola", "redo", [this] { calcola(); });
    prendi_ = riga->aggiungi("prendi", "&Prendila", "import",
                             [this] { prendi(varianti_->currentIndex()); });
    pagine_->aggiungiCopia(*riga);
    pagine_->setCurrentWidget(varianti_);  // and back, so that the button knows the chart
    pagine_->setCurrentWidget(grafico_);
    esporta_ = riga->aggiungi("esporta", "E&sporta...", "export", [this] { esporta(); });
    riga->aggiungiGuida(guida ? [guida] { guida(paginaGuida); } : std::function<void()>());
    riga->finisci();
    return riga;
}

void FinestraStudio::showEvent(QShowEvent* evento) {
    segui();
    FinestraCompagna::showEvent(evento);
}

void FinestraStudio::calcola() {
    if (inCorso_.studio != nullptr || !vita_.vivo().aperto()) return;
    const auto nSeg = analysis::leggiNSeg(false);
    if (!nSeg) return nota_->setText(qt(base::traduttore(analysis::motivoNSeg())));
    const auto letto = desk::leggi(vita_.vivo().dati(), *nSeg, forma_->scritto());
    if (letto.studio == nullptr) return nota_->setText(inRighe(letto.perche));
    inCorso_ = {letto.studio, std::make_shared<std::atomic<bool>>(false),
                std::make_shared<std::atomic<std::uint64_t>>(0)};
    nota_->clear();
    ritmo_->start();
    lavoro_->chiedi(inCorso_);
    avanza();
    segui();
}

void FinestraStudio::basta() {
    if (inCorso_.basta) *inCorso_.basta = true;
}

void FinestraStudio::accogli(const DomandaStudio&, const RispostaStudio& risposta) {
    inCorso_ = {};
    ritmo_->stop();
    if (risposta.fatto != nullptr) fatto_ = risposta.fatto;
    riempi();
    segui();
    if (risposta.fatto == nullptr) nota_->setText(inRighe(risposta.guasto));
}

void FinestraStudio::avanza() {
    if (inCorso_.studio == nullptr) return;
    const std::uint64_t fatte = *inCorso_.fatte, quante = inCorso_.studio->varianti->numero();
    barra_->setRange(0, static_cast<int>(quante));  // never more than a window holds
    barra_->setValue(static_cast<int>(fatte));
    barra_->setFormat(qt(base::riempito(base::traduttore("%1 di %2 varianti"),
                                        {std::to_string(fatte), std::to_string(quante)})));
}

void FinestraStudio::segui() {
    const bool aperto = vita_.vivo().aperto();
    if (aperto) forma_->offri(vita_.vivo().dati());
    calcola_->setEnabled(aperto && inCorso_.studio == nullptr);
    attesa_->setVisible(inCorso_.studio != nullptr);
    for (QPushButton* pulsante : {prendi_, esporta_})
        pulsante->setEnabled(aperto && fatto_ != nullptr && fatto_->numero() > 0);
    seguiScritto();
    if (!aperto) nota_->setText(tradotto("Nessun progetto aperto"));
}

// Results that are not of what is typed now are grey, and said to be.
void FinestraStudio::seguiScritto() {
    if (inCorso_.studio != nullptr) return;
    if (fatto_ == nullptr) return nota_->setText(inRighe(primaDelCalcolo()));
    const bool vecchi = !desk::attuale(*fatto_, forma_->scritto(), vita_.vivo().dati());
    for (VistaProspetto* vista : {varianti_, riassunto_, distribuzioni_, correlazioni_})
        vista->sospendi(vecchi);
    if (vecchi)
        return nota_->setText(
            tradotto("Questi risultati sono di prima di una modifica: Calcola li rinnova."));
    auto note = desk::avvisi(*fatto_);
    const auto& altre = varianti_->modello().prospetto().note;
    note.insert(note.end(), altre.begin(), altre.end());
    nota_->setText(inRighe(insieme(note)));
}

void FinestraStudio::riempi() {
    const QSignalBlocker muta(risultato_);
    const QVariant scelto = risultato_->currentData();
    risultato_->clear();
    if (fatto_ == nullptr) {
        for (VistaProspetto* vista : {varianti_, riassunto_})
            vista->mostra({.note = {primaDelCalcolo()}});
        return seguiScritto();
    }
    for (const auto& uno :
         desk::risultatiOfferti(fatto_->studio->dati, fatto_->studio->scritto.sicurezza))
        risultato_->addItem(qt(uno.voce), qt(uno.nome));
    risultato_->setCurrentIndex(std::max(0, risultato_->findData(scelto)));
    varianti_->mostra(desk::prospettoVarianti(*fatto_, righeTabella));
    riassunto_->mostra({.note = desk::frasi(*fatto_)});
    seguiCampioni(desk::prospettiCampioni(*fatto_));
    disegna();
}

// Their pages are there for samples alone.
void FinestraStudio::seguiCampioni(desk::ProspettiCampioni prospetti) {
    for (auto [vista, prospetto] : {std::pair(distribuzioni_, &prospetti.distribuzioni),
                                    std::pair(correlazioni_, &prospetti.correlazioni)}) {
        pagine_->setTabVisible(pagine_->indexOf(vista), !prospetto->righe.empty());
        vista->mostra(std::move(*prospetto));
    }
}

void FinestraStudio::disegna() {
    if (fatto_ == nullptr) return;
    grafico_->mostra(device::impaginato(desk::documentoGrafico(fatto_, risultato()),
                                        desk::formatoGrafico(*fatto_, risultato())));
    grafico_->adattaPagina();
}

std::string FinestraStudio::risultato() const {
    return risultato_->currentData().toString().toStdString();
}

void FinestraStudio::prendi(const QModelIndex& dove) {
    if (fatto_ == nullptr || !vita_.vivo().aperto()) return;
    if (!dove.isValid())
        return nota_->setText(tradotto("Scegliere prima una variante nella tabella."));
    const auto i = static_cast<std::uint64_t>(varianti_->modello().riga(dove.row()));
    const auto presa = desk::prendi(*fatto_, i, vita_.vivo().dati());
    if (!presa.perche.empty()) return nota_->setText(inRighe(presa.perche));
    std::string detto;
    for (const std::string& una : desk::valoriDetti(*fatto_, i)) detto += una + "\n";
    if (!presa.avviso.empty()) detto += "\n" + presa.avviso;
    const auto risposta = porte_.dialogo.domandaInformata(
        base::riempito(base::traduttore("Prendere la variante %1 nel progetto?"),
                       {std::to_string(i + 1)}),
        base::traduttore("Studio"), base::Pulsanti::siNo,
        presa.avviso.empty() ? base::Icona::domanda : base::Icona::avviso, detto);
    if (risposta != base::Risposta::si) return;
    nota_->setText(tradotto(porte_.prendi(presa.dati)
                                ? "La variante è nel progetto: Annulla la toglie."
                                : "Il progetto non si può cambiare mentre si guarda un disegno."));
}

desk::ProgettoDetto FinestraStudio::progetto() const {
    return {project::progettoAperto(), fatto_->studio->dati,
            dossier::data(dossier::fontiDiSistema({}))};
}

void FinestraStudio::scrivi(const std::string& dove) {
    const base::Disco& disco = porte_.file->disco();
    const std::string tipo = QFileInfo(qt(dove)).suffix().toLower().toStdString();
    if (tipo == "csv")
        base::scriviFile(dove, desk::csv(*fatto_), disco);
    else if (tipo == "xlsx")
        base::scriviFile(dove, workbook::xlsx(desk::cartella(*fatto_, progetto()), dove), disco);
    else
        device::scriviPdf(dove, desk::documento(fatto_, risultato(), progetto()), disco);
}

void FinestraStudio::esporta() {
    salvaDelProgetto(
        richiestaUscita("Salvataggio dello studio", project::fileCorrente, "studio",
                        {tipoPdf(), {"CSV (*.csv)", "csv"}, {"XLSX (*.xlsx)", "xlsx"}}),
        *porte_.file, porte_.dialogo, *nota_, [this](const std::string& dove) { scrivi(dove); });
}

}  // namespace korven::shell
