#pragma once

#include <string>

#include "base/disk.hpp"
#include "base/text_lines.hpp"
#include "project/project_data.hpp"

// The project file (.kvd): one value a line, no keys, in stored units; also the head of a result
// file. The counts govern the blocks after them; `docs/file_formats.md` has the table of lines.

namespace korven::project {

/// Reads one project and leaves the reader after its last value, so that a result file can be read
/// on. Nothing is reset first: of the three blocks that older files lack (sheet pile, reinforced
/// piles, axial force) a missing one keeps what `dati` held, and so do the rows of the tables above
/// the counts. A `metodoSpinte` above 1 becomes 1.
/// @return the code of `metodoSpinte` in the file: the method of the run whose results follow it
/// @throws base::ErroreFile on a file that ends early, a line that is no number, a count that is no
///         whole number from 0 to the capacity; `dati` is then as it was
double leggiDati(base::LettoreRighe& file, DatiProgetto& dati);

/// Reads the file named by `fileCorrente` into `Progetto`.
void leggiProgetto();

/// Writes `Progetto` under the name in `fileCorrente`, all blocks, replacing an earlier file.
/// `modificato` stays as it is.
/// @throws base::ErroreFile if it can't be written; the old file is then untouched
void scriviProgetto(const base::Disco& disco = base::discoDiSistema());

/// The text of a whole project file, UTF-8, lines ended by CR LF. A line feed inside a text becomes
/// a blank, since a text has one line. In the file a character that Windows-1252 lacks is a '?'; a
/// project with such a text counts as changed until it is read again.
[[nodiscard]] std::string testoProgetto(const DatiProgetto& dati);

/// True when the file differs from `dati`: plain inequality of any number, text or flag, anywhere.
/// A value with more than seven decimals never equals its written form. The headings are not
/// compared; a file that lacks the later blocks is compared as far as it goes.
/// @throws base::ErroreFile on a broken file, if no difference comes before the break
[[nodiscard]] bool progettoDiverso(base::LettoreRighe& file, const DatiProgetto& dati);

/// Compares the file named by `fileCorrente` with `Progetto`.
[[nodiscard]] bool progettoDiverso();

/// A project as a new program finds it in a file: nothing of an earlier one is left in it.
/// @throws base::ErroreFile as `leggiDati`, or if the file can't be read
[[nodiscard]] DatiProgetto leggiDaFile(const std::string& percorso);

/// A project as it comes back from a file that it is saved in: numbers with seven decimals, texts
/// in Windows-1252, the method of the pressures that reading keeps.
/// @throws base::ErroreValore for a number that no file can hold
[[nodiscard]] DatiProgetto comeRiletto(const DatiProgetto& dati);

}  // namespace korven::project
