#pragma once

#include <array>
#include <optional>
#include <string_view>

namespace korven::analysis {

/// What a result diagram shows along the wall, with the numbers that `modoUscita` has for it.
enum class Diagramma { pressioni = 1, spostamenti, momenti, taglio };

/// What comes after a run: a diagram, or the report.
using ModoUscita = std::optional<Diagramma>;
inline constexpr ModoUscita relazione = std::nullopt;

/// How a diagram is called, wherever it is.
struct NomiDiagramma {
    Diagramma diagramma;
    std::string_view nome;     ///< one word, in names of files and on the command line
    std::string_view inglese;  ///< the same in English, on the command line alone
};

/// The diagrams in the order of their numbers.
inline constexpr std::array<NomiDiagramma, 4> diagrammi = {{
    {Diagramma::pressioni, "pressioni", "pressures"},
    {Diagramma::spostamenti, "spostamenti", "displacements"},
    {Diagramma::momenti, "momenti", "moments"},
    {Diagramma::taglio, "taglio", "shear"},
}};

[[nodiscard]] constexpr const NomiDiagramma& nomi(Diagramma diagramma) {
    return diagrammi[static_cast<std::size_t>(diagramma) - 1];
}

}  // namespace korven::analysis
