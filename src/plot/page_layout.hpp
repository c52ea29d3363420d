#pragma once

#include "plot/geometry.hpp"

// How a drawing lies on the sheets of a printer. Paper coordinates are centimetres from the upper
// left corner of a sheet, y downward.

namespace korven::plot {

/// Numbers of sheets side by side and below each other.
struct Fogli {
    int nx = 1;
    int ny = 1;
};

/// Least number of sheets that cover `misura` when each overlaps its neighbour:
///
///     n foglio - (n - 1) sovrapposizione >= misura,  n >= 1
///
/// @pre sovrapposizione < foglio, asserted: else no number of sheets is enough
[[nodiscard]] int fogliPerCoprire(double misura, double foglio, double sovrapposizione);

/// Sheets for a drawing at full size.
[[nodiscard]] Fogli fogliPerDisegno(const Riquadro& disegno, const Foglio& foglio,
                                    double sovrapposizione);

/// How a point of the drawing comes to a point of a sheet:
///
///     x' = scala (x - xRiferimento) - scostamentoX
///     y' = scala (yRiferimento - y) - scostamentoY
struct Disposizione {
    double scala = 1;
    double xRiferimento = 0;
    double yRiferimento = 0;
    double scostamentoX = 0;
    double scostamentoY = 0;

    [[nodiscard]] Punto sullaCarta(Punto p) const {
        return {scala * (p.x - xRiferimento) - scostamentoX,
                scala * (yRiferimento - p.y) - scostamentoY};
    }
};

/// Full size on sheet (i, j), both from 1: i to the right, j down. Neighbours overlap, to be glued
/// together. x is counted from 0, the left edge of the sheet that the drawing was made on.
[[nodiscard]] Disposizione disposizioneIntera(const Riquadro& disegno, const Foglio& foglio,
                                              double sovrapposizione, int i, int j);

/// Fitted to one sheet and centred on it, with 0.1 cm of room kept around the drawing: as large as
/// the sheet allows, larger than drawn if it does.
[[nodiscard]] Disposizione disposizioneAdattata(const Riquadro& disegno, const Foglio& foglio);

}  // namespace korven::plot
