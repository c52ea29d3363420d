#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace korven::masks {

/// The cells of a grid: rows 1 to 500, data columns from 1. A row has data when one of its cells is
/// neither empty nor blank.
class CelleGriglia {
 public:
    static constexpr int righe = 500;

    explicit CelleGriglia(int colonne);

    [[nodiscard]] int colonne() const { return colonne_; }
    [[nodiscard]] const std::string& testo(int riga, int colonna) const;
    /// A character that no project file can hold becomes a '?' at once.
    void scrivi(int riga, int colonna, std::string_view testo);

    /// True when the cell is neither empty nor blank.
    [[nodiscard]] bool piena(int riga, int colonna) const;
    [[nodiscard]] bool haDati(int riga) const;
    /// Number of rows with data: how many a confirmed table has.
    [[nodiscard]] int righeConDati() const;
    /// True when a cell of the row is empty or blank.
    [[nodiscard]] bool haVuoti(int riga) const;
    /// The last row with data, searched from the bottom up to row `fino`; 0 when there is none.
    [[nodiscard]] int ultimaRiga(int fino = 1) const;

    /// Moves `riga` and what follows down by one and empties it. Nothing happens after the last row
    /// with data or when that is row 500.
    /// @return true when a row was inserted
    bool inserisci(int riga);

    /// Moves the rows after `riga` up by one and clears the last row with data. After that row
    /// nothing happens.
    /// @return true when a row was deleted
    bool elimina(int riga);

    /// What the form hands over: the number of rows with data as text, then their cells, row after
    /// row. Rows without data are left out.
    [[nodiscard]] std::vector<std::string> impacchettate() const;

    /// Text for the clipboard: cells parted by tabs, rows by CR LF. Row 1 to the last row with data
    /// from `riga` down; when there is none, the rows above `riga`.
    [[nodiscard]] std::string copia(int riga) const;

    bool operator==(const CelleGriglia&) const = default;

 private:
    [[nodiscard]] std::size_t posto(int riga, int colonna) const;

    int colonne_;
    std::vector<std::string> celle_;
};

}  // namespace korven::masks
