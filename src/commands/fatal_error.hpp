#pragma once

#include <exception>
#include <string>

namespace korven::commands {

/// What an error that ends the program says to its user, in the language in force.
[[nodiscard]] std::string spiegazione(const std::exception& errore);

/// Writes the unsaved project, if there is one, under a rescue name beside its file, or where the
/// user's own data go if nothing can be written there.
/// @return the file written; empty when nothing was unsaved or nothing could be written
std::string recuperaProgetto();

/// The whole text of the box that ends the program: the error, and where the unsaved work is, or
/// that it could not be saved.
/// @param recuperato  of `recuperaProgetto`
[[nodiscard]] std::string testoFine(const std::exception& errore, const std::string& recuperato);

}  // namespace korven::commands
