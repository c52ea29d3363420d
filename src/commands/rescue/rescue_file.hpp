#pragma once

#include <memory>
#include <optional>
#include <string>

#include "base/disk.hpp"
#include "base/file_identity.hpp"
#include "base/folders/file_lock.hpp"
#include "project/project_data.hpp"

namespace korven::commands {

/// The bytes of a rescue file: the project and the mark that says whose it is
/// (project/rescue_mark.hpp).
[[nodiscard]] std::string byteRecupero(const project::DatiProgetto& dati,
                                       const std::string& progetto);

/// A rescue file under its name, with the lock by which other programs know that somebody has to do
/// with it (base/folders/file_lock.hpp). Where no lock can be made it goes without.
class FileRecupero {
 public:
    /// Makes a rescue file in a folder, under the first name that is free and that no other program
    /// is about to take: whole, or not at all.
    /// @param progetto  path of the project, which gives the name
    /// @throws base::ErroreFile with the system's reason; nothing is left then
    [[nodiscard]] static FileRecupero crea(const std::string& cartella, const std::string& progetto,
                                           std::string byte, const base::Disco& disco);

    /// Takes one that is there.
    /// @return nothing if another has to do with it, or if it is no plain file of the user's own
    /// @throws base::ErroreFile if it can't be read
    [[nodiscard]] static std::optional<FileRecupero> prendi(const std::string& percorso);

    /// True while the file of the name is the one that was taken or written here last.
    [[nodiscard]] bool intatto() const;

    /// Gives the file another content in one step. @pre `intatto`: asserted
    /// @throws base::ErroreFile with the system's reason; the earlier content is untouched then
    void riscrivi(std::string byte, const base::Disco& disco);

    /// Removes the file, unless somebody has put another in its place; then only lets go of it.
    void togli();

    [[nodiscard]] const std::string& percorso() const { return percorso_; }
    [[nodiscard]] const std::string& byte() const { return byte_; }

 private:
    FileRecupero(std::string percorso, std::unique_ptr<base::Serratura> serratura, std::string byte)
        : percorso_(std::move(percorso)),
          serratura_(std::move(serratura)),
          byte_(std::move(byte)),
          impronta_(percorso_) {}

    std::string percorso_;
    std::unique_ptr<base::Serratura> serratura_;
    std::string byte_;
    base::ImprontaFile impronta_;
};

}  // namespace korven::commands
