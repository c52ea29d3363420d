#pragma once

#include <stdexcept>
#include <string>

namespace korven::base {

/// Something outside went wrong: a file is missing, cut short or holds what is no number, a disk is
/// full. Raised where it is found and caught once, in `main`, which tells the user and ends; only a
/// command that can go on without the file tells it itself.
class ErroreFile : public std::runtime_error {
 public:
    /// @param percorso  the file, as the user may find it [UTF-8]
    /// @param riga      line number from 1; 0 when the whole file is meant
    /// @param atteso    what was expected there, or why the file can't be used [translated, UTF-8]
    ErroreFile(std::string percorso, long riga, std::string atteso);

    [[nodiscard]] const std::string& percorso() const { return percorso_; }
    [[nodiscard]] long riga() const { return riga_; }
    [[nodiscard]] const std::string& atteso() const { return atteso_; }

 private:
    std::string percorso_;
    long riga_;
    std::string atteso_;
};

/// A file could not be written: disk full, no permission, read-only folder. What is in memory is
/// sound, so that a command that meets it can tell it and let the user go on.
class ErroreScrittura : public ErroreFile {
 public:
    using ErroreFile::ErroreFile;
};

/// The system refused to write a file.
/// @param codice  its reason, as `errno` holds it
/// @throws ErroreScrittura always
[[noreturn]] void nonScritto(const std::string& percorso, int codice);

}  // namespace korven::base
