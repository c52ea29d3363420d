#pragma once

#include <string>
#include <vector>

#include "analysis/result_file.hpp"
#include "analysis/staged_run.hpp"
#include "project/project_data.hpp"
#include "results/shear_extremes.hpp"

namespace korven::results {

/// What the anchors and the shear of a stage come to, worked out from the stored results.
struct AzioniFase {
    int nTiranti = 0;  ///< anchors in place, from the first row of their table
    /// Displacement of each anchor's node when the anchor came into place [m].
    base::Tabella<double, project::massimoTiranti> yTirante;
    /// Shear along the wall [t/m]; at each anchor the value just below it.
    analysis::VettoreNodi taglioNodo;
    results::EstremiTaglio estremi{};
};

/// All that a report or a diagram shows: a project and the results of its stages.
struct DatiRelazione {
    project::DatiProgetto progetto;
    int nNodi = 0;
    double passo = 0;  ///< distance of the nodes [m]
    /// Code of the earth pressure method that the run used, as the head of the result file holds
    /// it; `progetto` has what reading the head makes of it.
    double metodoUsato = 0;
    std::vector<analysis::RisultatiFase> fasi;  ///< element 0 is stage 1
    std::vector<AzioniFase> azioni;             ///< the same
    analysis::ChiusuraRisultati chiusura;

    /// Force of each anchor at the end [t], see `tiroFinale`.
    base::Tabella<double, project::massimoTiranti> tiroTirante;
    /// Largest absolute shear of the last stage [t/m]. Each stage overwrites that of the one
    /// before: the shear check looks at the last stage alone.
    double Vmax = 0;
};

/// Force that the report shows for an anchor [t]: the prestress, and the stiffness times how far
/// its node went beyond the place where the anchor was set. A node that never passed that place
/// leaves the prestress alone, for both kinds of anchor.
[[nodiscard]] double tiroFinale(double pretTirante, double rigTirante, double maxSpostTirante,
                                double yTirante);

/// Reads a result file written under the mesh of `nseg.txt`.
///
/// @param percorso  the result file
/// @param memoria   the project in memory: its headings appear in the report, and the fields that
///                  an old file lacks are taken from it. Changed as by every reading of the head: a
///                  `metodoSpinte` above 1 becomes 1, and `faldaValle` goes through the stages to
///                  the last one's level
/// @throws base::ErroreFile if the file is missing, cut short or of another mesh
[[nodiscard]] DatiRelazione leggiRisultati(const std::string& percorso,
                                           project::DatiProgetto& memoria);

/// The same of a file that a mesh of `nSeg` segments has written, whatever `nseg.txt` says.
[[nodiscard]] DatiRelazione leggiRisultati(const std::string& percorso, int nSeg,
                                           project::DatiProgetto& memoria);

/// The text of the result file that a run leaves, UTF-8.
/// @param testa  the project as it was before the run
/// @pre all stages came to rest
/// @throws base::ErroreValore on a number that is none
[[nodiscard]] std::string testoRisultati(const project::DatiProgetto& testa, int nSeg,
                                         const analysis::EsitoCorsa& corsa,
                                         const analysis::ChiusuraRisultati& chiusura);

/// The same as `leggiRisultati` of a run in memory. Its results go through the text of the file
/// that it would have left, so that they are those of the report to the last digit; no file is
/// written or read, not even `nseg.txt`.
/// @param testa  as for `testoRisultati`, which tells what else is required and thrown
[[nodiscard]] DatiRelazione risultatiInMemoria(const project::DatiProgetto& testa, int nSeg,
                                               const analysis::EsitoCorsa& corsa,
                                               const analysis::ChiusuraRisultati& chiusura);

}  // namespace korven::results
