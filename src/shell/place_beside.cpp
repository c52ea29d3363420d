#include "shell/place_beside.hpp"

#include <algorithm>

namespace korven::shell {

namespace {

constexpr int gradino = 28;  // the height of a window's head [px]

}  // namespace

QPoint postoAccanto(const QRect& altra, QSize misura, const QRect& schermo,
                    const QList<QPoint>& presi) {
    // One past the last pixel, which QRect::right() and bottom() are not.
    const int ultimaX = schermo.x() + std::max(schermo.width() - misura.width(), 0);
    const int ultimaY = schermo.y() + std::max(schermo.height() - misura.height(), 0);
    const int aDestra = altra.x() + altra.width();
    const int aSinistra = altra.x() - misura.width();
    QPoint posto(ultimaX, std::clamp(altra.y(), schermo.y(), ultimaY));
    if (aDestra >= schermo.x() && aDestra <= ultimaX)
        posto.setX(aDestra);
    else if (aSinistra >= schermo.x() && aSinistra <= ultimaX)
        posto.setX(aSinistra);
    while (presi.contains(posto) && posto.x() - gradino >= schermo.x())
        posto = {posto.x() - gradino, std::min(posto.y() + gradino, ultimaY)};
    return posto;
}

}  // namespace korven::shell
