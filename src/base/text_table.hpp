#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "base/table.hpp"
#include "base/text_lines.hpp"

namespace korven::base {

inline constexpr int massimoTesti = 800;           ///< in texts01.txt and texts06.txt together
inline constexpr int massimoTestiAggiunti = 4000;  ///< in texts32.txt
inline constexpr int numeroLingue = 6;
inline constexpr int colonnaItaliano = 1;  ///< the key of a record
inline constexpr int colonnaInglese = 5;   ///< shown where a translation is missing

/// One text in the six languages, in the order of the language codes. A translation that begins
/// with "@" is not made yet.
struct RecordTesti {
    Tabella<std::string, numeroLingue> testo;
    std::string chiave;  ///< what the record is sorted by; `ordinaTesti` fills it
};

/// A table of texts, rows 1 to `nTesti`. Row 0 belongs to no text.
struct TabellaTesti {
    TabellaTesti() = default;
    explicit TabellaTesti(int quanti) : capacita(quanti) {}

    /// The next row, to be filled. What it held before the table was emptied is gone.
    RecordTesti& nuovaRiga();

    int capacita = massimoTesti;
    int nTesti = 0;
    std::vector<RecordTesti> righe{1};
};

/// The two tables of the running program, filled and sorted at the start, constant afterwards. The
/// first has a size that the format of its files fixes; texts that came to the program after it was
/// full are in the second, which is looked up where the first has no record.
extern TabellaTesti tabellaTesti;
extern TabellaTesti testiAggiunti;

/// What texts are compared by: the upper-case text as bytes of the code page, so that the order is
/// that of the characters' codes and case does not count.
[[nodiscard]] std::string chiaveTesto(std::string_view testo);

/// Appends the records of a text file: seven lines a record, the six languages and a separator line
/// whose content is ignored. The separator may be missing after the last record alone. The table is
/// unsorted afterwards.
///
/// @throws ErroreFile when the file ends inside a record or holds a record beyond the capacity; the
/// table then keeps the records read before
void aggiungiTesti(TabellaTesti& testi, LettoreRighe& file);

/// Sorts the rows by `chiaveTesto` of their Italian text, ascending (Shell's method with halved
/// gaps). Of records with equal keys any may come first.
/// Source: Shell (1959), A high-speed sorting procedure, Comm. ACM 2(7), 30-32 (not looked up).
void ordinaTesti(TabellaTesti& testi);

/// Row of a text in a sorted table, whatever its case; 0 when there is none. Binary search.
[[nodiscard]] int cercaTesto(const TabellaTesti& testi, std::string_view testo);

}  // namespace korven::base
