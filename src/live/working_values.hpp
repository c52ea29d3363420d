#pragma once

#include <optional>
#include <string>
#include <vector>

#include "masks/mask.hpp"
#include "masks/values.hpp"
#include "project/project_data.hpp"

namespace korven::live {

/// What stands in a form that is open.
struct ValoriForma {
    masks::NumeroMaschera maschera = masks::senzaMaschera;
    std::vector<double> combo{};       ///< as `Maschere::conferma` takes them
    std::vector<std::string> testi{};  ///< the same
};

/// The project with what stands in an open form.
struct ProgettoInCorso {
    std::optional<project::DatiProgetto> dati;  ///< nothing while the form could not be confirmed
    /// What is in the way, translated: "riga 3: dati incompleti"; empty for valid values.
    std::string impedimento;
};

/// The project as confirming the form would make it. A value that its form would not take is in the
/// way, and so is a row whose last number is missing, or any of them where none may stay empty: it
/// is being typed.
/// @param dati      the project as it is without the form
/// @param maschera  of the form
[[nodiscard]] ProgettoInCorso conValori(const project::DatiProgetto& dati,
                                        const masks::Maschera& maschera, const ValoriForma& valori);

}  // namespace korven::live
