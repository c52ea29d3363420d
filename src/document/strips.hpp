#pragma once

#include <memory>
#include <optional>
#include <vector>

#include "document/page.hpp"

namespace korven::document {

/// A strip of a document as wide as the text, which no page parts: a line, a row of a table, a
/// drawing. What it holds is measured from its upper left corner.
struct Striscia {
    double altezza = 0;
    double prima = 0, dopo = 0;  ///< room above and below, the larger of two counts; none at a
                                 ///< page's head
    bool legata = false;         ///< stays on the page of the next one
    bool nuovaPagina = false;    ///< begins one
    double posto = 0;            ///< begins a page where less than this is left
    double costo = 0;            ///< what it costs to part it from the strip above it: half of an
                                 ///< empty page is worth 25
    double cede = 0;             ///< by how much its drawing may be lower
    bool puoAttendere = false;   ///< what follows may fill the page that has no room for it
    Pagina contenuto{};
    /// Stands above it where it begins a page: the head of its table.
    std::shared_ptr<const Striscia> testa{};
    std::optional<Segnalibro> segnalibro{};
};

using Strisce = std::vector<Striscia>;

/// The pages of strips, without head and foot, parted as `scegliPagine` says.
/// @param segnalibri  gets those of the strips
[[nodiscard]] std::vector<Pagina> riempi(const Strisce& strisce, const Formato& formato,
                                         std::vector<Segnalibro>& segnalibri);

}  // namespace korven::document
