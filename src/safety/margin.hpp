#pragma once

#include <optional>
#include <vector>

#include "analysis/run_observer.hpp"
#include "equilibrium/staged_equilibrium.hpp"
#include "project/project_data.hpp"
#include "safety/check_verdict.hpp"
#include "safety/diagnosis.hpp"
#include "safety/mesh_error.hpp"
#include "safety/passive_use.hpp"
#include "safety/shortest_wall.hpp"
#include "safety/statics_beside_report.hpp"
#include "safety/strength_reduction.hpp"
#include "safety/toe_movement.hpp"

namespace korven::safety {

/// The margin of one stage. What the equilibrium solution does not give stays empty.
struct MargineFase {
    int fase = 0;
    double scavo = 0;  ///< depth of the excavation [m]
    /// Nothing for a stage after one without equilibrium, of which no number is known.
    std::optional<equilibrium::EsitoFase> esito;
    std::optional<analysis::RifiutoSuolo> rifiuto;  ///< the soil has no value: of `nonDefinito`
    std::optional<Diagnosi> perche;                 ///< of all others that do not stand
    /// Of a stage with or without equilibrium: below 1 it is what the wall is short of.
    Riduzione riduzione;
    UsoPassiva passiva;  ///< of a stage in equilibrium, as all below
    MotoPiede piede;
    equilibrium::Estremi estremi;  ///< displacements, and the statics of the nodes
    ConfrontoFase confronto;

    [[nodiscard]] bool inEquilibrio() const { return esito == equilibrium::EsitoFase::equilibrio; }
};

/// All that is known of how safe a wall is.
struct Margine {
    int nSeg = 0;
    double paratia = 0;             ///< length of the wall [m]
    bool sostegni = false;          ///< anchors of some stage or a restraint hold it
    std::vector<MargineFase> fasi;  ///< all stages; element 0 is stage 1
    LunghezzaMinima lunghezza;
    std::optional<ErroreMaglia> maglia;  ///< nothing unless all stages stand with finer meshes too
    /// The largest of the stages that stand, both ways: the report's where all stand and the
    /// specified run comes to rest.
    Confronto momento, taglio;
    std::optional<results::NumeriRelazione> relazione;
    /// Of a wall that stands; none without a section. `giudizio` tells what to say of each.
    std::vector<VerificaSezione> verifiche;
    /// How the specified run ended in memory; of a mechanism it is not begun.
    analysis::FineCorsa corsa;

    /// True if all stages are in equilibrium.
    [[nodiscard]] bool sta() const { return fasi.empty() || fasi.back().inEquilibrio(); }
    /// True if some are: the largest numbers are known.
    [[nodiscard]] bool haNumeri() const { return !fasi.empty() && fasi.front().inEquilibrio(); }
    /// The first stage that is not; nothing if all are.
    [[nodiscard]] const MargineFase* caduta() const;
    /// The stage by which the wall is judged: the first without equilibrium, else the one of the
    /// smallest factor; nothing if all factors are beyond the range.
    [[nodiscard]] const MargineFase* decisiva() const;
    /// True if its factor is one that remarks call a danger (`riduzionePericolosa`), below 1 or
    /// not.
    [[nodiscard]] bool pericolosa() const;
};

/// The margin of a project: the one place that puts its parts together, for whoever shows it. At
/// 50 segments some milliseconds, of which the specified run in memory takes nearly all; no file is
/// written or read.
/// @param dati         with the bending stiffness of the run
/// @param osservatore  follows the specified run, and may stop it: there is no report then
/// @pre nothing refuses a run (`analysis::avviaCalcolo`)
[[nodiscard]] Margine margine(const project::DatiProgetto& dati, int nSeg,
                              analysis::OsservatoreCorsa& osservatore);

}  // namespace korven::safety
