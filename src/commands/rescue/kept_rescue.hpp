#pragma once

#include <optional>
#include <string>

#include "base/disk.hpp"
#include "commands/rescue/rescue_file.hpp"

namespace korven::commands {

/// The rescue file that this program keeps of the open project while there is unsaved work: at most
/// one, which holds the project as it was at the last look. A program that dies leaves it; it is
/// offered when the project is opened next (found_rescues.hpp). No other program's file and none of
/// an earlier one is ever touched.
class RecuperoTenuto {
 public:
    /// Brings the file up to what is unsaved: writes it beside the project, or among the user's
    /// data where that fails, when its content is not the project's any more; removes it when
    /// nothing is unsaved or another project is open.
    /// @pre no run is in progress
    /// @return the first failure to write after a success, as a line for the user; else empty
    [[nodiscard]] std::string guarda(const base::Disco& disco = base::discoDiSistema());

    /// Makes a file that was found the one that is kept of the open project.
    void adotta(FileRecupero file);

    /// Removes the file: its user does not want what is unsaved.
    void rinuncia();

    /// Brings the file that is kept up to the project as it is now, in its place: the program ends.
    /// @return its path; empty if none is kept of the open project or it can't be written
    [[nodiscard]] std::string chiudi(const base::Disco& disco);

    /// The path of the file that is kept; empty if there is none.
    [[nodiscard]] std::string percorso() const { return file_ ? file_->percorso() : std::string(); }

 private:
    [[nodiscard]] bool tenuto() const { return file_ && file_->intatto(); }
    [[nodiscard]] bool riscritto(const std::string& byte, const base::Disco& disco);
    [[nodiscard]] std::string scriviAltrove(const std::string& byte, const base::Disco& disco);

    std::string progetto_;
    std::optional<FileRecupero> file_;
    bool fallito_ = false;  // which the user has been told
};

/// The one of this program.
extern RecuperoTenuto recuperoTenuto;

}  // namespace korven::commands
