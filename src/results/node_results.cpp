#include "results/node_results.hpp"

#include <algorithm>

#include "analysis/vertical_stress.hpp"
#include "analysis/wall_mesh.hpp"
#include "project/codes.hpp"
#include "results/shear_extremes.hpp"
#include "results/working_pressures.hpp"

namespace korven::results {

namespace {

// A report takes Coulomb's limits whatever the run took; these are the pressures of the run.
void pressioni(const DatiRelazione& dati, const analysis::RisultatiFase& fase, int i,
               NodiFase& nodi) {
    const double z = nodi.z.back();
    const PressioniNodo p =
        pressioniNodo(fase, i, dati.metodoUsato, resistenzaNodo(dati.progetto, z));
    nodi.monte.push_back(p.pm);
    nodi.valle.push_back(p.pv);
}

// Beside the wall an anchor has no effect.
double tiro(const DatiRelazione& dati, const analysis::RisultatiFase& fase, int j, int nodo,
            double yTirante) {
    if (nodo < 1 || nodo > dati.nNodi) return 0;
    const double F = tiroNelTaglio(dati.progetto, j, fase.yNodo[nodo], yTirante);
    const bool compressione =
        dati.progetto.tipoTirante[j] == project::TipoTirante::trazioneCompressione;
    return compressione ? F : std::max(F, 0.0);
}

NodiFase nodiFase(const DatiRelazione& dati, int s) {
    const auto k = static_cast<std::size_t>(s) - 1;
    const analysis::RisultatiFase& fase = dati.fasi[k];
    const AzioniFase& azioni = dati.azioni[k];
    const project::DatiProgetto& d = dati.progetto;
    NodiFase nodi;
    nodi.costante = d.pressioneOrizz;
    for (int i = 1; i <= dati.nNodi; ++i) {
        nodi.z.push_back(analysis::zNodo(i, dati.passo));
        nodi.y.push_back(fase.yNodo[i]);
        nodi.momento.push_back(fase.momentoNodo[i]);
        nodi.taglio.push_back(azioni.taglioNodo[i]);
        pressioni(dati, fase, i, nodi);
        nodi.acqua.push_back(analysis::pressioneAcquaNetta(nodi.z.back(), d.faldaMonte,
                                                           d.faldaFase[s], d.gammaAcqua));
    }
    nodi.taglioSopra = nodi.taglio;
    for (int j = 1; j <= azioni.nTiranti; ++j) {
        const int nodo = analysis::nodoTirante(d.profTirante[j], dati.passo);
        nodi.tiri.push_back(tiro(dati, fase, j, nodo, azioni.yTirante[j]));
        // The top has one side.
        if (nodo > 1 && nodo <= dati.nNodi)
            nodi.taglioSopra[static_cast<std::size_t>(nodo) - 1] -= nodi.tiri.back();
    }
    return nodi;
}

}  // namespace

std::vector<NodiFase> nodiFasi(const DatiRelazione& dati) {
    std::vector<NodiFase> fasi;
    for (int s = 1; s <= static_cast<int>(dati.fasi.size()); ++s) fasi.push_back(nodiFase(dati, s));
    return fasi;
}

}  // namespace korven::results
