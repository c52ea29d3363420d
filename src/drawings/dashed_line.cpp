#include "drawings/dashed_line.hpp"

#include <algorithm>
#include <cmath>
#include <numbers>

#include "plot/sheet.hpp"

namespace korven::drawings {

void tratteggia(double x1, double y1, double x2, double y2, double tratto) {
    const double lunga = std::hypot(x2 - x1, y2 - y1);
    if (!(lunga > 0)) return;
    const double passo = tratto * 5 / 3;
    const int quanti = static_cast<int>(std::ceil(lunga / passo));
    for (int i = 0; i < quanti; ++i) {
        const double da = i * passo / lunga;
        const double a = std::min(1.0, da + tratto / lunga);
        plot::linea(x1 + da * (x2 - x1), y1 + da * (y2 - y1), x1 + a * (x2 - x1),
                    y1 + a * (y2 - y1));
    }
}

// The line x - y = c meets the rectangle between its lower or left and its upper or right side.
void rigato(double x1, double y1, double x2, double y2, double passo) {
    const double lungo = passo * std::numbers::sqrt2;
    for (double c = x1 - y2 + lungo; c < x2 - y1; c += lungo) {
        const double da = std::max(x1, c + y1), a = std::min(x2, c + y2);
        plot::linea(da, da - c, a, a - c);
    }
}

}  // namespace korven::drawings
