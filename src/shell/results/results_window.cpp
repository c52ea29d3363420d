#include "shell/results/results_window.hpp"

#include <QComboBox>
#include <QHBoxLayout>
#include <QPointer>
#include <QVBoxLayout>
#include <algorithm>
#include <memory>
#include <utility>

#include "shell/companions/button_row.hpp"
#include "shell/forms/wrapped_label.hpp"
#include "shell/qt_text.hpp"
#include "shell/results/curves_view.hpp"
#include "shell/tables/table_pages.hpp"
#include "shell/tables/table_view.hpp"
#include "shell/wrapped_text.hpp"
#include "tables/anchor_table.hpp"
#include "tables/check_table.hpp"
#include "tables/curves.hpp"
#include "tables/node_table.hpp"
#include "tables/quantities.hpp"
#include "tables/stage_table.hpp"

namespace korven::shell {

namespace {

using tables::Prospetto;

constexpr QSize misuraComoda(1000, 540);
constexpr const char* paginaGuida = "finestra_risultati";

}  // namespace

FinestraRisultati::FinestraRisultati(QWidget& principale, VitaProgetto& vita,
                                     std::function<void(const std::string&)> guida)
    : FinestraCompagna(principale, QStringLiteral("risultati"), tradotto("Risultati"),
                       misuraComoda),
      vita_(vita) {
    auto* colonna = new QVBoxLayout(this);
    colonna->addWidget(fareRiga());
    pagine_ = new PagineProspetti(this);
    colonna->addWidget(pagine_, 1);
    nodi_ = pagine_->aggiungi("nodi", "Nodi");
    nodi_->setWordWrap(false);  // rows of one height, of which there are hundreds
    tiranti_ = pagine_->aggiungi("tiranti", "Tiranti");
    verifiche_ = pagine_->aggiungi("verifiche", "Verifiche");
    fasi_ = pagine_->aggiungi("fasi", "Fasi");
    farePaginaCurve();
    nota_ = etichettaInRighe("nota", this);
    colonna->addWidget(nota_);
    colonna->addWidget(farePulsanti(guida));
    connect(pagine_, &QTabWidget::currentChanged, this, [this] { seguiPagina(); });
    connect(fasi_, &QAbstractItemView::activated, this, [this](const QModelIndex& indice) {
        scegli(static_cast<int>(fasi_->modello().riga(indice.row())) + 1);
    });
    nodi_->setFocus();
    connect(&vita, &VitaProgetto::cambiata, this, [this] {
        if (isVisible()) segui();
    });
}

QWidget* FinestraRisultati::fareRiga() {
    auto* riga = new QWidget(this);
    auto* disposizione = new QHBoxLayout(riga);
    disposizione->setContentsMargins(0, 0, 0, 0);
    scelta_ = new QComboBox(riga);
    scelta_->setObjectName(QStringLiteral("fase"));
    auto* etichetta = new QLabel(tradotto("&Mostra"), riga);
    etichetta->setBuddy(scelta_);
    scelta_->setAccessibleName(tradotto("Fase mostrata"));
    scelta_->setSizeAdjustPolicy(QComboBox::AdjustToContents);
    disposizione->addWidget(etichetta);
    disposizione->addWidget(scelta_);
    disposizione->addStretch();
    connect(scelta_, &QComboBox::activated, this, [this](int fase) { scegli(fase); });
    return riga;
}

void FinestraRisultati::farePaginaCurve() {
    curve_ = new VistaCurve(pagine_);
    pagine_->addTab(curve_, tradotto("Curve"));
    connect(curve_, &VistaCurve::letta, this, [this](const QString& testo) {
        if (pagine_->currentWidget() == curve_) nota_->setText(inRighe(testo));
    });
    connect(curve_, &VistaCurve::faseChiesta, this, [this](int passo) {
        if (vita_.vivo().aperto()) scegli(std::max(vita_.vivo().vista().fase + passo, 0));
    });
}

QWidget* FinestraRisultati::farePulsanti(const std::function<void(const std::string&)>& guida) {
    auto* riga = new FilaPulsanti(*this);
    pagine_->aggiungiCopia(*riga);
    riga->aggiungiGuida(guida ? [guida] { guida(paginaGuida); } : std::function<void()>());
    riga->finisci();
    return riga;
}

void FinestraRisultati::showEvent(QShowEvent* evento) {
    segui();
    FinestraCompagna::showEvent(evento);
}

void FinestraRisultati::scegli(int fase) {
    live::Vista vista = vita_.vivo().vista();
    vista.fase = fase;
    vita_.mostra(vista);
}

void FinestraRisultati::segui() {
    seguiScelta();
    seguiPagina();
}

// The texts stay where they are while the stages do.
void FinestraRisultati::seguiScelta() {
    const live::ProgettoVivo& vivo = vita_.vivo();
    scelta_->setEnabled(vivo.aperto());
    if (!vivo.aperto()) return;
    const int voci = std::clamp(vivo.dati().nFasi, 0, project::massimoFasi) + 1;
    while (scelta_->count() > voci) scelta_->removeItem(scelta_->count() - 1);
    while (scelta_->count() < voci) scelta_->addItem(qt(tables::titoloFase(scelta_->count())));
    scelta_->setCurrentIndex(vivo.vista().fase);
}

void FinestraRisultati::seguiPagina() {
    const live::ProgettoVivo& vivo = vita_.vivo();
    const QWidget* pagina = pagine_->currentWidget();
    if (!vivo.aperto()) {
        nota_->setText(tradotto("Nessun progetto aperto"));
        return;
    }
    const live::PareteViva& parete = vivo.parete();
    const int fase = vivo.vista().fase;
    if (pagina == nodi_)
        mostra(fase == 0 ? tables::prospettoInviluppo(parete) : tables::prospettoNodi(parete, fase),
               *nodi_);
    if (pagina == tiranti_) mostra(tables::prospettoTiranti(vivo), *tiranti_);
    if (pagina == verifiche_) mostraVerifiche();
    if (pagina == fasi_) mostra(tables::prospettoFasi(parete), *fasi_);
    if (pagina == curve_) mostraCurve();
}

void FinestraRisultati::mostra(const Prospetto& prospetto, VistaProspetto& vista) {
    nota_->setText(inRighe(insieme(prospetto.note)));
    vista.mostra(prospetto);
}

// The checks come with the report's numbers; until then those of the wall before are grey.
void FinestraRisultati::mostraVerifiche() {
    const live::ProgettoVivo& vivo = vita_.vivo();
    verifiche_->sospendi(vivo.lenti() == nullptr);
    if (vivo.lenti() == nullptr) return nota_->setText(tradotto("Calcolo in corso") + "...");
    if (vivo.lenti()->margine)
        return mostra(tables::prospettoVerifiche(vivo.parete(), *vivo.lenti()->margine),
                      *verifiche_);
    mostra(Prospetto{.note = {vivo.parete().rifiuto}}, *verifiche_);
}

void FinestraRisultati::mostraCurve() {
    const live::ProgettoVivo& vivo = vita_.vivo();
    const int fase = vivo.vista().fase;
    curve_->mostra(tables::curve(vivo.parete(), fase), fase > 0 ? vivo.dati().profFase[fase] : 0);
}

void collegaRisultati(commands::FormeProgramma& forme, QWidget& principale, VitaProgetto& vita) {
    forme.risultati = [finestra = std::make_shared<QPointer<FinestraRisultati>>(), &principale,
                       &vita, guida = forme.paginaGuida] {
        if (*finestra == nullptr) *finestra = new FinestraRisultati(principale, vita, guida);
        (*finestra)->mostraDavanti();
    };
}

}  // namespace korven::shell
