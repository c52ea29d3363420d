#pragma once

#include <string>
#include <vector>

#include "safety/margin.hpp"
#include "tables/result_table.hpp"

namespace korven::tables {

/// The margin by stage: excavation, strength reduction F, passive side used and where it is at its
/// limit, movement of the toe, what happens at F. The cells of F and use have bars, F's up to
/// `fineBarraF`, and the weight of the remark that is made on such a value. Its notes are the
/// footnotes of the factors.
[[nodiscard]] Prospetto prospettoMargine(const safety::Margine& margine);

/// F at which its bar ends: what is beyond is safe, however far.
inline constexpr double fineBarraF = 3;

/// Largest moment, shear and anchors of each stage from the balance of the nodes, beside those of
/// the report.
/// @param dati  of the wall: struts are called struts
[[nodiscard]] Prospetto prospettoStatica(const safety::Margine& margine,
                                         const project::DatiProgetto& dati);

/// The largest numbers and the uses of the section with three meshes, and the error that the first
/// leaves; of the uses what they go to, and the verdict on the check. Its notes are the warnings of
/// `avvisiMaglia`. Without rows where a stage does not stand, with this mesh or a finer one.
[[nodiscard]] Prospetto prospettoMaglia(const safety::Margine& margine);

/// Why there is no error of the mesh, a sentence.
[[nodiscard]] std::string percheSenzaErrore();

/// Why the error of the mesh has no order, a sentence; empty where it has one.
[[nodiscard]] std::string percheSenzaOrdine(safety::Andamento andamento);

/// The verdict on the wall in one sentence.
[[nodiscard]] std::string verdetto(const safety::Margine& margine);

/// What else is said of it, a sentence each: shortest wall, mesh error, report, by which way the
/// numbers came.
[[nodiscard]] std::vector<std::string> frasi(const safety::Margine& margine);

/// What the picture of the mechanism shows of a wall that stands: under which strength it falls
/// like that. Empty for a wall that does not stand, which falls as it is.
[[nodiscard]] std::string didascaliaMeccanismo(const safety::Margine& margine);

}  // namespace korven::tables
