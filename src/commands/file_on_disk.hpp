#pragma once

#include <optional>
#include <string>

namespace korven::commands {

/// What the file of the open project held when it was last read or written here: another program
/// with the same project may have changed it since.
class FileSuDisco {
 public:
    /// Takes note of the file as it is now; a file that does not exist is noted as missing.
    /// @throws base::ErroreFile if it exists and can't be read
    void ricorda(const std::string& percorso);

    /// True if it is this very file and it no longer holds what was noted. False for any other
    /// file, and for one that is gone: nothing of another's work can be lost then.
    /// @throws base::ErroreFile if it exists and can't be read
    [[nodiscard]] bool cambiato(const std::string& percorso) const;

 private:
    std::string percorso_;
    std::optional<std::string> contenuto_;
};

/// The file that a name of a project leads to: the file of that very name, else one of the same
/// folder whose name differs in the case of the extension alone ("MURO.KVD" for "MURO.kvd"), since
/// the dialogs show projects whatever the case. Empty when there is none.
[[nodiscard]] std::string trovaProgetto(const std::string& nome);

}  // namespace korven::commands
