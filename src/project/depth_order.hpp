#pragma once

#include <vector>

#include "project/field_table.hpp"

namespace korven::project {

/// Two rows that follow each other in a table with their depths the wrong way round.
struct Disordine {
    const Campo* campo;  ///< the depths of layers, of anchors or of stages
    int riga;            ///< the lower of the two in the table: `riga` - 1 is deeper

    bool operator==(const Disordine&) const = default;
};

/// All of them: layers and anchors are counted from the top, stages go down. Equal depths are in
/// order.
[[nodiscard]] std::vector<Disordine> disordini(const DatiProgetto& dati);

/// Those that a change has made: a pair that was out of order before, with both depths unchanged,
/// is not of them, since a wall whose stages go up again is computed as it stands.
[[nodiscard]] std::vector<Disordine> nuoviDisordini(const DatiProgetto& prima,
                                                    const DatiProgetto& dopo);

}  // namespace korven::project
