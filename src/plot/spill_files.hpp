#pragma once

#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "base/disk.hpp"
#include "plot/strokes.hpp"

// Text files that take the lines of a drawing that memory has no rows for: the count of records,
// then six lines a record, x1, y1, x2, y2, colour, width, each a number of at most seven decimals.

namespace korven::plot {

/// Name of spill file `numero` on the drive of the system folder: the first two characters of
/// `windir`, "\plttmp", the number and ".tmp".
/// @param windir  value of the environment variable of that name, "C:\WINDOWS"
[[nodiscard]] std::string nomeFileScarico(std::string_view windir, int numero);

/// Path of spill file `numero` of this process. Where the variable `windir` names no drive, the
/// files lie in a folder that the first call makes in the system's temporary folder, for this
/// process alone; it is removed with all that is in it when the process ends. A process that is
/// killed leaves it to the next start (base/folders/leftovers.hpp).
/// @throws ErroreFile when that folder can't be made
[[nodiscard]] std::string percorsoFileScarico(int numero);

/// The bytes of a spill file.
[[nodiscard]] std::string testoScarico(std::span<const Segmento> linee);

/// Writes a spill file, all of it or nothing, over one that an earlier drawing left.
/// @throws ErroreFile with the system's reason
void scriviScarico(const std::string& percorso, std::span<const Segmento> linee,
                   const base::Disco& disco = base::discoDiSistema());

/// Writes spill file `numero` of this process: on the drive under the first number that is free
/// (drive_files.hpp), else in the temporary folder.
/// @throws ErroreFile with the system's reason
void scriviScarico(int numero, std::span<const Segmento> linee,
                   const base::Disco& disco = base::discoDiSistema());

/// Reads a spill file.
/// @throws ErroreFile when it is missing, cut short or holds what is no number
[[nodiscard]] std::vector<Segmento> leggiScarico(const std::string& percorso);

}  // namespace korven::plot
