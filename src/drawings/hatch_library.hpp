#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "base/table.hpp"
#include "base/text_lines.hpp"

// The library of hatches, four files of the program folder:
//
//     set1.rtn           number of strokes of each pattern, a number a line
//     set2.rtn           unit of each pattern, centimetres of a stroke unit at size step 1
//     set3ita.rtn        names, one file for each language tag
//     set4.rtn           strokes of all patterns, one after the other: x1, y1, x2, y2, each with
//                        sign and 16 bits, low byte first; 100 units are half the side of the tile

namespace korven::drawings {

inline constexpr int numeroCampiture = 100;

/// A stroke in units of its pattern, from the middle of the tile.
struct TrattoCampitura {
    std::int16_t x1 = 0, y1 = 0, x2 = 0, y2 = 0;
    bool operator==(const TrattoCampitura&) const = default;
};

struct Campitura {
    int nTratti = 0;      ///< 0: the row has no pattern
    double unita = 0;     ///< [cm]
    std::string nome;     ///< in the language in force
    int primoTratto = 1;  ///< row of its first stroke in set4.rtn, from 1
};

/// Row n is pattern n; row 0 has no strokes.
using Campiture = base::Tabella<Campitura, numeroCampiture>;

/// The patterns, read from the program folder by the first call and kept for the run.
/// @throws base::ErroreFile when a file is missing or ends before row 100, a number is none, a
/// count is not a whole number from 0, all strokes are more than 16 bits count (32,766), or a
/// pattern with strokes has no unit above 0; the next call then reads again
[[nodiscard]] const Campiture& campiture();

/// The patterns out of set1.rtn, set2.rtn and the names, in this order.
/// @throws base::ErroreFile as `campiture`
[[nodiscard]] Campiture leggiCampiture(base::LettoreRighe& conteggi, base::LettoreRighe& unita,
                                       base::LettoreRighe& nomi);

/// Makes the next call of `campiture` read anew.
void dimenticaCampiture();

/// The strokes of a pattern, read from set4.rtn by every call.
/// @throws base::ErroreFile when the file is missing or ends before the last of them
[[nodiscard]] std::vector<TrattoCampitura> leggiTratti(const Campitura& campitura);

/// The same out of the bytes of set4.rtn.
/// @param percorso  the name of the file, for the error
[[nodiscard]] std::vector<TrattoCampitura> trattiDi(const Campitura& campitura,
                                                    std::string_view byte,
                                                    const std::string& percorso);

}  // namespace korven::drawings
