#include <csignal>

#include "analysis/calcolo_paratia.hpp"
#include "analysis/run_arrays.hpp"
#include "analysis/segment_count.hpp"
#include "analysis/trial_run.hpp"
#include "analysis/watch/run_control.hpp"
#include "base/colon.hpp"
#include "base/translated_texts.hpp"
#include "base/value_error.hpp"
#include "review/project_review.hpp"
#include "review/remark_list.hpp"

namespace korven::review {

namespace {

using base::traduttore;

class SenzaVista : public analysis::Avanzamento {
 public:
    void apri() override {}
    void iterazione(const analysis::StatoIterazione&) override {}
    void chiudi() override {}
};

std::string inUnaRiga(const std::vector<std::string>& righe) {
    std::string testo;
    for (const auto& riga : righe) {
        if (!testo.empty())
            testo += testo.back() == ':' || testo.back() == '.' ? std::string(" ")
                                                                : base::puntoEVirgola();
        testo += riga;
    }
    return testo;
}

analysis::FineCorsa comeFinita(const analysis::ControlloCorsa& controllo,
                               const analysis::EsitoProva& prova) {
    const bool senzaNumeri =
        controllo.comeFinita().modo == analysis::ModoFine::compiuta && !prova.mostrabile;
    return senzaNumeri ? analysis::FineCorsa{analysis::ModoFine::nonMostrabile}
                       : controllo.comeFinita();
}

}  // namespace

std::optional<Osservazione> provaCalcolo(const project::DatiProgetto& dati, int maxIterazioni,
                                         analysis::FineCorsa* fine) {
    const auto nSeg = analysis::leggiNSeg(analysis::vincoli(dati).incastroPiede);
    if (fine != nullptr) *fine = {analysis::ModoFine::rifiutata};
    if (!nSeg) return una("segmenti-non-ammessi", traduttore(analysis::motivoNSeg()));
    SenzaVista vista;
    const volatile std::sig_atomic_t interruzione = 0;
    analysis::ControlloCorsa controllo(vista, maxIterazioni, interruzione);
    const auto prova = analysis::provaFasi(dati, *nSeg, controllo);
    if (fine != nullptr) *fine = comeFinita(controllo, prova);
    if (controllo.oltreLimite()) return una("fase-senza-riposo", inUnaRiga(controllo.motivo()));
    if (prova.faseSingolare > 0)
        return una("fase-singolare", traduttore("fase") + " " +
                                         std::to_string(prova.faseSingolare) + base::duePunti() +
                                         traduttore(analysis::messaggioSingolare));
    if (!prova.mostrabile) return una("risultato-non-mostrabile", base::ErroreValore().what());
    return {};
}

}  // namespace korven::review
