#pragma once

#include <optional>
#include <string>
#include <vector>

#include "live/section_checks.hpp"
#include "live/wall.hpp"
#include "results/section_uses.hpp"
#include "safety/margin.hpp"

// Numbers that both calculations have, the equilibrium and the specified run of which the report is
// written, and why they differ where they do.

namespace korven::dossier {

/// Numbers are told with this many of their shown unit (kN, kN m) as the last digit; the report
/// cuts there, so that what is closer is the same number.
inline constexpr double ultimaCifra = 0.01;

/// Why the specified run has another moment than the equilibrium, translated, in words; empty where
/// the two are the same number.
/// @pre the run has one: asserted
[[nodiscard]] std::string percheMomento(const live::PareteViva& parete,
                                        const safety::Margine& margine,
                                        const safety::Confronto& confronto);
/// The same of a shear.
[[nodiscard]] std::string percheTaglio(const live::PareteViva& parete,
                                       const safety::Margine& margine,
                                       const safety::Confronto& confronto);

/// What of a stage both have.
enum class Doppio { momentoMassimo, momentoMinimo, taglio, tiro };

/// One of them. Units: t m and t per metre of wall.
struct NumeroDoppio {
    Doppio cosa = Doppio::taglio;
    int fase = 0;
    int tirante = 0;  ///< of `tiro`: counted from 1
    double equilibrio = 0, zEquilibrio = 0;
    double relazione = 0, zRelazione = 0;
    std::string perche{};  ///< translated, in words; empty where they are the same number

    [[nodiscard]] bool diverso() const { return !perche.empty(); }
};

/// Of all stages; nothing without a report.
[[nodiscard]] std::vector<NumeroDoppio> numeriDoppi(const live::PareteViva& parete,
                                                    const safety::Margine& margine);

using results::Verifica;

/// A check by the numbers of one of the two.
struct LatoVerifica : results::Uso {
    live::DoveVerifica dove{};
};

struct VerificaDoppia {
    Verifica cosa = Verifica::momentoPositivo;
    std::optional<LatoVerifica> equilibrio;  ///< nothing where no such moment acts
    std::optional<LatoVerifica> relazione;   ///< the same; nothing without a report
    std::string perche{};  ///< as above; empty too where one of the two is missing

    /// The one by which the wall is judged: a failure, or else the larger use.
    [[nodiscard]] const LatoVerifica& decisiva() const;
    [[nodiscard]] bool fallita() const { return decisiva().fallita; }
};

/// The checks of a section for the actions of the stages; none where no stage stands.
/// @param controlli  of the equilibrium
/// @param margine    nullptr where there is none
[[nodiscard]] std::vector<VerificaDoppia> verificheDoppie(const live::PareteViva& parete,
                                                          const live::ControlliSezione& controlli,
                                                          const safety::Margine* margine);

}  // namespace korven::dossier
