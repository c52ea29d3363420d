#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "profiles/profile.hpp"

// A catalogue as text, UTF-8, a row a line:
//
//     genere; nome; misura=numero misura=numero ...; fonte
//
// Blank lines and those that begin with # are no rows.

namespace korven::profiles {

/// A line that is no row.
struct RigaGuasta {
    std::string file;    ///< name of its file
    long riga = 0;       ///< from 1; 0: of the whole file
    std::string motivo;  ///< translated
};

/// What a catalogue holds.
struct Catalogo {
    std::vector<Profilo> profili;  ///< in the order of their files, the delivered ones first
    std::vector<RigaGuasta> guaste;
};

/// Rows of a catalogue beyond which it is read no further.
inline constexpr std::size_t massimoProfili = 20000;

/// Reads a catalogue, whatever bytes it holds, behind what `catalogo` has already. A line that is
/// no row is told and takes no other along.
/// @param file    its name, for what is told
/// @param proprio the rows are the user's
void leggiProfili(std::string_view byte, const std::string& file, bool proprio, Catalogo& catalogo);

/// The row of a profile; `leggiProfili` makes the same profile of it.
/// @pre `difetto` finds none: asserted
[[nodiscard]] std::string rigaProfilo(const Profilo& profilo);

/// Why a profile is none, translated: without a name or a source, a semicolon in one of them, no
/// numbers; empty for one that can be kept.
[[nodiscard]] std::string difetto(const Profilo& profilo);

/// The lines of a file, each with its end, so that one can be taken out and the others stay as they
/// are.
[[nodiscard]] std::vector<std::string_view> righeIntere(std::string_view byte);

}  // namespace korven::profiles
