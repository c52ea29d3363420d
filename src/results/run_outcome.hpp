#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "analysis/result_file.hpp"
#include "results/node_results.hpp"
#include "results/structure_checks.hpp"

namespace korven::results {

/// The extremes of one stage, from the result file.
struct EstremiFase {
    int fase = 0;
    double profFase = 0;        ///< excavation depth [m]
    double spostamentoMax = 0;  ///< largest absolute displacement [m]
    double momentoMax = 0;      ///< largest signed moment [t m]
    double momentoMin = 0;      ///< smallest signed moment [t m]
};

/// An anchor that is in place in the last stage.
struct EsitoTirante {
    int tirante = 0;
    double profondita = 0;   ///< depth of the head [m]
    double tiroMassimo = 0;  ///< largest force, as the report shows it [t]
};

struct EsitoCalcolo {
    int nSeg = 0;
    std::string fileRisultati;
    std::vector<EstremiFase> fasi;
    std::vector<NodiFase> nodi;  ///< of the same stages
    analysis::ChiusuraRisultati chiusura;
    std::vector<EsitoTirante> tiranti;
    std::optional<ConfrontoMomenti> momenti;           ///< nothing without a defined section
    std::optional<structure::ConfrontoTaglio> taglio;  ///< nothing without stirrups
    std::vector<std::string_view>
        fallite;  ///< section checks that fail, keys of the table of texts
};

/// The outcome of the last run of the current project, read back from its result file. Changes
/// nothing in memory.
/// @throws base::ErroreFile if the file is cut short or of another mesh
[[nodiscard]] EsitoCalcolo leggiEsito();

}  // namespace korven::results
