#pragma once

#include <optional>
#include <string>
#include <vector>

#include "equilibrium/extremes.hpp"
#include "equilibrium/staged_equilibrium.hpp"
#include "project/project_data.hpp"
#include "safety/diagnosis.hpp"

namespace korven::live {

/// A wall as it is known at one moment: the data, and all stages by the equilibrium solution as far
/// as they stand.
struct PareteViva {
    /// As they are, but that `rigidezzaEJ` is what the section gives where none is stored.
    project::DatiProgetto dati;
    bool ejDellaSezione = false;  ///< it is: the file has none
    int nSeg = 0;                 ///< segments of the mesh; 0 where nothing is computed
    double h = 0;                 ///< distance of the nodes [m]
    /// Why nothing is computed, or why the soil of the last of `fasi` has no value: one sentence,
    /// translated; empty otherwise.
    std::string rifiuto;
    /// Element 0 is stage 1; the last is the first stage that is no equilibrium, or the last of
    /// all. Empty where nothing is computed.
    std::vector<equilibrium::FaseEquilibrio> fasi;
    /// Of the last stage, where it is no equilibrium; without a length that would stand, which
    /// `ProgettoVivo` adds once it is known.
    std::optional<safety::Diagnosi> perche;
    equilibrium::Estremi estremi;  ///< of the stages that stand
    /// Of a wall that stands: why its report has no numbers all the same, one sentence, translated;
    /// empty until `ProgettoVivo` knows, and where it has some.
    std::string senzaRelazione;

    /// True if all stages stand.
    [[nodiscard]] bool sta() const;
    /// The stages that stand are 1 to this one.
    [[nodiscard]] int fasiInEquilibrio() const;
    /// A stage that stands, counted from 1; nullptr for any other number.
    [[nodiscard]] const equilibrium::FaseEquilibrio* fase(int k) const;
    /// The extremes of a stage, or with 0 those of all; nothing of one that does not stand, and of
    /// all where one of them does not.
    [[nodiscard]] std::optional<equilibrium::Estremi> estremiDi(int k) const;
};

/// Follows a wall through its stages, in memory, with the number of segments of the program. At 20
/// stages and 249 segments below 2 ms; no file is written.
[[nodiscard]] PareteViva calcola(const project::DatiProgetto& dati);

/// The same with another number of segments, from 3: asserted.
[[nodiscard]] PareteViva calcola(const project::DatiProgetto& dati, int nSeg);

}  // namespace korven::live
