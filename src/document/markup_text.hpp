#pragma once

#include <array>
#include <string>

#include "document/blocks.hpp"

namespace korven::document {

/// What the mark-up is for. Plain text keeps numbers as they are, for a spreadsheet; a word
/// processor's file fills them up to the same decimals, which those here must not be.
enum class Uso { testo, documento };

/// Sizes of the headings of the three levels in that language, which has no levels [points].
inline constexpr std::array<double, 3> corpiTitoli{14, 11, 9.5};

/// A document in the language of the report (docs/reports.md), UTF-8, lines ended by CR LF. Letters
/// that Windows-1252 lacks are spelled out, a line that begins with "#" stands behind a quote mark,
/// blanks at a line's head are lost; a drawing is its caption and what it shows. Tables beyond what
/// a mark-up holds, 510 rows and 30 columns, stand in parts that repeat head and first column.
[[nodiscard]] std::string inMarkup(const Documento& documento, Uso uso);

/// The bytes of a text file (Windows-1252, CR LF): cells of a table parted by tabs, paragraphs
/// broken at 100 characters.
[[nodiscard]] std::string testoSemplice(const Documento& documento);

}  // namespace korven::document
