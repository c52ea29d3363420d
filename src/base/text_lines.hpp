#pragma once

#include <string>
#include <string_view>

namespace korven::base {

/// Reads a text file line by line, or number by number, and says where it broke. The file is
/// Windows-1252; lines end in CR LF or LF alone, the last may have no end, or only the CR of one
/// that was cut in two. A mark of DOS at the end (1A) and the line ends after it are no part of the
/// file. Texts come out in UTF-8.
class LettoreRighe {
 public:
    /// Reads the whole file.
    /// @param rimedio  what the user can do about a broken file, translated, added to every error;
    ///                 may be empty
    /// @throws ErroreFile if the file is missing, a folder or not readable
    [[nodiscard]] static LettoreRighe apri(const std::string& percorso, std::string rimedio = {});

    /// Reads `contenuto`, the bytes of a file that is called `percorso` in errors.
    LettoreRighe(std::string percorso, std::string contenuto, std::string rimedio = {});

    /// True when nothing follows. A lone line end is nothing.
    [[nodiscard]] bool fine() const;

    /// True when only blanks and line ends follow, as an editor may leave them: no further value.
    [[nodiscard]] bool soloRigheVuote() const;

    /// The next line whole, without its end.
    /// @param atteso  what the line is to be, for the error; translated
    /// @throws ErroreFile at the end of the file
    std::string riga(std::string_view atteso);

    /// The number at the head of the next line.
    /// @throws ErroreFile at the end of the file or if the line begins with no number
    double numero(std::string_view atteso);

    /// The number that makes up the next line: with nothing but blanks around it, and between
    /// `minimo` and `massimo`. For files that people edit, where "0,35" must not become 0.
    /// @throws ErroreFile as above, and if something follows or the number lies outside
    double numeroSolo(double minimo, double massimo, std::string_view atteso);

    /// Number of the line last read, from 1.
    [[nodiscard]] long numeroRiga() const { return letta_; }

    /// True when the line last read has its line end: then nothing of it was cut off.
    [[nodiscard]] bool rigaIntera() const;

    /// Raises an ErroreFile for the line last read. Names a byte order mark or zero bytes too,
    /// which are then the cause.
    /// @param atteso  what was expected there, translated
    [[noreturn]] void rifiuta(std::string_view atteso) const;

 private:
    [[nodiscard]] std::string_view prossima(std::string_view atteso);

    std::string percorso_;
    std::string contenuto_;
    std::string rimedio_;
    std::size_t posizione_ = 0;
    long letta_ = 0;
};

}  // namespace korven::base
