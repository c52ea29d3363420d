#pragma once

#include <optional>
#include <span>
#include <string>
#include <string_view>

#include "project/field_table.hpp"
#include "project/project_data.hpp"
#include "studies/plan/fault.hpp"

// Which fields a study may vary, and which values it may give them.

namespace korven::studies {

/// The field of a name, which holds a number, a code, a flag or a number of rows.
/// @param dati  has the rows of the tables
[[nodiscard]] Letto<project::CampoNominato> campoDiStudio(const project::DatiProgetto& dati,
                                                          std::string_view nome);

/// A number with a decimal point.
[[nodiscard]] Letto<double> numeroScritto(std::string_view testo);

/// A typed value of a field: a number within its range, or the name of a code.
/// @return in the shown unit
[[nodiscard]] Letto<double> valoreDiStudio(const project::CampoNominato& campo,
                                           std::string_view testo);

/// Why a number can't be a value of the field.
/// @param mostrato  in the shown unit
[[nodiscard]] std::optional<DifettoPiano> difettoValore(const project::CampoNominato& campo,
                                                        double mostrato);

/// The first name of a field that stands among some more than once; nothing if none does.
[[nodiscard]] std::optional<std::string> campoRipetuto(
    std::span<const project::CampoNominato> campi);

}  // namespace korven::studies
