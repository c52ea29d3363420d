#pragma once

#include <string>

namespace korven::base {

/// An advisory lock between programs on a small empty file that is there for nothing else.
///
/// The holder removes the file before it lets go. Who gets the lock of a file that has lost its
/// name meanwhile begins anew, so that two never hold the lock of one name. The system ends a lock
/// with its process, however that ended: a file that a killed program left is in nobody's way, the
/// next holder takes it over and removes it.
class Serratura {
 public:
    enum class Esito {
        presa,
        occupata,    ///< another holds it: another program, or another object of this one
        ingombra,    ///< something of that name is there that is no lock: a link, a folder, a pipe
        impossibile  ///< no such file can be made here and nobody else's is there, or the file
                     ///< system has no locks
    };

    Serratura() = default;
    Serratura(const Serratura&) = delete;
    Serratura& operator=(const Serratura&) = delete;
    ~Serratura() { lascia(); }

    /// Tries to take the lock on the file of this name, without waiting, after letting go of what
    /// it holds.
    [[nodiscard]] Esito prendi(const std::string& percorso);
    void lascia();

    [[nodiscard]] bool presa() const { return file_ >= 0; }
    /// The name whose lock is held, or was last.
    [[nodiscard]] const std::string& percorso() const { return percorso_; }

 private:
    std::string percorso_;
    int file_ = -1;
};

/// Name of the lock for a file: ".korven-muro.OUT.lock" beside "muro.OUT", beside its target if it
/// is a link. A name so long that it leaves no room for more gives way to a number made of it.
[[nodiscard]] std::string nomeSerratura(const std::string& file);

}  // namespace korven::base
