#pragma once

#include <cstddef>
#include <string>
#include <string_view>

#include "base/disk.hpp"

// Whoever writes takes the disk as its last parameter: the machine's, but for a test that wants to
// see what stays and what is told when it fails.

namespace korven::base {

/// Size beyond which a file is none of this program's: 1 GiB.
inline constexpr std::size_t massimoByte = std::size_t{1} << 30;

/// The bytes of a file.
/// @throws ErroreFile if it is missing, not readable, larger than `massimoByte`, a folder or no
///         plain file (a pipe, a device, a socket: never waited for)
[[nodiscard]] std::string leggiFile(const std::string& percorso);

/// Puts `contenuto` under the name `percorso`, all of it or nothing: the bytes go into a temporary
/// file of the same folder, to the disk, and then take the name. An earlier file of that name
/// survives any failure. Its permissions are kept; a link is followed, even to a missing target.
/// @throws ErroreFile with the system's reason (full disk, no permission, no such folder, links in
///         a loop, a folder of that name), or if the name is that of a pipe, a device or a socket
void scriviFile(const std::string& percorso, std::string_view contenuto,
                const Disco& disco = discoDiSistema());

/// Refuses a name under which `scriviFile` could write nothing now: whoever is going to work for
/// long for a file asks before. Nothing stays of the trial.
/// @throws ErroreFile as `scriviFile`
void controllaScrivibile(const std::string& percorso, const Disco& disco = discoDiSistema());

/// The same of a folder for `creaCartella`.
/// @throws ErroreFile with the system's reason, if it neither exists nor can be made
void controllaCartella(const std::string& cartella);

/// A file in the making, for contents too long for memory: what `scriviFile` does, part by part.
/// Without `concludi` nothing is left of it, and an earlier file of that name stays.
class ScrittoreFile {
 public:
    /// @throws ErroreFile as `scriviFile`
    explicit ScrittoreFile(const std::string& percorso, const Disco& disco = discoDiSistema());
    ScrittoreFile(const ScrittoreFile&) = delete;
    ScrittoreFile& operator=(const ScrittoreFile&) = delete;
    ~ScrittoreFile();

    /// @throws ErroreFile with the system's reason
    void scrivi(std::string_view contenuto);
    /// Brings the file to the disk and gives it its name.
    /// @throws ErroreFile with the system's reason
    void concludi();

 private:
    [[noreturn]] void fallito();
    void abbandona();

    const Disco& disco_;
    std::string percorso_, meta_, provvisorio_;
    int file_ = -1;
};

/// Writes a file that does not exist yet, under a name that somebody else could have guessed and
/// made first, as a link to something that must not be lost.
/// @throws ErroreScrittura with the system's reason, also if the name is taken, be it by a link
///         that leads nowhere; nothing is left of a file that can't be written to its end
void scriviFileNuovo(const std::string& percorso, std::string_view contenuto,
                     const Disco& disco = discoDiSistema());

/// Appends to an existing file; on a failure the file is cut back to what it held.
/// @throws ErroreFile with the system's reason
void accodaFile(const std::string& percorso, std::string_view contenuto,
                const Disco& disco = discoDiSistema());

/// True if something that is no folder has that name. It need not be readable: `leggiFile` then
/// tells why, where a false here would pass over it in silence.
[[nodiscard]] bool esisteFile(const std::string& percorso);

/// True if a file can be made in the folder. Tried out under a name that nobody can guess: a file
/// that is there already, or what a link leads to, must not be emptied.
[[nodiscard]] bool accettaFile(const std::string& cartella);

/// True if the name is taken: by a file, a folder or a link, though it may lead nowhere.
[[nodiscard]] bool esisteNome(const std::string& percorso);

/// Removes a file if it exists; says nothing if it can't.
void cancellaFile(const std::string& percorso);

/// Makes a folder, with those above it, unless it exists.
/// @throws ErroreFile with the system's reason, if it can't be made
void creaCartella(const std::string& cartella);

}  // namespace korven::base
