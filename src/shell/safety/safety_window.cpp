#include "shell/safety/safety_window.hpp"

#include <QPointer>
#include <QSplitter>
#include <QVBoxLayout>
#include <memory>
#include <utility>

#include "live/limit_wall.hpp"
#include "shell/companions/button_row.hpp"
#include "shell/forms/wrapped_label.hpp"
#include "shell/qt_text.hpp"
#include "shell/safety/mechanism_view.hpp"
#include "shell/tables/table_pages.hpp"
#include "shell/tables/table_view.hpp"
#include "shell/wrapped_text.hpp"
#include "tables/margin_table.hpp"

namespace korven::shell {

namespace {

using tables::Prospetto;
using tables::Riassunto;

constexpr QSize misuraComoda(1180, 560);
constexpr const char* paginaGuida = "finestra_sicurezza";

}  // namespace

FinestraSicurezza::FinestraSicurezza(QWidget& principale, VitaProgetto& vita,
                                     std::function<void(const std::string&)> guida)
    : FinestraCompagna(principale, QStringLiteral("sicurezza"), tradotto("Sicurezza"),
                       misuraComoda),
      vita_(vita) {
    verdetto_ = etichettaInRighe("verdetto", this);
    QFont grassetto = font();
    grassetto.setBold(true);
    verdetto_->setFont(grassetto);
    frasi_ = etichettaInRighe("frasi", this);
    auto* meta = new QSplitter(Qt::Horizontal, this);
    meta->setChildrenCollapsible(false);
    pagine_ = new PagineProspetti(meta);
    margine_ = pagine_->aggiungi("margine", "Margine per fase");
    statica_ = pagine_->aggiungi("statica", "Equilibrio e relazione");
    maglia_ = pagine_->aggiungi("maglia", "Errore di maglia");
    meccanismo_ = new VistaMeccanismo(meta);
    meta->addWidget(pagine_);
    meta->addWidget(meccanismo_);
    meta->setStretchFactor(0, 2);
    meta->setStretchFactor(1, 1);
    meta->setSizes({5 * misuraComoda.width(), 2 * misuraComoda.width()});
    auto* colonna = new QVBoxLayout(this);
    colonna->addWidget(verdetto_);
    colonna->addWidget(meta, 1);
    colonna->addWidget(frasi_);
    colonna->addWidget(farePulsanti(guida));
    margine_->setFocus();
    connect(&vita, &VitaProgetto::cambiata, this, [this] {
        if (isVisible()) segui();
    });
}

QWidget* FinestraSicurezza::farePulsanti(const std::function<void(const std::string&)>& guida) {
    auto* riga = new FilaPulsanti(*this);
    pagine_->aggiungiCopia(*riga);
    riga->aggiungiGuida(guida ? [guida] { guida(paginaGuida); } : std::function<void()>());
    riga->finisci();
    return riga;
}

void FinestraSicurezza::showEvent(QShowEvent* evento) {
    segui();
    FinestraCompagna::showEvent(evento);
}

void FinestraSicurezza::segui() {
    const Riassunto riassunto = tables::riassunto(vita_.vivo());
    const bool inCorso = riassunto.stato == Riassunto::Stato::inCorso;
    verdetto_->setText(inRighe(riassunto.verdetto));
    for (VistaProspetto* vista : {margine_, statica_, maglia_}) vista->sospendi(inCorso);
    frasi_->setEnabled(!inCorso);
    if (!inCorso) mostra(riassunto);
}

void FinestraSicurezza::mostra(const Riassunto& riassunto) {
    if (riassunto.margine == nullptr) {
        for (VistaProspetto* vista : {margine_, statica_, maglia_})
            vista->mostra({.note = {riassunto.verdetto}});
        meccanismo_->mostra({}, qt(riassunto.verdetto));
        frasi_->setText(QString());
        return;
    }
    const safety::Margine& margine = *riassunto.margine;
    const Prospetto perFase = tables::prospettoMargine(margine);
    std::vector<std::string> righe = riassunto.frasi, detto = {riassunto.verdetto};
    for (auto* testi : {&righe, &detto})
        testi->insert(testi->end(), perFase.note.begin(), perFase.note.end());
    margine_->mostra(perFase);
    statica_->mostra(tables::prospettoStatica(margine, vita_.vivo().parete().dati));
    maglia_->mostra(tables::prospettoMaglia(margine));
    frasi_->setText(inRighe(insieme(righe)));
    meccanismo_->mostra(live::pareteAlLimite(vita_.vivo().parete(), margine), insieme(detto),
                        tables::didascaliaMeccanismo(margine));
}

void collegaSicurezza(commands::FormeProgramma& forme, QWidget& principale, VitaProgetto& vita) {
    forme.sicurezza = [finestra = std::make_shared<QPointer<FinestraSicurezza>>(), &principale,
                       &vita, guida = forme.paginaGuida] {
        if (*finestra == nullptr) *finestra = new FinestraSicurezza(principale, vita, guida);
        (*finestra)->mostraDavanti();
    };
}

}  // namespace korven::shell
