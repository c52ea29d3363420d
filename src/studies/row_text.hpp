#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "studies/columns.hpp"

namespace korven::studies {

enum class Formato {
    csv,   ///< RFC 4180: a line of names, then a line a variant, each ended by CR LF
    json,  ///< an object a line, ended by a line feed
};

/// The rows of a study as lines of a file, and back. Numbers are the shortest texts that read back
/// as the same double, so that a row that was read is the row that was written.
///
/// A row has the values of the fields, in shown units, then those of the columns; `vuoto` for none,
/// a word by its number. Its line begins with the number of the variant, counted from 1, and has
/// not the columns that are not written.
class RigheStudio {
 public:
    RigheStudio(std::span<const project::CampoNominato> campi, std::vector<Colonna> colonne,
                Formato formato);

    /// Values of a row.
    [[nodiscard]] std::size_t quanti() const { return chiavi_.size(); }
    [[nodiscard]] const std::vector<Colonna>& colonne() const { return colonne_; }
    [[nodiscard]] std::size_t campi() const { return campi_.size(); }
    [[nodiscard]] const std::vector<project::CampoNominato>& nominati() const { return campi_; }
    /// The names of the values: of a field its code name.
    [[nodiscard]] const std::vector<std::string>& nomi() const { return nomi_; }

    /// False where some column is not written: a row that is read has none of its values.
    [[nodiscard]] bool tutteScritte() const;

    /// The words of a value of the row, by number; nullptr: it is a number.
    [[nodiscard]] const std::vector<std::string_view>* parole(std::size_t j) const;

    /// What stands before the rows: the line of names, fields with their units; nothing in JSON.
    [[nodiscard]] const std::string& testata() const { return testata_; }

    /// What ends a line.
    [[nodiscard]] std::string_view fineRiga() const;

    /// Adds the line of a row.
    /// @param i  of the variant, from 0
    void scrivi(std::uint64_t i, std::span<const double> valori, std::string& testo) const;

    /// Reads a line without its end.
    /// @param valori  as many as there are
    /// @return the variant, from 0; nothing for a line that is none of this study
    [[nodiscard]] std::optional<std::uint64_t> leggi(std::string_view riga,
                                                     std::span<double> valori) const;

 private:
    void cella(std::size_t j, double valore, std::string& testo) const;
    [[nodiscard]] bool leggiCella(std::size_t j, std::string_view testo, double& valore) const;

    std::vector<project::CampoNominato> campi_;
    std::vector<Colonna> colonne_;
    Formato formato_;
    std::vector<std::string> nomi_;
    std::vector<std::string> chiavi_;  ///< what stands before each value; empty: it is not written
    std::string inizio_, testata_;
};

}  // namespace korven::studies
