#pragma once

#include "drawings/log/table.hpp"

// What the columns of the stratigraphic log show. Each draws with the pen of the column in use and
// may leave another.

namespace korven::drawings {

inline constexpr double larghezzaDescrizioni = 3.2;  ///< of their column [cm]

/// The depth of each layer's foot, at a place of its own (label_spreading.hpp); slanted ticks tie
/// it to the true depth.
void disegnaProfondita(const Stratigrafia& stratigrafia, const Colonna& colonna);

/// The hatch of each layer in pen 9 + its colour, and a line at its foot unless it is left open.
/// @throws base::ErroreFile when the library of hatches is missing or broken
void disegnaGrafici(const Stratigrafia& stratigrafia, const Colonna& colonna);

/// The description of each layer as a block of lines (description_blocks.hpp), underlined and tied
/// to the layer's foot by a leader on both sides.
/// @throws base::ErroreIndice when a description needs more than 100 lines
void disegnaDescrizioni(const Stratigrafia& stratigrafia, const Colonna& colonna);

/// The uphill water table and its depth, if it lies above the foot of the last layer.
void disegnaFalda(const Stratigrafia& stratigrafia, const Colonna& colonna);

/// Staircases of the unit weights over a full scale of 3 t/m3.
void disegnaPesi(const Stratigrafia& stratigrafia, const Colonna& colonna);

/// Staircase of the friction angle over a full scale of 50 degrees.
void disegnaAttrito(const Stratigrafia& stratigrafia, const Colonna& colonna);

/// Staircases of cohesion and undrained strength over a full scale of 5, 10 or 50 t/m2, the first
/// that holds them all. A value above 50 runs out of the column.
void disegnaCoesione(const Stratigrafia& stratigrafia, const Colonna& colonna);

/// A bar of blocks, each a step of the scale high, alternately right and left of its axis.
void disegnaScala(const Stratigrafia& stratigrafia, const Colonna& colonna);

}  // namespace korven::drawings
