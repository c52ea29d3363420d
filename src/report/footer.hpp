#pragma once

#include <string>
#include <string_view>

namespace korven::report {

/// The page as the report's #RESET describes it.
inline constexpr std::string_view paginaRelazione = "2,2,2,2,2,2,12,Arial";

/// What the foot of each page says of the run that the report shows.
struct DatiPiede {
    std::string progetto;    ///< the project file's own name
    double metodoUsato = 0;  ///< code of the earth pressure method that the run used
    int segmenti = 0;        ///< of the wall
};

inline constexpr double larghezzaA4 = 21.0;  ///< [cm]

/// The text of the report's #FOOTER, translated: program and version, project, method, segments and
/// that no factor of safety acts on the soil, joined by dashes; after them the program's subtitle.
///
/// The footer is one centred line, which no renderer wraps or shrinks, so what is too long is cut
/// here. The subtitle is there only if all of it fits between the margins. The rest may reach into
/// the margins, but ends 4 mm in front of what the page can hold; else the remark about the soil
/// takes its short form, and a name that is still too long loses its middle ("dia…ini.kvd"), down
/// to its first and last character.
///
/// @param larghezzaFoglio  [cm]; the mark-up knows no sheet: reports are made for A4 upright
[[nodiscard]] std::string testoPiede(const DatiPiede& dati, double larghezzaFoglio = larghezzaA4);

}  // namespace korven::report
