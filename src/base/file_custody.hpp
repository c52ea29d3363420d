#pragma once

#include <string>
#include <string_view>

#include "base/disk.hpp"

// How a process shows that it is still using a file or a folder: by an advisory lock on it, which
// the system ends with the process, however that ended.

namespace korven::base {

enum class Custodia {
    presa,
    altrui,       ///< another process, or another opening by this one, holds it
    impossibile,  ///< the file system has no locks
};

/// Tries to take the lock of an open file or folder, without waiting; closing it lets go.
[[nodiscard]] Custodia prendiInCustodia(int file);

/// True while the open file still bears the name, and the name is not a link now.
[[nodiscard]] bool portaIlNome(int file, const std::string& percorso);

/// A file or folder that belongs to this process as long as this lives, where the file system has
/// locks at all.
class InCustodia {
 public:
    InCustodia() = default;
    InCustodia(InCustodia&& altra) noexcept;
    InCustodia& operator=(InCustodia&& altra) noexcept;
    ~InCustodia() { lascia(); }

    /// Takes a file, and makes it if it is not there. What it holds stays.
    /// @return false if the name is another's: a link, a file that may not be written or that
    ///         somebody holds
    /// @throws ErroreScrittura with the system's reason
    [[nodiscard]] bool prendiFile(const std::string& percorso);

    /// Takes a folder that this process has just made.
    /// @return false if it lost its name meanwhile, to somebody who took it for a leftover
    [[nodiscard]] bool prendiCartella(const std::string& percorso);

    /// True while what was taken still bears its name.
    [[nodiscard]] bool portaIlNome() const;

    /// Gives the file that was taken another content.
    /// @throws ErroreScrittura with the system's reason; the file is then removed
    void riscrivi(std::string_view contenuto, const Disco& disco = discoDiSistema());

    void lascia();

 private:
    std::string percorso_;
    int file_ = -1;
};

}  // namespace korven::base
