#include "shell/place_beside.hpp"

#include <QScreen>
#include <QWidget>
#include <algorithm>

#include "shell/form_sizes.hpp"

namespace korven::shell {

namespace {

constexpr int gradino = 28;  // the height of a window's head [px]

int coperti(const QRect& una, const QRect& altra) {
    const QRect comune = una.intersected(altra);
    return comune.width() * comune.height();
}

// Of the corners that a window can have on the screen the first that leaves the other in sight, or
// that of the largest part in sight.
QPoint menoSopra(const QRect& altra, QSize misura, const QRect& schermo) {
    // One past the last pixel, which QRect::right() and bottom() are not.
    const int ultimaX = schermo.x() + std::max(schermo.width() - misura.width(), 0);
    const int ultimaY = schermo.y() + std::max(schermo.height() - misura.height(), 0);
    const auto dentro = [&](int x, int y) {
        return QPoint(std::clamp(x, schermo.x(), ultimaX), std::clamp(y, schermo.y(), ultimaY));
    };
    const QPoint posti[] = {dentro(altra.x() + altra.width(), altra.y()),
                            dentro(altra.x() - misura.width(), altra.y()),
                            dentro(altra.x(), altra.y() + altra.height()),
                            dentro(altra.x(), altra.y() - misura.height()),
                            {ultimaX, ultimaY},
                            {ultimaX, schermo.y()},
                            {schermo.x(), ultimaY},
                            schermo.topLeft()};
    return *std::min_element(std::begin(posti), std::end(posti), [&](QPoint a, QPoint b) {
        return coperti({a, misura}, altra) < coperti({b, misura}, altra);
    });
}

}  // namespace

QPoint postoAccanto(const QRect& altra, QSize misura, const QRect& schermo,
                    const QList<QPoint>& presi) {
    const int ultimaY = schermo.y() + std::max(schermo.height() - misura.height(), 0);
    QPoint posto = menoSopra(altra, misura, schermo);
    while (presi.contains(posto) && posto.x() - gradino >= schermo.x())
        posto = {posto.x() - gradino, std::min(posto.y() + gradino, ultimaY)};
    return posto;
}

QPoint postoPrincipale(const QRect& schermo) { return schermo.topLeft(); }

bool collocaAccanto(QWidget& finestra) {
    const QWidget* altra = finestra.parentWidget();
    if (altra == nullptr || !altra->window()->isVisible()) return false;
    finestra.move(postoAccanto(altra->window()->frameGeometry(), misuraConCornice(finestra),
                               altra->screen()->availableGeometry()));
    return true;
}

}  // namespace korven::shell
