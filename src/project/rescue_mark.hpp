#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "base/text_lines.hpp"

// A rescue file is a project file with one more line behind its last value, which no reader of
// projects looks at: it names the project whose unsaved work the file holds. Saved as a project of
// its own the file loses it. With it a rescue file is known from any project that somebody has
// called so, and from one that was cut short.

namespace korven::project {

/// The line, with its end: "recupero di file:///home/anna/muro.kvd".
/// @param progetto  absolute path of the project
[[nodiscard]] std::string segnoRecupero(std::string_view progetto);

/// True for the text of such a line, without its end.
[[nodiscard]] bool eSegnoRecupero(std::string_view riga);

/// Reads the line that follows the last value of a project.
/// @param file  where `leggiDati` left it
/// @return the path of the project; nothing if no such line follows, or not to its end
[[nodiscard]] std::optional<std::string> progettoRecuperato(base::LettoreRighe& file);

}  // namespace korven::project
