#pragma once

#include <string>
#include <string_view>

#include "base/disk.hpp"
#include "base/table.hpp"
#include "base/text_lines.hpp"
#include "plot/colour.hpp"
#include "plot/pens.hpp"

// What a drawing looks like is kept out of the code, in a file of the program folder for each
// language: 30 pens, 15 colours and the margins of the sheet.

namespace korven::plot {

inline constexpr int numeroColori = 15;

/// Greatest width of a line [mm].
inline constexpr double massimoSpessoreMm = 100;
/// Limits of both margins [cm]: beyond them a sheet would be shifted off itself and leave a drawing
/// without any width.
inline constexpr double minimoMargineCm = -10, massimoMargineCm = 100;

/// A pen as its user sees it.
struct PennaConfigurata {
    std::string etichetta;  ///< its purpose; two pens may have the same
    int colore = 0;         ///< index of a colour, 1 to 15; 0 for a pen that draws nothing
    double spessoreMm = 0;  ///< line width [mm]
    std::string carattere;
    bool operator==(const PennaConfigurata&) const = default;
};

struct ColoreConfigurato {
    std::string nome;
    Colore valore = 0;
    bool operator==(const ColoreConfigurato&) const = default;
};

/// Content of a configuration file.
struct ConfigurazionePlot {
    base::Tabella<PennaConfigurata, numeroPenne> penne;
    base::Tabella<ColoreConfigurato, numeroColori> colori;
    double margineSinistro = 0;   ///< shift of every drawing to the right [cm]
    double margineSuperiore = 0;  ///< shift of every drawing down [cm]
    bool operator==(const ConfigurazionePlot&) const = default;
};

/// Reads a configuration: for each pen label, colour index, width and font, for each colour name
/// and value, then the two margins, each on a line. A margin that the file does not hold is 0.
/// @throws ErroreFile when the file ends before the last colour, a number is none, an index lies
/// outside 0 to 15 or a colour has more than 24 bits
[[nodiscard]] ConfigurazionePlot leggiConfigurazione(base::LettoreRighe& file);

/// Reads the configuration file `percorso`.
/// @throws ErroreFile also when the file is missing or not readable
[[nodiscard]] ConfigurazionePlot leggiConfigurazione(const std::string& percorso);

/// The bytes of the file that holds a configuration, margins always included.
[[nodiscard]] std::string testoConfigurazione(const ConfigurazionePlot& configurazione);

/// Writes the file anew, all of it or nothing.
/// @throws ErroreFile with the system's reason
void scriviConfigurazione(const std::string& percorso, const ConfigurazionePlot& configurazione,
                          const base::Disco& disco = base::discoDiSistema());

/// The pens as the plot engine works with them: widths in centimetres, each colour index replaced
/// by the value of its colour. Index 0 has no colour and yields 0.
[[nodiscard]] TabellaPenne pennePlot(const ConfigurazionePlot& configurazione);

/// Number of the first pen with a label, 0 when there is none. Of two pens with the same label only
/// the first can be found, and takes the edits of both.
[[nodiscard]] int pennaConEtichetta(const ConfigurazionePlot& configurazione,
                                    std::string_view etichetta);

/// Path of the configuration file of a language tag ("ita"), or of the language that replaces it:
/// "module06ita.cfg" in the program folder, whatever its case. It may not exist.
[[nodiscard]] std::string fileConfigurazione(std::string_view sigla);

}  // namespace korven::plot
