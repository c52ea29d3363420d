#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

// Files of ground investigations in the format AGS 4 (Association of Geotechnical and
// Geoenvironmental Specialists, Electronic Transfer of Geotechnical and Geoenvironmental Data):
// quoted cells parted by commas, groups of rows that begin with GROUP, HEADING, UNIT, TYPE, DATA.

namespace korven::exchange {

/// A described depth range of a hole, group GEOL, as it stands in the file.
struct TrattoForo {
    long riga = 0;            ///< of the file
    std::string tetto, base;  ///< GEOL_TOP, GEOL_BASE [m below ground level]
    std::string descrizione;  ///< GEOL_DESC, else GEOL_GEOL, else GEOL_LEG
};

struct Foro {
    std::string nome;   ///< LOCA_ID
    std::string quota;  ///< ground level LOCA_GL [m above datum]; empty: not given
    long riga = 0;      ///< of its row in the group LOCA; 0: it has none
    std::vector<TrattoForo> tratti;
    std::vector<std::string> difetti;  ///< why its layers can't be taken; translated, with places
    std::vector<std::string> avvertenze;  ///< what is odd about it
};

struct FileAgs {
    std::vector<Foro> fori;            ///< those with ranges, in the order of the file
    std::vector<std::string> difetti;  ///< why nothing can be taken from any hole
};

/// True when the text begins like a file of this format, in this version or the one before.
[[nodiscard]] bool sembraAgs(std::string_view testo);

/// Reads the groups LOCA and GEOL and passes over all others.
/// @param testo  UTF-8
[[nodiscard]] FileAgs leggiAgs(std::string_view testo);

}  // namespace korven::exchange
