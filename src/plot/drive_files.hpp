#pragma once

#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "base/disk.hpp"
#include "base/file_custody.hpp"

namespace korven::plot {

/// The spill files of this process where the system's variable `windir` names a drive. Their names
/// are the same for every process, so each takes the numbers that are free: those whose file is
/// missing, or belongs to no other living process. A process owns a file by a lock on it, which the
/// system ends with the process; the file stays and is written over by whoever comes next.
class FileDiUnita {
 public:
    /// Path of spill file `numero` of this process, from 1; the name of that very number as long as
    /// none was written.
    [[nodiscard]] std::string percorso(std::string_view windir, int numero) const;

    /// Writes spill file `numero` under the first free number after that of the file before;
    /// written again it keeps its number. A link is never followed: its number is not free.
    /// @throws base::ErroreScrittura with the system's reason; nothing of the file is left then
    void scrivi(std::string_view windir, int numero, std::string_view testo,
                const base::Disco& disco = base::discoDiSistema());

 private:
    struct Preso {
        int numero = 0;
        base::InCustodia file;
    };
    using Unita = std::vector<Preso>;

    [[nodiscard]] static Preso prendi(std::string_view windir, int daNumero);

    std::map<std::string, Unita> unita_;  // by the folder in which the names lie
};

}  // namespace korven::plot
