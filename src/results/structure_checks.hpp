#pragma once

#include <optional>
#include <string_view>
#include <vector>

#include "results/report_data.hpp"
#include "structure/partial_factors.hpp"
#include "structure/shear_check.hpp"

// The verdicts of the structural section, for the report and for everybody else who tells them.

namespace korven::results {

/// The bending check of one metre of wall; moments in t m, signed.
struct ConfrontoMomenti {
    double mrPos = 0, mrNeg = 0;  ///< design resistances, the negative one below 0
    double mMax = 0, mMin = 0;    ///< extremes of all stages
    double fsAzioni = 0;          ///< partial factor of the actions [-]
    double mdMax = 0, mdMin = 0;  ///< design moments: factor times extreme
    bool negativo = false;        ///< a negative moment acts: only then its side is checked
    bool verificatoPos = false;
    bool verificatoNeg = false;  ///< of no meaning without a negative moment

    /// The sides that the report says are not verified.
    [[nodiscard]] bool fallitaPos() const { return !verificatoPos; }
    [[nodiscard]] bool fallitaNeg() const { return negativo && !verificatoNeg; }
};

/// A positive moment stretches the excavated side, which is bending of negative curvature: hence
/// the sign and the crossing of the two resistances. Strict comparisons: a moment that just equals
/// its resistance is not verified.
[[nodiscard]] ConfrontoMomenti confrontaMomenti(const analysis::ChiusuraRisultati& chiusura);

/// The bending check as the report shows it; nothing unless the section is defined.
[[nodiscard]] std::optional<ConfrontoMomenti> verificaMomenti(
    const project::Sezione& sezione, const analysis::ChiusuraRisultati& chiusura);
[[nodiscard]] std::optional<ConfrontoMomenti> verificaMomenti(const DatiRelazione& dati);

/// The shear check as the report shows it; nothing unless the section is defined and has stirrups.
/// The axial force of the project does not reach it, though the bending check uses it.
/// @param Vmax      largest shear in size [t/m]; the report's is that of the last stage
/// @param fsAzioni  partial factor of the actions; the report's is the fixed one
[[nodiscard]] std::optional<structure::ConfrontoTaglio> verificaAlTaglio(
    const project::Sezione& sezione, double Vmax, double fsAzioni = structure::fsAzioniSezione);
[[nodiscard]] std::optional<structure::ConfrontoTaglio> verificaAlTaglio(const DatiRelazione& dati);

/// The sentence on a bending check, a key of the table of texts.
[[nodiscard]] std::string_view sentenza(bool positivo, bool verificato);

/// The sentences of the report on all checks that fail, as keys and in its order; none if the
/// section is verified or not defined.
[[nodiscard]] std::vector<std::string_view> verificheFallite(const DatiRelazione& dati);

}  // namespace korven::results
