#include "plot/plotted_number.hpp"

#include <algorithm>
#include <cmath>

#include "base/number_text.hpp"

namespace korven::plot {

std::string testoPlotNumero(double valore, int decimali) {
    constexpr double unita = 100000;  // five decimals
    constexpr std::size_t cifre = 5;
    const double assoluto = std::abs(valore);
    double intero = std::floor(assoluto);
    double frazione = std::floor(unita * (assoluto - intero) + 0.5);
    if (frazione == unita) {  // 0.999996 and more has no five digits of its own
        intero += 1;
        frazione = 0;
    }
    std::string testo = valore < 0 ? "-" : "";
    testo += base::formattaNumero(intero) + '.';
    const std::size_t finoAlPunto = testo.size();
    const std::string ultime = base::formattaNumero(frazione);
    testo += std::string(cifre - ultime.size(), '0') + ultime;
    testo.resize(std::min(testo.size(), decimali < 0
                                            ? finoAlPunto - 1
                                            : finoAlPunto + static_cast<std::size_t>(decimali)));
    return testo;
}

}  // namespace korven::plot
