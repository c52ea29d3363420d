#pragma once

#include <QColor>
#include <QLineF>
#include <vector>

#include "analysis/progress.hpp"

namespace korven::shell {

/// The state of an iteration as it was, kept while the run goes on.
struct QuadroAvanzamento {
    double yMax = 0;
    double mMax = 0;
    double passoNodi = 0;
    double profFase = 0;
    std::vector<double> yNodo, momentoNodo;  ///< element 0 is node 1
    std::vector<int> nodiTiranti;            ///< nodes of the anchors in place
};

[[nodiscard]] QuadroAvanzamento quadro(const analysis::StatoIterazione& stato);

struct TrattoQuadro {
    QColor colore;
    QLineF linea;
};

inline const QColor coloreDeformata{0, 0, 255};  ///< bright blue, 9 of the 16 colours
inline const QColor coloreMomenti{0, 255, 0};    ///< bright green, 10 of the 16 colours

/// The picture of the progress window as lines on a square from (0, 0), top left, to (1, 1): the
/// node i lies at height i / (nNodi + 1). The width is 2.2 times the largest displacement for the
/// wall, its anchors (uphill, to the left), the excavation level (to the right) and the displaced
/// shape, and 2.2 times the largest moment for the moments. A shape whose largest value is 0 stays
/// on the axis.
[[nodiscard]] std::vector<TrattoQuadro> tratti(const QuadroAvanzamento& quadro);

}  // namespace korven::shell
