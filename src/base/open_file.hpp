#pragma once

#include <cstddef>
#include <cstdint>
#include <string>

namespace korven::base {

/// A file that is open to be read for as long as this lives: one that takes its name meanwhile is
/// not seen. Several threads may read at once.
class FileAperto {
 public:
    /// @throws ErroreFile if it is missing, not readable or no plain file (a pipe, a device, a
    ///         socket: never waited for)
    explicit FileAperto(const std::string& percorso);
    FileAperto(const FileAperto&) = delete;
    FileAperto& operator=(const FileAperto&) = delete;
    ~FileAperto();

    [[nodiscard]] const std::string& nome() const { return percorso_; }
    /// Bytes that it has now.
    [[nodiscard]] std::uint64_t lunghezza() const;
    /// Bytes from a place on: fewer than asked for at its end alone.
    /// @throws ErroreFile with the system's reason; of a folder always
    [[nodiscard]] std::string leggi(std::uint64_t da, std::size_t quanti) const;

 private:
    std::string percorso_;
    int file_;
};

}  // namespace korven::base
