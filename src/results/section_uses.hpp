#pragma once

#include <optional>

#include "project/project_data.hpp"
#include "results/structure_checks.hpp"
#include "structure/limit_search.hpp"

// The checks of a section one by one, as uses of its resistances.

namespace korven::results {

enum class Verifica { momentoPositivo, momentoNegativo, bielle, armatura };

inline constexpr Verifica tutteLeVerifiche[] = {
    Verifica::momentoPositivo, Verifica::momentoNegativo, Verifica::bielle, Verifica::armatura};

/// One check. Units: kN m and kN per metre of wall; of a negative moment both are below 0.
struct Uso {
    double progetto = 0, resistenza = 0;
    bool fallita = false;

    /// Of 1; nothing without a resistance.
    [[nodiscard]] std::optional<double> uso() const {
        return resistenza == 0 ? std::nullopt : std::optional(progetto / resistenza);
    }
};

/// The checks of bending and of shear together.
struct Controlli {
    std::optional<ConfrontoMomenti> flessione;         ///< nothing without a section
    std::optional<structure::ConfrontoTaglio> taglio;  ///< nothing without stirrups
};

/// The resistances of the section under the axial force of the project; 0 both ways where they
/// cannot be computed.
[[nodiscard]] structure::MomentiResistenti momentiResistenti(const project::DatiProgetto& dati);

/// By the rules of the report.
/// @param MRd   of the section
/// @param mMax  largest moment of all stages, from 0 [t m/m]
/// @param mMin  smallest moment of all stages, to 0 [t m/m]
/// @param Vmax  largest shear in size [t/m]
[[nodiscard]] Controlli controlli(const project::Sezione& sezione,
                                  const structure::MomentiResistenti& MRd, double mMax, double mMin,
                                  double Vmax);

/// @return nothing where there is no such check: no section, no stirrups, no negative moment
[[nodiscard]] std::optional<Uso> uso(const Controlli& controlli, Verifica verifica);

}  // namespace korven::results
