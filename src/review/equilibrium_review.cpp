#include <cmath>

#include "equilibrium/staged_equilibrium.hpp"
#include "review/result_checks.hpp"
#include "safety/words.hpp"

namespace korven::review {

namespace {

using analysis::ModoFine;
using equilibrium::EsitoFase;
using equilibrium::Instabile;
using project::DatiProgetto;
using safety::Causa;
using safety::Diagnosi;
using safety::MargineFase;

std::vector<std::string> campoSolo(const project::Membro& membro, int riga = 1) {
    return {project::nomeStabile(project::campo(membro), riga)};
}

// The fields behind data for which no equilibrium is certain. Of the soil it is the stage that
// brings node and side together; the sentence has the depth.
std::vector<std::string> campi(const DatiProgetto& dati, const MargineFase& fase) {
    switch (fase.instabile.che) {
        case Instabile::tirante:
            return campoSolo(&DatiProgetto::rigTirante, fase.instabile.tirante);
        case Instabile::parete:
            return campoSolo(&DatiProgetto::rigidezzaEJ);
        case Instabile::modulo:
            return campoSolo(&DatiProgetto::metodoKs);
        case Instabile::limiti:
            return campoSolo(&DatiProgetto::metodoSpinte);
        case Instabile::no:
            break;
    }
    return scavo(dati, fase.fase).campi;
}

void caduta(const DatiProgetto& dati, const safety::Margine& margine, const MargineFase& fase,
            ElencoOsservazioni& elenco) {
    Diagnosi d{.fase = fase.fase, .paratia = dati.lunghezzaParatia};
    const auto avvisa = [&](Voce voce, Causa causa) {
        d.causa = causa;
        elenco.conParole(voce, {{}, campi(dati, fase)}, safety::frase(d));
    };
    switch (*fase.esito) {
        case EsitoFase::meccanismo:
            d.moto = fase.moto;
            d.parti = fase.parti;
            if (margine.lunghezza.lunghezza.value_or(0) > dati.lunghezzaParatia)
                d.lunghezza = margine.lunghezza.lunghezza;
            return avvisa("meccanismo", Causa::meccanismo);
        case EsitoFase::nonDefinito:
            d.instabile = fase.instabile;
            return avvisa("equilibrio-non-definito", Causa::nonDefinito);
        case EsitoFase::nessunNumero:
            d.newton = fase.newton;
            return avvisa("nessun-numero", Causa::nessunNumero);
        case EsitoFase::equilibrio:
            break;
    }
}

}  // namespace

void controlloEquilibrio(const DatiProgetto& dati, const safety::Margine& margine,
                         const analysis::FineCorsa& fine, ElencoOsservazioni& elenco) {
    // A soil without a value is told of what is typed.
    if (const MargineFase* fase = margine.caduta(); fase && !fase->rifiuto)
        caduta(dati, margine, *fase, elenco);
    if (!margine.sta()) return;
    if (fine.modo != ModoFine::singolare && fine.modo != ModoFine::oltreLimite) return;
    const auto& fase = margine.fasi.at(static_cast<std::size_t>(fine.fase - 1));
    const Diagnosi d{.causa = Causa::oscilla,
                     .fase = fine.fase,
                     .paratia = dati.lunghezzaParatia,
                     .spostamento = std::fabs(fase.estremi.spostamento.valore)};
    elenco.conParole("iterazione-che-oscilla", {{}, scavo(dati, fine.fase).campi},
                     safety::frase(d));
}

}  // namespace korven::review
