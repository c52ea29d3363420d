#pragma once

#include <vector>

namespace korven::drawings {

/// Height of a block of `righe` lines of text [cm]: (1.5 n + 0.5) times the height of the
/// characters; 0 for a block without lines.
[[nodiscard]] double altezzaBlocco(std::size_t righe, double altezzaTesto);

/// A block of text that is to end on a line of its own, unless others need the room.
struct Blocco {
    double piede = 0;    ///< where its lower edge is to lie [cm]
    double altezza = 0;  ///< [cm]
};

/// Lower edges of blocks in one column, from the top down.
///
/// Down the column: a block ends on its own line if it has room between that and the block above,
/// else right below that block. If the last one then ends below `inferiore`, it is set there, and
/// from it upward each block that now overlaps the one below is pushed up by the overlap, as far as
/// the first that needs no push. Blocks that have no room in all leave at the top.
[[nodiscard]] std::vector<double> disponiBlocchi(const std::vector<Blocco>& blocchi,
                                                 double superiore, double inferiore);

}  // namespace korven::drawings
