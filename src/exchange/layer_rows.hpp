#pragma once

#include <array>
#include <bitset>
#include <cstddef>
#include <string>
#include <vector>

namespace korven::exchange {

/// The columns of a layer, in the order of its editor (masks::campiEditati).
enum Colonna : std::size_t {
    profondita,
    gammaN,
    gammaSat,
    phi,
    coesione,
    ks,
    descrizione,
    numeroColonne,
};

/// A layer as the cells of the editor have it: texts, numbers in the units that people see (m,
/// kN/m³, °, kN/m²) and with a decimal point. An empty cell is a value that is still to be given.
using RigaStrato = std::array<std::string, numeroColonne>;
using RigheStrati = std::vector<RigaStrato>;

/// What was read of the layers of a file.
struct StratiLetti {
    RigheStrati righe;                    ///< empty as soon as there is a fault
    std::bitset<numeroColonne> assenti;   ///< columns that the file does not have
    bool descrizioniConCodice = true;     ///< the file has descriptions as this program writes them
    std::vector<std::string> difetti;     ///< why nothing is taken, each with its place; translated
    std::vector<std::string> avvertenze;  ///< what was read otherwise than it stands; translated

    [[nodiscard]] bool riuscita() const { return difetti.empty(); }
};

}  // namespace korven::exchange
