#include <algorithm>
#include <cmath>

#include "analysis/run_arrays.hpp"
#include "project/shown_number.hpp"
#include "review/limits.hpp"
#include "review/result_checks.hpp"

namespace korven::review {

namespace {

using project::DatiProgetto;
using project::numeroMostrato;
using safety::Confronto;
using safety::MargineFase;
namespace unita = project::unita;

std::string kilonewton(double valore) { return numeroMostrato(valore, 1, unita::forza); }

bool lontano(const Confronto& piede, const Confronto& massimo) {  // by the largest of all stages
    return piede.relazione &&
           std::fabs(piede.relazione->valore - piede.statica.valore) >
               std::max(scartoStatica * std::fabs(massimo.statica.valore), staticaTrascurabile);
}

// Of the toe's shear nothing is left to say where it is the largest of the report.
bool taglioDetto(const DatiProgetto& dati, const safety::Margine& margine) {
    const double passo = dati.lunghezzaParatia / margine.nSeg;
    return review::lontano(margine.taglio) &&
           margine.taglio.relazione->z > dati.lunghezzaParatia - passo / 2;
}

// The stage whose toe the report shows with the most that is not there.
const MargineFase* piedePeggiore(const DatiProgetto& dati, const safety::Margine& margine) {
    const bool detto = taglioDetto(dati, margine);
    const MargineFase* scelta = nullptr;
    double massimo = 0;
    for (const MargineFase& fase : margine.fasi) {
        const safety::ConfrontoFase& c = fase.confronto;
        const bool taglio = !detto && lontano(c.taglioPiede, margine.taglio);
        if (!taglio && !lontano(c.momentoPiede, margine.momento)) continue;
        const double scarto =
            std::fabs(c.taglioPiede.relazione->valore - c.taglioPiede.statica.valore);
        if (scelta && scarto <= massimo) continue;
        scelta = &fase;
        massimo = scarto;
    }
    return scelta;
}

}  // namespace

void controlloIncastro(const DatiProgetto& dati, const safety::Margine& margine,
                       ElencoOsservazioni& elenco) {
    if (!analysis::vincoli(dati).incastroPiede) return;
    const Soggetto piede = campoConValore(&DatiProgetto::vincoloPiede, dati.vincoloPiede);
    if (const MargineFase* fase = piedePeggiore(dati, margine)) {
        const Confronto& M = fase->confronto.momentoPiede;
        const Confronto& T = fase->confronto.taglioPiede;
        elenco.aggiungi("valori-al-piede-incastrato", piede,
                        {std::to_string(fase->fase), kilonewton(M.relazione->valore),
                         kilonewton(T.relazione->valore), kilonewton(M.statica.valore),
                         kilonewton(T.statica.valore)});
    }
    const auto cede = std::max_element(
        margine.fasi.begin(), margine.fasi.end(), [](const auto& una, const auto& altra) {
            return una.piede.cedimento.value_or(0) < altra.piede.cedimento.value_or(0);
        });
    if (cede == margine.fasi.end() || cede->piede.cedimento.value_or(0) <= cedimentoIncastro)
        return;
    elenco.aggiungi(
        "incastro-cedevole", piede,
        {numeroMostrato(*cede->piede.cedimento, 1, unita::percento), std::to_string(cede->fase)});
}

}  // namespace korven::review
