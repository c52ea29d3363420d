#pragma once

#include <exception>
#include <string>
#include <string_view>

#include "base/disk.hpp"
#include "base/table.hpp"

namespace korven::commands {

/// More rows were confirmed than a table holds. Ends the program as any index beyond a table does,
/// but the rows that were typed lie in a file of their own.
class ErroreRighe : public base::ErroreIndice {
 public:
    /// @param file  of `recuperaRighe`
    ErroreRighe(long righe, std::size_t capienza, std::string file)
        : base::ErroreIndice(righe, capienza), file_(std::move(file)) {}
    [[nodiscard]] const std::string& file() const { return file_; }

 private:
    std::string file_;
};

/// What an error that ends the program says to its user, in the language in force.
[[nodiscard]] std::string spiegazione(const std::exception& errore);

/// Writes the unsaved project, if there is one, into the rescue file that is kept of it
/// (rescue/kept_rescue.hpp); without one, under a rescue name of its own beside its file, or where
/// the user's own data go if nothing can be written there.
/// @return the file written; empty when nothing was unsaved or nothing could be written
std::string recuperaProgetto(const base::Disco& disco = base::discoDiSistema());

/// Writes rows that were typed as text beside the project, or where `recuperaProgetto` goes.
/// @return the file written; empty when nothing could be written
std::string recuperaRighe(std::string_view righe,
                          const base::Disco& disco = base::discoDiSistema());

/// The whole text of the box that ends the program: the error, and where the rows typed and the
/// unsaved work are, or that they could not be saved.
/// @param recuperato  of `recuperaProgetto`
[[nodiscard]] std::string testoFine(const std::exception& errore, const std::string& recuperato);

}  // namespace korven::commands
