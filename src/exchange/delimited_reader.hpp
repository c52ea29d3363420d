#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace korven::exchange {

/// A cell of a text of parted cells, without its quotes.
struct CellaLetta {
    std::string testo;
    bool virgolettata = false;
};

/// A row of it. A quoted cell may hold line ends, so that a row may take several lines.
struct RigaLetta {
    long riga = 0;  ///< of the file, from 1, in which it begins
    std::vector<CellaLetta> celle;

    /// True when it has nothing but blanks.
    [[nodiscard]] bool vuota() const;
    /// The text of a cell from 0 without outer blanks; empty beyond the last.
    [[nodiscard]] std::string_view cella(std::size_t numero) const;
};

/// Reads a text of cells parted by one sign, row by row, as RFC 4180 has it (Shafranovich, Common
/// Format and MIME Type for Comma-Separated Values): a cell in quotes may hold the sign, line ends
/// and quotes written twice. Lines end at CR LF, LF or CR. Blanks around the quotes of a cell do
/// not count; a quote inside a cell without quotes is a character.
class LettoreDelimitato {
 public:
    /// @param testo      UTF-8; must outlive the reader
    /// @param primaRiga  number of its first line in the file
    LettoreDelimitato(std::string_view testo, char separatore, long primaRiga = 1)
        : testo_(testo), separatore_(separatore), riga_(primaRiga) {}

    /// The next row, nothing after the last one or at a fault.
    std::optional<RigaLetta> prossima();
    /// The next row that has more than blanks.
    std::optional<RigaLetta> prossimaPiena();

    /// Why reading ended before the end of the text: a quoted cell that never ends, or a text
    /// behind the quotes; translated, with its line. Empty: it did not.
    [[nodiscard]] const std::string& difetto() const { return difetto_; }

 private:
    [[nodiscard]] bool finito() const { return posizione_ >= testo_.size(); }
    [[nodiscard]] char qui() const { return testo_[posizione_]; }
    [[nodiscard]] bool aFineCella() const;
    void saltaSpazi();
    bool saltaFineRiga();
    CellaLetta cella(std::size_t numero);
    CellaLetta traVirgolette(std::size_t numero);

    std::string_view testo_;
    char separatore_;
    std::size_t posizione_ = 0;
    long riga_;
    std::string difetto_;
};

}  // namespace korven::exchange
