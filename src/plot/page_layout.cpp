#include "plot/page_layout.hpp"

#include <algorithm>
#include <cassert>

namespace korven::plot {

int fogliPerCoprire(double misura, double foglio, double sovrapposizione) {
    assert(sovrapposizione < foglio);
    int n = 1;
    while (n * foglio - (n - 1) * sovrapposizione < misura) ++n;
    return n;
}

Fogli fogliPerDisegno(const Riquadro& disegno, const Foglio& foglio, double sovrapposizione) {
    return {fogliPerCoprire(disegno.larghezza(), foglio.larghezza, sovrapposizione),
            fogliPerCoprire(disegno.altezza(), foglio.altezza, sovrapposizione)};
}

Disposizione disposizioneIntera(const Riquadro& disegno, const Foglio& foglio,
                                double sovrapposizione, int i, int j) {
    return {1, 0, disegno.ymax, (i - 1) * foglio.larghezza - (i - 1) * sovrapposizione,
            (j - 1) * foglio.altezza - (j - 1) * sovrapposizione};
}

Disposizione disposizioneAdattata(const Riquadro& disegno, const Foglio& foglio) {
    constexpr double respiro = 0.1;
    const Riquadro r{disegno.xmin - respiro, disegno.ymin - respiro, disegno.xmax + respiro,
                     disegno.ymax + respiro};
    const double scala = std::min(foglio.larghezza / r.larghezza(), foglio.altezza / r.altezza());
    return {scala, r.xmin, r.ymax, (scala * r.larghezza() - foglio.larghezza) / 2,
            (scala * r.altezza() - foglio.altezza) / 2};
}

}  // namespace korven::plot
