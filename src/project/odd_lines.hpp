#pragma once

#include <string>
#include <vector>

#include "base/text_lines.hpp"
#include "project/project_data.hpp"

namespace korven::project {

/// A line of a project file that says more than the program takes from it.
struct RigaInsolita {
    enum class Motivo {
        resto,         ///< something follows the number, as after a decimal comma; it is ignored
        metodoSpinte,  ///< a method of earth pressure that does not survive the reading
        oltreLultima,  ///< a line after the last value; nothing of it is read
    };
    Motivo motivo = Motivo::resto;
    long riga = 0;      ///< from 1
    std::string campo;  ///< what belongs there, translated; empty after the last value
    double letto = 0;   ///< the number that the line begins with
    std::string testo;  ///< the line without its outer blanks
};

/// Goes through a project file as `leggiDati` does and lists the lines that hold more than their
/// value, in their order. Of those after the last value it lists only the first that is not blank
/// and not the mark of a rescue file (rescue_mark.hpp).
/// @param dati  what `leggiDati` made of the same file: its counts say how many lines there are
/// @throws base::ErroreFile if the file is shorter than the counts say
[[nodiscard]] std::vector<RigaInsolita> righeInsolite(base::LettoreRighe& file,
                                                      const DatiProgetto& dati);

}  // namespace korven::project
