#include <cmath>

#include "safety/statics_beside_report.hpp"
#include "studies/variant.hpp"

// A variant by the specified run in the place of the equilibrium solution.

namespace korven::studies {

namespace {

using analysis::ModoFine;
using safety::Causa;

Motivo motivo(safety::Ostacolo ostacolo) {
    switch (ostacolo) {
        case safety::Ostacolo::singolare:
            return Motivo::singolare;
        case safety::Ostacolo::limite:
            return Motivo::limite;
        case safety::Ostacolo::oscillazione:
            break;
    }
    return Motivo::oscillazione;
}

equilibrium::Estremo estremo(const results::NumeroRelazione& numero) {
    return {numero.valore, numero.z, numero.fase};
}

equilibrium::Estremo massimo(const std::vector<std::vector<double>>& spostamenti, double h) {
    equilibrium::Estremo trovato;
    for (std::size_t k = 0; k < spostamenti.size(); ++k)
        for (std::size_t i = 0; i < spostamenti[k].size(); ++i)
            if (std::fabs(spostamenti[k][i]) > std::fabs(trovato.valore))
                trovato = {spostamenti[k][i], static_cast<double>(i) * h, static_cast<int>(k) + 1};
    return trovato;
}

}  // namespace

void CalcoloVariante::iterazione(analysis::OsservatoreCorsa& osservatore) {
    RisultatoVariante& r = risultato_;
    const auto relazione = safety::relazioneInMemoria(dati_, domanda_.nSeg, osservatore);
    if (!relazione.numeri) return senzaRiposo(relazione.fine);
    const results::NumeriRelazione& n = *relazione.numeri;
    r.estremi.spostamento = massimo(relazione.spostamenti, dati_.lunghezzaParatia / domanda_.nSeg);
    r.estremi.momentoMassimo = estremo(n.momentoMassimo());
    r.estremi.momentoMinimo = estremo(n.momentoMinimo());
    r.estremi.taglio = estremo(n.taglio);
    r.tiri = n.tiriMassimi;
    r.flessione = n.flessione;
    r.taglio = n.taglioSezione;
}

// The equilibrium solution tells whether the wall falls or the iteration alone does.
void CalcoloVariante::senzaRiposo(const analysis::FineCorsa& fine) {
    RisultatoVariante& r = risultato_;
    r.faseCaduta = fine.fase;
    if (fine.modo == ModoFine::fermata) {
        r.causa = Causa::fermato;
        return;
    }
    equilibrio();
    if (!r.sta()) return;
    r = {};
    r.faseCaduta = fine.fase;
    r.causa = fine.modo == ModoFine::nonMostrabile ? Causa::nessunNumero : Causa::oscilla;
    r.motivo = fine.modo == ModoFine::nonMostrabile ? Motivo::nessunNumero
                                                    : motivo(safety::ostacolo(fine));
    verifiche();
}

}  // namespace korven::studies
