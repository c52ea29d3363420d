#pragma once

#include <optional>
#include <vector>

#include "results/report_data.hpp"
#include "results/structure_checks.hpp"

namespace korven::results {

/// A number of the report, with its sign, and where it is.
struct NumeroRelazione {
    double valore = 0;
    double z = 0;  ///< depth of its node [m]
    int fase = 0;
};

/// What the report makes of one anchor in one stage.
struct TiroRelazione {
    /// The force that its shear takes it for [t]; below 0 for a slack anchor too.
    double valore = 0;
    /// True if the extremes of the shear count the value above the anchor, from which this force is
    /// subtracted; the diagram subtracts it in any case.
    bool nelTaglio = false;
};

/// The largest numbers of one stage.
struct NumeriFase {
    NumeroRelazione momentoMassimo;   ///< signed [t m]
    NumeroRelazione momentoMinimo;    ///< signed [t m]
    NumeroRelazione taglio;           ///< larger in size of the stage's extremes [t]
    double momentoPiede = 0;          ///< of the last node [t m]
    double taglioPiede = 0;           ///< of the last node [t]
    std::vector<TiroRelazione> tiri;  ///< of the anchors in place, element 0 is anchor 1

    /// The moment that is larger in size.
    [[nodiscard]] const NumeroRelazione& momento() const;
};

/// The numbers by which a wall is judged, as they stand in the report and its diagrams.
struct NumeriRelazione {
    std::vector<NumeriFase> fasi;  ///< element 0 is stage 1
    NumeroRelazione momento;       ///< larger in size of all stages [t m]
    NumeroRelazione taglio;  ///< the same, of all stages: the report prints the last one's [t]
    /// The largest force of each anchor of the last stage, as the report prints it [t]; element 0
    /// is anchor 1.
    std::vector<double> tiriMassimi;
    /// The checks of the section; nothing where the report shows none.
    std::optional<ConfrontoMomenti> flessione;
    std::optional<structure::ConfrontoTaglio> taglioSezione;

    /// Where the largest signed moment of all stages is, and where the smallest.
    /// @pre there are stages: asserted
    [[nodiscard]] const NumeroRelazione& momentoMassimo() const;
    [[nodiscard]] const NumeroRelazione& momentoMinimo() const;
};

[[nodiscard]] NumeriRelazione numeriRelazione(const DatiRelazione& dati);

}  // namespace korven::results
