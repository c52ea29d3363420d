#pragma once

#include <vector>

#include "document/strips.hpp"

namespace korven::document {

/// So many lines of notes stay with the table that they tell of.
inline constexpr std::size_t righeNota = 6;

/// Ties the strips of neighbouring blocks that a reader wants on one page: what is said of a table,
/// or of lines of typewriter, to its first rows, and the notes below a table to its last ones. Of
/// long texts the lines next to the table alone. What a chapter begins with is not bound to its
/// first part, but a page that begins between them costs more, and so does one between a table and
/// its verdict.
/// @param inizi  of each block, its first strip; one more for the end
void lega(const Documento& documento, const std::vector<std::size_t>& inizi, Strisce& strisce);

}  // namespace korven::document
