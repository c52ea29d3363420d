#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "safety/margin.hpp"

// What a finer mesh does to the verdicts on a wall, translated, for every output.

namespace korven::safety {

/// A use that grows by more than this share of itself with a finer mesh is told. Reason: as for the
/// error of the envelopes.
inline constexpr double crescitaUsoDetta = 0.05;
/// Nor less than this part of the resistance: what is used so little is decided by no mesh.
inline constexpr double crescitaUsoMinima = 0.01;

/// "flessione, momento positivo": a check as it stands within a line; an Italian key.
[[nodiscard]] std::string_view nome(results::Verifica verifica);

/// "Sfruttamenti con 50, 100 e 200 segmenti: flessione, momento positivo 90.2, 95.1 e 98.9 %; ...";
/// empty where there are none.
[[nodiscard]] std::string paroleUsiMaglia(const Margine& margine);

/// "verso 101.9 % con maglie sempre più fini"; empty where no such value is in sight.
[[nodiscard]] std::string paroleTendenza(const UsoMaglia& uso);

struct AvvisoMaglia {
    bool verdetto = false;  ///< a finer mesh has another verdict, or goes to one
    std::string testo;      ///< sentences
};

/// What must be known before one relies on the verdicts of this mesh: that a finer one has no
/// equilibrium, that a check fails with one mesh and holds with another, that what its use goes to
/// is beyond the resistance, or that the use grows. None of a wall that does not stand.
[[nodiscard]] std::vector<AvvisoMaglia> avvisiMaglia(const Margine& margine);

}  // namespace korven::safety
