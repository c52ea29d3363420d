#include "shell/picture/state_picture.hpp"

#include <QPainter>

#include "scene/scene.hpp"
#include "shell/accessible_roles.hpp"
#include "shell/qt_text.hpp"

namespace korven::shell {

namespace {

constexpr int larghezzaConCurva = 360;  // [px] below, the curve would take the wall its room

scene::Tavolozza tavolozza(const QPalette& colori) {
    const bool scura =
        colori.color(QPalette::Window).lightness() < colori.color(QPalette::WindowText).lightness();
    return scura ? scene::Tavolozza::scura : scene::Tavolozza::chiara;
}

}  // namespace

QuadroStato::QuadroStato(const project::DatiProgetto& dati, QWidget* padre)
    : QWidget(padre), parete_(live::calcola(dati)), pittore_(font(), tavolozza(palette())) {
    setObjectName(QStringLiteral("quadro"));
    setAccessibleName(tradotto("Figura del progetto"));
    setAccessibleDescription(qt(scene::descrizione(parete_, {})));
    presentaFigura(*this);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
}

void QuadroStato::paintEvent(QPaintEvent* /*evento*/) {
    QPainter pittore(this);
    pittore_.tavolozza(tavolozza(palette()));
    const device::MisuraTestiQt testi(font());
    pittore_.dipingi(
        pittore,
        scene::scena(parete_, {}, {static_cast<double>(width()), static_cast<double>(height())},
                     testi, {.curva = width() >= larghezzaConCurva}));
}

}  // namespace korven::shell
