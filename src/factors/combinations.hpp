#pragma once

#include <optional>
#include <vector>

#include "factors/combination_run.hpp"

namespace korven::factors {

/// The worst of all combinations: its value with the factor on effects, and where it is.
struct Massimo {
    double valore = 0;
    int combinazione = -1;  ///< place in the code's list; -1: there is none
    int fase = 0;
    double z = 0;  ///< [m]
};

/// The largest of all combinations that stand.
struct Inviluppo {
    Massimo spostamento;        ///< larger in size, without a factor [m]
    Massimo momentoMassimo;     ///< not below 0 [t m]
    Massimo momentoMinimo;      ///< not above 0 [t m]
    Massimo taglio;             ///< larger in size [t]
    std::vector<Massimo> tiri;  ///< of each anchor [t]; element 0 is anchor 1
};

/// A wall under all combinations of a code.
struct Combinazioni {
    Norma norma;
    NaturaCarichi natura;
    int nSeg = 0;
    std::vector<EsitoCombinazione> esiti;  ///< in the order of the code
    Inviluppo inviluppo;

    /// All stand.
    [[nodiscard]] bool sta() const;
    /// All stand and all their checks are met.
    [[nodiscard]] bool verificate() const;
    /// The same; nothing where all stand and none has a check to meet.
    [[nodiscard]] std::optional<bool> giudizio() const;
    /// Some combination has a check to be met.
    [[nodiscard]] bool conVerifiche() const;
    /// The first that does not stand; nullptr if all do.
    [[nodiscard]] const EsitoCombinazione* caduta() const;
    /// The check of that kind that is nearest to its resistance, or fails, and which combination it
    /// is of; nothing where none has it.
    [[nodiscard]] std::optional<std::pair<std::size_t, Verifica>> peggiore(Oggetto oggetto) const;
};

/// Computes a wall under each of them, in memory: at 50 segments some milliseconds.
/// @param dati  with the bending stiffness of the run
/// @pre nothing refuses a run (`analysis::avviaCalcolo`)
[[nodiscard]] Combinazioni combinazioni(const project::DatiProgetto& dati, int nSeg,
                                        const Norma& norma, const NaturaCarichi& natura);

}  // namespace korven::factors
