#pragma once

#include <string>
#include <string_view>

namespace korven::batch {

/// Code of the language that a locale of the system names: 5 for "en_GB.UTF-8". Italian, 1, for one
/// that the program does not speak and for "C".
[[nodiscard]] int linguaDiLocale(std::string_view locale);

/// Chooses the language of texts, names and file names and loads its texts: the one of the option,
/// else that of language.cfg in the program folder, else that of the environment (the first of
/// LC_ALL, LC_MESSAGES and LANG that is set), else Italian. The environment asks for nothing: in a
/// program folder without texts it is passed over.
/// @param sigla  value of the option, empty without it; one that is no tag counts as none: the
///               reading of the options refuses it in the language so found
/// @throws base::ErroreFile when texts that were asked for can't be had, or language.cfg is broken
void scegliLingua(const std::string& sigla);

}  // namespace korven::batch
