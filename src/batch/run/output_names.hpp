#pragma once

#include <stdexcept>
#include <string>
#include <vector>

#include "base/disk.hpp"
#include "base/twin_names.hpp"

namespace korven::batch {

/// Two files of one command would become one: wrong usage, found before anything is computed.
class NomiInConflitto : public std::runtime_error {
 public:
    NomiInConflitto(const std::string& uscita, const std::string& altro);
};

/// The result file of the current project and its report in each of its forms, as mark-up, text and
/// word-processor file; none without a project. They need not exist.
[[nodiscard]] std::vector<std::string> fileDelProgetto();

/// Path of a file that a command names itself, beside the results: "DIR/muro-momenti.pdf", in
/// English "DIR/muro-moments.pdf".
[[nodiscard]] std::string nomeProprio(const base::Gemelli& nome, const std::string& estensione);

/// Refuses outputs of a command that would replace one another, or one of `altri`: by what the
/// names will become (`base::stessoFile`), whether the files exist yet or not. What killed programs
/// left in their folders, where perhaps no project is ever opened, is swept away then.
/// @throws NomiInConflitto with both names
void controllaNomi(const std::vector<std::string>& uscite, const std::vector<std::string>& altri);

/// The same of a table, and of a name under which the project itself would be lost.
/// @param percorso  empty: no table is written
/// @param altri     other files of the command
/// @throws base::ErroreFile, for the project or its results, with both names
/// @throws NomiInConflitto
void controllaTabella(const std::string& percorso, const std::vector<std::string>& altri = {});

/// The same of all files that a command makes of a computed project, before it computes: also those
/// are refused that can't be written now.
/// @throws base::ErroreFile, for the project, its results or what the system refuses
/// @throws NomiInConflitto
void controllaFile(const std::vector<std::string>& uscite, const base::Disco& disco);

}  // namespace korven::batch
