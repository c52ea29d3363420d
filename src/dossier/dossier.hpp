#pragma once

#include <optional>
#include <vector>

#include "analysis/run_observer.hpp"
#include "analysis/watch/run_end.hpp"
#include "dossier/anchor_story.hpp"
#include "dossier/balance.hpp"
#include "dossier/identity.hpp"
#include "dossier/limit_balance.hpp"
#include "dossier/section_values.hpp"
#include "dossier/soil_values.hpp"
#include "dossier/specified_run.hpp"
#include "dossier/twin_numbers.hpp"
#include "factors/combinations.hpp"
#include "factors/requested_code.hpp"
#include "live/envelope.hpp"
#include "live/section_checks.hpp"
#include "live/wall.hpp"
#include "project/project_data.hpp"
#include "review/remark.hpp"
#include "safety/margin.hpp"
#include "structure/interaction_domain.hpp"

namespace korven::dossier {

/// All that is told of a computed project: whoever writes a number of it takes it from here. Units
/// are those of the parts: t, m, t m per metre of wall; N and mm in the section.
///
/// All numbers are those of the equilibrium solution, but for `corsa`, `fine`, `margine->relazione`
/// and what is named after the report.
struct Fascicolo {
    Identita identita;
    project::DatiProgetto scritti;           ///< as they stand in the file
    live::PareteViva parete;                 ///< as used: with the stiffness of the run; its stages
    std::optional<safety::Margine> margine;  ///< nothing where a run would be refused
    review::Osservazioni osservazioni;       ///< on project and results, the heaviest first
    live::Inviluppo inviluppo;               ///< of the stages that stand
    std::vector<BilancioFase> bilanci;       ///< of the stages that stand
    std::optional<BilancioLimite> limite;    ///< of the stage that is a mechanism, if one is
    std::vector<StoriaTirante> tiranti;      ///< all rows of their table; element 0 is anchor 1
    /// Of the stages that the specified run began, in memory; empty where it was not begun, since
    /// it is refused or a stage is a mechanism.
    std::vector<CorsaFase> corsa;
    analysis::FineCorsa fine;         ///< how it ended, if it was begun
    std::vector<NumeroDoppio> doppi;  ///< largest numbers of each stage, where there is a report
    live::ControlliSezione controlli;
    /// The checks of both, the report's where there is one; none where no stage stands.
    std::vector<VerificaDoppia> verifiche;
    std::vector<live::FaseNelDominio> nelDominio;
    std::vector<structure::PuntoDominio> dominio;  ///< empty without a section
    std::optional<ValoriFlessione> flessione;      ///< nothing without a section
    std::optional<ValoriTaglio> taglio;            ///< nothing without stirrups
    ValoriTerreno terreno;
    ValoriRigidezza rigidezza;
    /// The wall under the combinations of a code; nothing where none was asked for, or a run would
    /// be refused.
    std::optional<factors::Combinazioni> norma;

    /// True if the specified run came to rest in all stages and its report has numbers.
    [[nodiscard]] bool conRelazione() const { return margine && margine->relazione; }
};

/// What a dossier is asked for.
struct Richiesta {
    /// As they stand in the file: before a run leaves its stiffness and its last water level.
    project::DatiProgetto scritti;
    project::DatiProgetto usati;  ///< with what options put in their place
    std::optional<int> nSeg;      ///< segments, from 3: asserted; nothing: those of the program
    Identita identita;            ///< without program, version and imprint, which are set
    /// On the project and its file; nothing: the project is reviewed without a file.
    std::optional<review::Osservazioni> sulProgetto;
    std::optional<factors::NormaChiesta> norma{};  ///< a code to be followed beside
};

/// Computes all of it, in memory and in any thread; no file is written or read, but for `nseg.txt`
/// where `nSeg` is not given. What cannot be computed stays empty, and `parete.rifiuto`, the
/// margin or the remarks tell why: nothing that a project may hold ends it.
/// @param osservatore  follows the specified run, and may stop it: there is no report then
[[nodiscard]] Fascicolo fascicolo(const Richiesta& richiesta,
                                  analysis::OsservatoreCorsa& osservatore);

/// Of a project as it stands.
[[nodiscard]] Fascicolo fascicolo(const project::DatiProgetto& dati);

}  // namespace korven::dossier
