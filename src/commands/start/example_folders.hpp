#pragma once

#include <string>
#include <string_view>

#include "base/disk.hpp"

namespace korven::commands {

/// True for a program folder in which nobody has started the program: neither a language nor a
/// folder of projects has been noted there.
[[nodiscard]] bool maiUsata();

/// The folder of the delivered example projects of a language.
[[nodiscard]] std::string cartellaEsempi(std::string_view sigla);

/// Makes the folders of the examples and moves the example files that lie in the program folder
/// there, by the beginning of their names: "esem" Italian, "exam" English, "exem" French, "ejem"
/// Spanish. German and Portuguese have no such beginning; their examples lie in place.
/// @throws base::ErroreFile if a folder can't be made or a file can't be copied
void preparaEsempi(const base::Disco& disco = base::discoDiSistema());

}  // namespace korven::commands
