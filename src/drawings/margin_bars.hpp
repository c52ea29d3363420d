#pragma once

#include <string>
#include <vector>

namespace korven::drawings {

/// The right end of a bar.
enum class FineBarra {
    chiusa,
    interrotta,  ///< a broken edge: the value is known and lies beyond the axis
    freccia,     ///< an arrow: the value has no end that is known
};

/// A horizontal bar of one stage.
struct Barra {
    int fase = 0;
    double valore = 0;  ///< drawn up to the end of the axis
    FineBarra fine = FineBarra::chiusa;
    std::string numero;  ///< beside its end
    int tratteggio = 0;  ///< 0 empty, 1 sparse, 2 dense
};

/// A diagram of bars, a stage each from the top down.
struct Barre {
    std::string titolo;          ///< translated, with the unit
    double massimo = 1;          ///< end of the axis
    double passo = 1;            ///< of its numbers
    std::vector<double> limiti;  ///< marked by dashed lines
    std::vector<Barra> barre;
};

/// Draws it in the rectangle [cm], the numbers of the axis below, those of the marks above.
/// A title that is wider is drawn smaller.
void disegnaBarre(const Barre& barre, double x1, double y1, double x2, double y2);

}  // namespace korven::drawings
