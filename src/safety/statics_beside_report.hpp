#pragma once

#include <optional>
#include <vector>

#include "analysis/run_observer.hpp"
#include "analysis/watch/run_end.hpp"
#include "equilibrium/extremes.hpp"
#include "results/report_numbers.hpp"
#include "safety/diagnosis.hpp"

// The numbers of the report beside those of the balance of the nodes. The two differ where the
// report's rules leave the statics: the force at the top, slack anchors, a fixed toe, very stiff
// props.

namespace korven::safety {

/// Solves of one stage after which the specified run counts as one that does not come to rest.
inline constexpr int massimeIterazioni = iterazioniOscillazione;

/// The specified run in memory.
struct RelazioneInMemoria {
    /// Nothing if a stage does not come to rest, or the numbers are none.
    std::optional<results::NumeriRelazione> numeri;
    analysis::FineCorsa fine;  ///< how it ended; by default it was not begun
    /// Of all stages of a run that has numbers, the displacements of the wall's nodes [m]; element
    /// 0 is stage 1, and in it node 1.
    std::vector<std::vector<double>> spostamenti;
};

/// The numbers that the report of this project would show; no file is written or read.
/// @param dati         with the bending stiffness of the run
/// @param osservatore  follows the run, and may stop it
/// @pre no input check fails
[[nodiscard]] RelazioneInMemoria relazioneInMemoria(const project::DatiProgetto& dati, int nSeg,
                                                    analysis::OsservatoreCorsa& osservatore);

/// A largest number both ways.
struct Confronto {
    equilibrium::Estremo statica;                       ///< from the balance of the nodes
    std::optional<results::NumeroRelazione> relazione;  ///< nothing without a report

    /// How far the report's is off in size, as a share of the statics'; nothing where one of the
    /// two is missing or the statics' is 0.
    [[nodiscard]] std::optional<double> scarto() const;
};

/// The force of an anchor in one stage, both ways.
struct ConfrontoTiro {
    int tirante = 0;     ///< counted from 1
    double statica = 0;  ///< from the displacement itself, tension positive [t]
    std::optional<results::TiroRelazione> relazione;
};

/// One stage both ways.
struct ConfrontoFase {
    int fase = 0;
    Confronto momento, taglio;            ///< larger in size [t m, t]
    Confronto momentoPiede, taglioPiede;  ///< of the last node
    std::vector<ConfrontoTiro> tiri;
};

/// The statics of a stage, without a report as yet.
/// @param fase  a stage in equilibrium
/// @param h     distance of its nodes [m]
[[nodiscard]] ConfrontoFase statica(const equilibrium::FaseEquilibrio& fase, double h);

/// Sets the report's numbers of the same stage beside them.
void affianca(const results::NumeriFase& relazione, ConfrontoFase& confronto);

}  // namespace korven::safety
