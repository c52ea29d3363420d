#include "review/result_review.hpp"

#include "review/result_checks.hpp"
#include "safety/short_margin.hpp"

namespace korven::review {

using project::DatiProgetto;

Soggetto scavo(const DatiProgetto& dati, int fase) {
    Soggetto soggetto = rigaConValore(dati, &DatiProgetto::profFase, fase);
    soggetto.campi.push_back(project::nomeStabile(project::campo(&DatiProgetto::lunghezzaParatia)));
    return soggetto;
}

Osservazioni esaminaRisultati(const DatiProgetto& scritti, int nSeg) {
    const auto trovato = safety::margineBreve(scritti, nSeg);
    return trovato ? esaminaRisultati(trovato->dati, trovato->margine) : Osservazioni();
}

Osservazioni esaminaRisultati(const DatiProgetto& dati, const safety::Margine& margine) {
    ElencoOsservazioni elenco;
    controlloEquilibrio(dati, margine, elenco);
    controlloMargine(dati, margine, elenco);
    controlloVerifiche(dati, margine, elenco);
    controlloGiudizi(margine, elenco);
    controlloTiri(dati, margine, elenco);
    controlloStatica(dati, margine, elenco);
    controlloIncastro(dati, margine, elenco);
    controlloMaglia(dati, margine, elenco);
    return elenco.ordinate();
}

}  // namespace korven::review
