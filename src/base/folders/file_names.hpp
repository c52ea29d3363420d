#pragma once

#include <functional>
#include <string>
#include <string_view>

#include "base/twin_names.hpp"

// The names of the files that belong to a project. Paths are UTF-8; rules that count characters
// count characters, not bytes.

namespace korven::base {

/// The path with its last three characters replaced: a project's result file, a report's TXT file.
[[nodiscard]] std::string conUltimiTre(std::string_view percorso, std::string_view estensione);

/// The path up to and including its first point, wherever that is, then `estensione`. A folder with
/// a point in its name therefore cuts the path there. A path without any point gets one at its end.
[[nodiscard]] std::string finoAlPrimoPunto(std::string_view percorso, std::string_view estensione);

/// Path of the result file: beside the project, same stem, "OUT" for its last three characters.
[[nodiscard]] std::string nomeRisultati(std::string_view progetto);

/// Path of the report's mark-up file, by the first-point rule with "TAB".
[[nodiscard]] std::string nomeRelazione(std::string_view progetto);

/// Path of the word-processor file of a report: "doc" for the last three characters.
[[nodiscard]] std::string nomeDocumento(std::string_view relazione);

/// Path of a further file of a project, beside it: "DIR/muro-momenti.pdf" for the `nome` "momenti"
/// and the `estensione` "pdf". The stem ends at the last point of the file's own name.
[[nodiscard]] std::string nomeUscita(std::string_view progetto, std::string_view nome,
                                     std::string_view estensione);

/// A name that nothing has, beside `percorso`: with `coda` after its name up to the last point,
/// then `fine`, and "_" with a number from 2 on before that if the name is taken.
/// @param esiste  tells whether a name is taken
[[nodiscard]] std::string nomeLibero(std::string_view percorso, std::string_view coda,
                                     std::string_view fine,
                                     const std::function<bool(const std::string&)>& esiste);

// Words by which a made file is told from the others of its project. The command line takes the one
// that belongs to its language. The desktop, whose names are as fixed as its screens, takes the
// Italian one in every language: a name that an office has agreed on must not change with the
// language of the one who prints.
inline constexpr Gemelli parolaRelazione{"relazione", "report"};
inline constexpr Gemelli parolaAllegato{"allegato", "annex"};
inline constexpr Gemelli parolaSezione{"sezione", "section"};
inline constexpr Gemelli parolaStratigrafia{"stratigrafia", "log"};
inline constexpr Gemelli parolaTabelle{"tabelle", "tables"};

/// Path of the PDF file that the desktop proposes for a project's report, in every language:
/// "DIR/muro-relazione.pdf".
[[nodiscard]] std::string nomePdfRelazione(std::string_view progetto);

}  // namespace korven::base
