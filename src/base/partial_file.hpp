#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>

#include "base/disk.hpp"

namespace korven::base {

/// The name under which a file is written until it is done: "FILE.parziale", beside the file that a
/// link leads to.
/// @throws ErroreScrittura if links lead round in a circle
[[nodiscard]] std::string nomeParziale(const std::string& percorso);

/// A file that takes long to be made. It bears a name of its own until `concludi`, so that what an
/// interrupted program has made stays, and nobody takes half of it for the whole. Another program
/// that would write the same is kept off by a lock.
class FileParziale {
 public:
    /// Opens the partial file, and makes it where there is none; what it holds stays for now.
    /// @param percorso  of the file in the end
    /// @throws ErroreScrittura with the system's reason, also where another program writes it
    explicit FileParziale(const std::string& percorso, const Disco& disco = discoDiSistema());
    FileParziale(const FileParziale&) = delete;
    FileParziale& operator=(const FileParziale&) = delete;
    ~FileParziale();

    [[nodiscard]] const std::string& nome() const { return nome_; }

    /// Reads its whole lines one after the other, each without its end; a last line that was cut
    /// short is none. False from `riga` ends the reading.
    /// @return bytes of the lines that were taken
    [[nodiscard]] std::uint64_t leggi(std::string_view fineRiga,
                                      const std::function<bool(std::string_view)>& riga) const;

    /// Drops all that comes after so many bytes, and goes on from there.
    /// @throws ErroreScrittura with the system's reason
    void tieni(std::uint64_t byte);
    /// Adds to the end.
    /// @throws ErroreScrittura with the system's reason; what was written before stays
    void scrivi(std::string_view byte);
    /// Brings it to the disk and gives it the name of the file, whose earlier content is gone then.
    /// @throws ErroreScrittura with the system's reason
    void concludi();

 private:
    const Disco& disco_;
    std::string meta_, nome_;
    int file_ = -1;
};

}  // namespace korven::base
