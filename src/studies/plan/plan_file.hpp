#pragma once

#include <string_view>
#include <vector>

#include "project/project_data.hpp"
#include "studies/plan/fault.hpp"
#include "studies/variants.hpp"

namespace korven::studies {

/// Variants that a table names one by one. All values are in memory, eight bytes each.
class Piano final : public Varianti {
 public:
    /// @param valori  variant by variant, in the order of the fields
    Piano(std::vector<project::CampoNominato> campi, std::vector<double> valori);

    [[nodiscard]] std::span<const project::CampoNominato> campi() const override { return campi_; }
    [[nodiscard]] std::uint64_t numero() const override { return valori_.size() / campi_.size(); }
    std::vector<Estremita> valori(std::uint64_t i, std::span<double> valori) const override;

 private:
    std::vector<project::CampoNominato> campi_;
    std::vector<double> valori_;
};

/// A plan, or all that is wrong with its file; what follows the first twenty faults is not told.
struct PianoLetto {
    std::optional<Piano> piano;
    std::vector<DifettoPiano> difetti;
};

/// Reads a plan: a column a field, a row a variant, as RFC 4180 has it (Shafranovich, Common Format
/// and MIME Type for Comma-Separated Values), cells parted by semicolons, or by commas in a file
/// without one in its first row. The first row has the names of the fields, which the unit in
/// brackets may follow ("phiStrato[2] [°]"); the others have numbers with a decimal point, in shown
/// units, or the names of codes. Rows without a text are passed over.
///
/// Each fault is told with line and column: a field that is none, a text for a number, a value out
/// of its field's range, cells without a column.
/// @param dati  has the rows of the tables
/// @param byte  of the file: UTF-8 with or without its mark, or Windows-1252
[[nodiscard]] PianoLetto leggiPiano(const project::DatiProgetto& dati, std::string_view byte);

}  // namespace korven::studies
