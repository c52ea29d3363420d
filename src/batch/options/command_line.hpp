#pragma once

#include <optional>
#include <string>
#include <vector>

#include "batch/options/command.hpp"

namespace korven::batch {

/// Either options or the end of the program, with what was asked for already printed.
struct EsitoLettura {
    std::optional<Opzioni> opzioni;
    int codice = 0;  ///< exit code if there are none: 0 for help and version, 2 for wrong usage
};

/// Reads the command line by the table of the commands. Help goes to standard output, what is wrong
/// to standard error, both with the names of the language in use.
/// @param comandi  in the order of the help; the options point into it
[[nodiscard]] EsitoLettura leggiOpzioni(int argc, const char* const* argv,
                                        const std::vector<RigaComando>& comandi);

/// Value of an option that is needed before the others can be told in the right language; empty if
/// it is not given.
[[nodiscard]] std::string valoreAnticipato(int argc, const char* const* argv,
                                           const base::Gemelli& nome);

}  // namespace korven::batch
