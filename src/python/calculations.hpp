#pragma once

#include <functional>
#include <nlohmann/json_fwd.hpp>
#include <optional>
#include <string>

#include "project/project_data.hpp"

// What the module computes of one wall, as the command line answers it: nothing of Python is known
// here. A project that is computed is not changed, and several threads may compute at once.

namespace korven::python {

/// What the command line takes beside the project.
struct Modo {
    std::optional<int> nSeg;            ///< as --nseg; nothing: nseg.txt of the program folder
    std::optional<std::string> metodo;  ///< as --metodo
};

/// A project with the method of the soil pressures that is asked for, and its segments.
/// @throws ErroreCampo for a method or a number of segments that there is not, ErroreCalcolo for an
///         unusable nseg.txt
struct Chiesta {
    project::DatiProgetto dati;
    int nSeg = 0;
};
[[nodiscard]] Chiesta chiesta(const project::DatiProgetto& scritti, const Modo& modo);

/// The same, refused where a run would be, with its words; the stiffness that is left open is taken
/// from the section.
/// @throws ErroreCalcolo, base::ErroreValore for data that have no number in their shown unit
[[nodiscard]] Chiesta pronta(const project::DatiProgetto& scritti, const Modo& modo);

/// "causa", "spiegazione", "z_m" (depth of the nodes), "tiranti" (how many the project has) and
/// what `korven32c equilibrio --json` tells under "equilibrio".
/// @throws ErroreCalcolo for a wall that a run refuses
[[nodiscard]] nlohmann::ordered_json equilibrio(const project::DatiProgetto& dati,
                                                const Modo& modo);

/// What `korven32c sicurezza --json` tells under "sicurezza", with "causa" and "spiegazione".
/// @param fermata  asked again and again from the thread that computes: true gives up the
///                 calculation, of whose result nothing is then of use
/// @throws ErroreCalcolo for a wall that a run refuses
[[nodiscard]] nlohmann::ordered_json sicurezza(const project::DatiProgetto& dati, const Modo& modo,
                                               const std::function<bool()>& fermata);

/// The remarks on a project and, if they are asked for, on what it comes to.
/// @pre nobody else computes at the same time: the number of segments and the catalogue of hatches
///      are those of the process here
[[nodiscard]] nlohmann::ordered_json osservazioni(const project::DatiProgetto& dati,
                                                  const Modo& modo, bool risultati);

}  // namespace korven::python
