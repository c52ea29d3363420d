#include "results/run_outcome.hpp"

#include <algorithm>
#include <cmath>

#include "analysis/anchors_in_place.hpp"
#include "base/folders/file_names.hpp"
#include "project/project_data.hpp"
#include "results/report_data.hpp"

namespace korven::results {

namespace {

EstremiFase estremi(int k, const project::DatiProgetto& dati, int nNodi,
                    const analysis::RisultatiFase& risultati) {
    EstremiFase esito{k, dati.profFase[k], 0, risultati.momentoNodo[1], risultati.momentoNodo[1]};
    for (int i = 1; i <= nNodi; ++i) {
        esito.spostamentoMax = std::max(esito.spostamentoMax, std::fabs(risultati.yNodo[i]));
        esito.momentoMax = std::max(esito.momentoMax, risultati.momentoNodo[i]);
        esito.momentoMin = std::min(esito.momentoMin, risultati.momentoNodo[i]);
    }
    return esito;
}

}  // namespace

EsitoCalcolo leggiEsito() {
    EsitoCalcolo esito;
    esito.fileRisultati = base::nomeRisultati(project::fileCorrente);
    project::DatiProgetto memoria = project::Progetto;
    const auto dati = leggiRisultati(esito.fileRisultati, memoria);
    esito.nSeg = dati.nNodi - 1;
    for (int k = 1; k <= memoria.nFasi; ++k)
        esito.fasi.push_back(
            estremi(k, memoria, dati.nNodi, dati.fasi[static_cast<std::size_t>(k - 1)]));
    esito.nodi = nodiFasi(dati);
    esito.chiusura = dati.chiusura;
    for (int j = 1; j <= analysis::tirantiInOpera(memoria, memoria.nFasi); ++j)
        esito.tiranti.push_back({j, memoria.profTirante[j], dati.tiroTirante[j]});
    esito.momenti = verificaMomenti(dati);
    esito.taglio = verificaAlTaglio(dati);
    esito.fallite = verificheFallite(dati);
    return esito;
}

}  // namespace korven::results
