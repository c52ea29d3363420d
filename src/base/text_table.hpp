#pragma once

#include <string>
#include <string_view>

#include "base/table.hpp"
#include "base/text_lines.hpp"

namespace korven::base {

inline constexpr int massimoTesti = 800;
inline constexpr int numeroLingue = 6;
inline constexpr int colonnaItaliano = 1;  ///< the key of a record
inline constexpr int colonnaInglese = 5;   ///< stands in for a language that is not translated yet

/// One text in the six languages, in the order of the language codes. A translation that begins
/// with "@" is not made yet.
struct RecordTesti {
    Tabella<std::string, numeroLingue> testo;
    std::string chiave;  ///< what the record is sorted by; `ordinaTesti` fills it
};

/// The texts of the program, rows 1 to `nTesti`.
struct TabellaTesti {
    int nTesti = 0;
    Tabella<RecordTesti, massimoTesti> righe;
};

/// The one table of the running program: filled and sorted at the start, constant afterwards.
extern TabellaTesti tabellaTesti;

/// What texts are compared by: the upper-case text as bytes of the code page, so that the order is
/// that of the characters' codes and case does not count.
[[nodiscard]] std::string chiaveTesto(std::string_view testo);

/// Appends the records of a text file: seven lines a record, the six languages and a separator line
/// whose content is ignored. The separator may be missing behind the last record alone. The table
/// is unsorted afterwards.
///
/// @throws ErroreFile when the file ends inside a record or holds a record beyond row 800; the
/// table then keeps the records read before
void aggiungiTesti(TabellaTesti& testi, LettoreRighe& file);

/// Sorts the rows by `chiaveTesto` of their Italian text, ascending (Shell's method with halved
/// gaps). Of records with equal keys any may come first.
void ordinaTesti(TabellaTesti& testi);

/// Row of a text in a sorted table, whatever its case; 0 when there is none. Binary search.
[[nodiscard]] int cercaTesto(const TabellaTesti& testi, std::string_view testo);

}  // namespace korven::base
