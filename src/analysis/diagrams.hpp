#pragma once

#include <optional>

namespace korven::analysis {

/// What a result diagram shows along the wall, with the numbers that `modoUscita` has for it; what
/// each is called and how it is drawn is in the table of drawings/diagram_rows.hpp.
enum class Diagramma { pressioni = 1, spostamenti, momenti, taglio };

/// What comes after a run: a diagram, or the report.
using ModoUscita = std::optional<Diagramma>;
inline constexpr ModoUscita relazione = std::nullopt;

}  // namespace korven::analysis
