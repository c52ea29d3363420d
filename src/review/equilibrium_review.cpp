#include <cmath>

#include "equilibrium/staged_equilibrium.hpp"
#include "review/equilibrium_remarks.hpp"
#include "review/result_checks.hpp"
#include "safety/words.hpp"

namespace korven::review {

namespace {

using analysis::ModoFine;
using equilibrium::Instabile;
using project::DatiProgetto;
using safety::Causa;
using safety::Diagnosi;

std::vector<std::string> campoSolo(const project::Membro& membro, int riga = 1) {
    return {project::nomeStabile(project::campo(membro), riga)};
}

// The fields behind data for which no equilibrium is certain. Of the soil it is the stage that
// brings node and side together; the sentence has the depth.
std::vector<std::string> campi(const DatiProgetto& dati, const Diagnosi& d) {
    switch (d.instabile.che) {
        case Instabile::tirante:
            return campoSolo(&DatiProgetto::rigTirante, d.instabile.tirante);
        case Instabile::parete:
            return campoSolo(&DatiProgetto::rigidezzaEJ);
        case Instabile::modulo:
            return campoSolo(&DatiProgetto::metodoKs);
        case Instabile::limiti:
            return campoSolo(&DatiProgetto::metodoSpinte);
        case Instabile::no:
            break;
    }
    return scavo(dati, d.fase).campi;
}

Voce voce(Causa causa) {
    switch (causa) {
        case Causa::meccanismo:
            return "meccanismo";
        case Causa::nonDefinito:
            return "equilibrio-non-definito";
        default:
            return "nessun-numero";
    }
}

}  // namespace

void controlloEquilibrio(const DatiProgetto& dati, const safety::Margine& margine,
                         ElencoOsservazioni& elenco) {
    // A soil without a value is told of what is typed.
    if (const safety::MargineFase* fase = margine.caduta(); fase && fase->perche)
        elenco.conParole(voce(fase->perche->causa), {{}, campi(dati, *fase->perche)},
                         safety::frase(*fase->perche));
    if (const auto d = oscillazione(dati, margine))
        elenco.conParole(codiceOscilla, {{}, scavo(dati, d->fase).campi}, safety::frase(*d));
}

std::optional<Diagnosi> oscillazione(const DatiProgetto& dati, const safety::Margine& margine) {
    if (!margine.sta()) return std::nullopt;
    const analysis::FineCorsa& fine = margine.corsa;
    if (fine.modo != ModoFine::singolare && fine.modo != ModoFine::oltreLimite) return std::nullopt;
    const auto& fase = margine.fasi.at(static_cast<std::size_t>(fine.fase - 1));
    return Diagnosi{.causa = Causa::oscilla,
                    .fase = fine.fase,
                    .paratia = dati.lunghezzaParatia,
                    .spostamento = std::fabs(fase.estremi.spostamento.valore),
                    .ostacolo = safety::ostacolo(fine)};
}

}  // namespace korven::review
