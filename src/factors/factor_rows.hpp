#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "factors/factor_set.hpp"

// Combinations as text, UTF-8, a row a line, in three parts:
//
//     norma; name as it is typed; title
//     combinazione; name; source
//     key of a factor; number; source
//
// Combinations belong to the code above them, factors to the combination above them. Blank lines
// and those that begin with # are no rows.

namespace korven::factors {

/// A line that says nothing that can be used, or what is missing below it.
struct RigaGuasta {
    std::string file;    ///< its file, for what is told: a name or a path
    long riga = 0;       ///< from 1; 0: of the whole file
    std::string motivo;  ///< translated

    /// "combinazioni.txt, riga 12: ...", translated.
    [[nodiscard]] std::string frase() const;
};

/// What the files hold.
struct Catalogo {
    std::vector<Norma> norme;  ///< in the order of their files, the delivered ones first
    std::vector<RigaGuasta> guaste;

    /// The one of that name, whatever the case of its letters; nullptr if there is none.
    [[nodiscard]] const Norma* norma(std::string_view nome) const;
};

/// Rows beyond which a file is read no further.
inline constexpr long massimoRighe = 20000;

/// Reads what `byte` holds, whatever it is, behind what `catalogo` has already. Every fault is told
/// with its line: a row of another form, a number that is none or beyond the limits of its factor,
/// a key twice or unknown, a factor without a combination or a combination without a code, a name
/// that is taken, a combination that lacks a factor, a code without combinations.
///
/// With a fault nothing of what was read should be used: a combination that is left out in silence
/// might be the one that governs.
/// @param file  its name, for what is told
void leggiCombinazioni(std::string_view byte, const std::string& file, Catalogo& catalogo);

}  // namespace korven::factors
