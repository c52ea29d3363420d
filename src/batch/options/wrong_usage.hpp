#pragma once

#include <CLI/CLI.hpp>
#include <string>

namespace korven::batch {

/// What is wrong with a command line whose command is known, in the language in force: the
/// library's own words are English and are not shown.
/// @param programma  the program, of whose commands one was given
[[nodiscard]] std::string spiegazioneUso(const CLI::App& programma, const CLI::ParseError& errore);

/// What is wrong with an option written "--uscita=" without a value, for which the library would
/// take the next argument; empty if there is none.
[[nodiscard]] std::string valoreVuoto(int argc, const char* const* argv);

/// The same for one without a command that exists.
[[nodiscard]] std::string comandoMancante(int argc, const char* const* argv,
                                          const std::vector<std::string>& comandi);

}  // namespace korven::batch
