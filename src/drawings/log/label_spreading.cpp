#include "drawings/log/label_spreading.hpp"

namespace korven::drawings {

std::vector<double> separaEtichette(std::vector<double> posizioni, double distanza,
                                    double superiore, double inferiore) {
    auto& p = posizioni;
    if (p.empty()) return posizioni;
    if (superiore - p.front() < distanza / 2) p.front() = superiore - distanza / 2;
    for (std::size_t i = 1; i < p.size(); ++i)
        if (p[i - 1] - p[i] < distanza) p[i] = p[i - 1] - distanza;
    if (p.back() < inferiore + distanza / 2) p.back() = inferiore + distanza / 2;
    for (std::size_t i = p.size() - 1; i-- > 0;)
        if (p[i] - p[i + 1] < distanza) p[i] = p[i + 1] + distanza;
    return posizioni;
}

}  // namespace korven::drawings
