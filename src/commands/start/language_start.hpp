#pragma once

#include <functional>
#include <string>
#include <vector>

#include "base/dialogo.hpp"
#include "base/disk.hpp"

namespace korven::commands {

/// Number of this program among the maker's, part of the names of its files.
inline constexpr const char* numeroModulo = "06";

/// What the start of the language asks of its surroundings.
struct PorteLingua {
    base::Dialogo& dialogo;  ///< shows the boxes of the test mode; must outlive the program
    /// Lets the user choose among these language codes (`selezling`).
    /// @return the code chosen; 0 when the form was closed without
    std::function<int(const std::vector<int>& codici)> scegli;
    /// Root of the file system, where the file lies that switches the translators' test mode on.
    std::string radice = "/";
    const base::Disco& disco = base::discoDiSistema();
};

/// Chooses and loads the language, first of all at the start: `language.cfg` if the user has chosen
/// before, else (and always in the test mode) the form that asks. Makes the example folders ready
/// in a program folder that was never used.
/// @return false when the user was asked and did not choose: the program has no language
///         to start with
/// @throws base::ErroreFile if a text file is missing or broken, or `language.cfg` holds no code
///         from 1 to 6
[[nodiscard]] bool iniziaLingua(const PorteLingua& porte);

/// The file that holds the language chosen, `language.cfg` of the program folder.
[[nodiscard]] std::string fileLingua();

/// Writes a language code there. @throws base::ErroreFile if it can't be written
void scriviLingua(int codice, const base::Disco& disco = base::discoDiSistema());

/// Path of the help file of the language in force, or of the one that replaces it:
/// "module06ita.hlp" in the program folder. It may not exist.
extern std::string fileGuida;

/// The languages that can be offered: those with a configuration of their own for the drawings, in
/// the order of the buttons: English, French, German, Italian, Spanish, Portuguese.
[[nodiscard]] std::vector<int> lingueOfferte();

}  // namespace korven::commands
