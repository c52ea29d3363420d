#pragma once

#include <functional>
#include <string>
#include <string_view>

namespace korven::base {

/// Tag of a language code, as the names of files and folders have it: 1 "ita", 2 "deu", 3 "fra", 4
/// "esp", 5 "eng", 6 "por". Empty for every other code.
[[nodiscard]] std::string_view siglaLingua(int codice);

/// The same as documents name their language (ISO 639-1): "it", "de", "fr", "es", "en", "pt". Empty
/// for every other code.
[[nodiscard]] std::string_view siglaIso(int codice);

/// What a file with the chosen language must hold. Who reads it has no language yet, so it is told
/// in Italian and in English.
inline constexpr std::string_view attesoCodiceLingua =
    "atteso un codice di lingua da 1 a 6 (a language code from 1 to 6 is expected)";

/// Code of a tag in lower case, or 0 when it is none.
[[nodiscard]] int codiceLingua(std::string_view sigla);

/// The chosen language code: the number in the first line of language.cfg. A number outside 1 to 6
/// is returned as it is (`siglaLingua` of it is empty); the text table refuses it when it is used.
///
/// @throws ErroreFile when the file cannot be read or its first line holds no whole number
[[nodiscard]] int leggiLingua(const std::string& percorso);

/// The tag whose file is to be taken: `sigla` itself when there is a file for it, otherwise its
/// replacements, one step after the other, each testing the tag that the step before it left: deu
/// to eng, eng to fra, fra to esp, por to esp, esp to ita. Nothing replaces Italian, so the tag
/// that comes back may still be without a file.
[[nodiscard]] std::string siglaDisponibile(std::string_view sigla,
                                           const std::function<bool(std::string_view)>& esisteFile);

}  // namespace korven::base
