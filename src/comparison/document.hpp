#pragma once

#include <memory>
#include <string>

#include "comparison/comparison.hpp"
#include "document/page.hpp"

namespace korven::comparison {

/// A comparison as a document: what differs, and a page with both walls and their curves.
/// @param confronto  kept as long as the document, whose drawing is made of it
/// @param data       "2026-11-22"
[[nodiscard]] document::Documento documento(const std::shared_ptr<const Confronto>& confronto,
                                            const std::string& data);

/// Both walls and their curves alone, wide, to look at: a page of `formatoCurve`.
[[nodiscard]] document::Documento documentoCurve(const std::shared_ptr<const Confronto>& confronto);
[[nodiscard]] document::Formato formatoCurve();

}  // namespace korven::comparison
