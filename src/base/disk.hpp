#pragma once

#include <sys/types.h>

#include <string>
#include <string_view>

namespace korven::base {

/// What the writers of files ask of the system, call by call: the port behind which a test puts a
/// disk that is full or broken. A call that fails says so as the system does, with the reason in
/// `errno`. Everything else about a file (whether it is there, its links, its lock) is asked of the
/// system itself.
class Disco {
 public:
    virtual ~Disco() = default;

    /// Opens a file, and makes it where `modo` says so.
    /// @param modo      as `open` takes it; programs that are started never get the file
    /// @param permessi  of a file that is made, less what the user's mask takes
    /// @return its number, negative on failure
    [[nodiscard]] virtual int apri(const std::string& percorso, int modo,
                                   mode_t permessi) const = 0;

    /// Makes a file that only the user may read, under a name that nobody has.
    /// @param modello  ends in XXXXXX, which the name replaces
    /// @return its number, negative on failure
    [[nodiscard]] virtual int creaProvvisorio(std::string& modello) const = 0;

    /// Writes at the place that the file has come to, as much as fits.
    /// @return how many bytes, negative on failure
    [[nodiscard]] virtual ssize_t scrivi(int file, std::string_view byte) const = 0;

    /// Cuts a file to that length.
    [[nodiscard]] virtual bool accorcia(int file, off_t lunghezza) const = 0;

    /// Brings what was written to the disk; does not come back before.
    [[nodiscard]] virtual bool versa(int file) const = 0;

    /// Closes a file: on disks of a network the last moment to tell of a failure.
    [[nodiscard]] virtual bool chiudi(int file) const = 0;

    /// Gives a file the name of another, which is gone then.
    [[nodiscard]] virtual bool rinomina(const std::string& da, const std::string& a) const = 0;
};

/// The disks of the machine.
[[nodiscard]] const Disco& discoDiSistema();

/// Writes all bytes, in as many pieces as the disk takes them.
/// @return false on failure, with the reason in `errno`
[[nodiscard]] bool scriviTutto(const Disco& disco, int file, std::string_view byte);

}  // namespace korven::base
