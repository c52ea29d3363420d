#include "shell/norms/norms_window.hpp"

#include <QLabel>
#include <QPushButton>
#include <utility>

#include "base/files.hpp"
#include "base/translated_texts.hpp"
#include "device/document_files.hpp"
#include "dossier/identity.hpp"
#include "factors/words.hpp"
#include "project/output_guard.hpp"
#include "project/project_data.hpp"
#include "shell/companions/button_row.hpp"
#include "shell/norms/code_choice.hpp"
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

constexpr const char* paginaGuida = "finestra_norme";

}  // namespace

FinestraNorme::FinestraNorme(QWidget& principale, VitaProgetto& vita, PorteNorme porte,
                             std::function<void(const std::string&)> guida)
    : FinestraProspetti(principale, vita, QStringLiteral("norme"), tradotto("Norme")),
      porte_(std::move(porte)),
      lavoro_(new NormeInDisparte(
          calcoloNorme(),
          [this](const desk::DomandaNorma& domanda, const RispostaNorma& risposta) {
              accogli(domanda.numero, risposta);
          },
          this)) {
    scelta_ = new SceltaNorma({.etichetta = "&Norma"}, this);
    comincia({scelta_});
    effetti_ = prospetto("effetti", "Combinazioni e inviluppo");
    verifiche_ = prospetto("verifiche", "Verifiche");
    tiri_ = prospetto("tiri", "Tiranti e puntoni");
    fattori_ = prospetto("fattori", "Coefficienti applicati");
    fonti_ = prospetto("fonti", "Coefficienti e fonti");
    note_ = prospetto("note", "Note");
    finisci(farePulsanti(guida));
    connect(scelta_, &SceltaNorma::cambiata, this, [this] { scegli(); });
    svuota({});
    effetti_->setFocus();
}

QWidget* FinestraNorme::farePulsanti(const std::function<void(const std::string&)>& guida) {
    auto* riga = new FilaPulsanti(*this);
    pagine().aggiungiCopia(*riga);
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

void FinestraNorme::leggi() {
    vive_.norme(porte_.leggi());
    scelta_->offri(vive_.norme(), vive_.scelta());
    guardaOra();
}

void FinestraNorme::scegli() {
    if (scelta_->scelta() >= 0) vive_.scegli(scelta_->scelta());
    vive_.natura(scelta_->natura());
    guardaOra();
}

int FinestraNorme::osserva() {
    const live::ProgettoVivo& vivo = vita().vivo();
    vive_.guarda(vivo.aperto() ? &vivo.parete() : nullptr);
    return vive_.domanda() ? vive_.domanda()->numero : 0;
}

void FinestraNorme::chiedi() { lavoro_->chiedi(*vive_.domanda()); }

void FinestraNorme::lascia() { lavoro_->ferma(); }

void FinestraNorme::accogli(int numero, const RispostaNorma& risposta) {
    if (risposta.combinazioni == nullptr)
        vive_.rinuncia(numero, risposta.guasto);
    else
        vive_.rispondi(numero, risposta.combinazioni);
    risposto();
}

void FinestraNorme::mostra() {
    const bool sospeso = vive_.domanda().has_value();
    sospendi(sospeso);
    for (QPushButton* pulsante : {pdf_, xlsx_})
        pulsante->setEnabled(!sospeso && vive_.combinazioni() != nullptr);
    const bool nessuna = vive_.combinazioni() == nullptr;
    if (nessuna || !vive_.impedimento().empty()) {
        mostrate_ = nullptr;
        svuota(vive_.impedimento().empty() ? inCorso() : qt(vive_.impedimento()));
    } else if (vive_.combinazioni() != mostrate_) {
        riempi();
    }
    nota().setText(sospeso ? inCorso() : QString());
}

void FinestraNorme::riempi() {
    mostrate_ = vive_.combinazioni();
    const auto note = factors::note(*mostrate_, vita().vivo().dati());
    frasi().setText(inRighe(insieme(desk::frasi(*mostrate_))));
    effetti_->mostra(tables::prospettoEffetti(*mostrate_));
    auto verifiche = tables::prospettoVerifiche(*mostrate_);
    if (verifiche.righe.empty()) verifiche.note = note;
    verifiche_->mostra(std::move(verifiche));
    auto tiri = tables::prospettoTiri(*mostrate_, vita().vivo().dati());
    if (tiri.righe.empty())
        tiri.note = {
            base::traduttore("Nessun tirante o puntone è in opera in qualche fase in equilibrio.")};
    tiri_->mostra(std::move(tiri));
    fattori_->mostra(tables::prospettoFattori(*mostrate_));
    fonti_->mostra(desk::prospettoFonti(mostrate_->norma));
    note_->mostra({.note = note});
}

desk::ProgettoDetto FinestraNorme::progetto() const {
    return {project::progettoAperto(), vita().vivo().dati(),
            dossier::data(dossier::fontiDiSistema({}))};
}

void FinestraNorme::salva(const char* titolo, const TipoFile& tipo,
                          const std::function<void(const std::string&)>& scrivi) {
    salvaDelProgetto(richiestaUscita(titolo, project::fileCorrente, "combinazioni", {tipo}),
                     *porte_.file, porte_.dialogo, nota(), scrivi);
}

}  // namespace korven::shell
