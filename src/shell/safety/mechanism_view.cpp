#include "shell/safety/mechanism_view.hpp"

#include <QPainter>
#include <utility>

#include "device/scene_painter.hpp"
#include "device/scene_palette.hpp"
#include "scene/scene.hpp"
#include "shell/accessible_roles.hpp"
#include "shell/qt_text.hpp"
#include "shell/wrapped_text.hpp"

namespace korven::shell {

VistaMeccanismo::VistaMeccanismo(QWidget* padre) : QWidget(padre) {
    setObjectName(QStringLiteral("meccanismo"));
    setAccessibleName(tradotto("Figura del meccanismo"));
    presentaFigura(*this);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
}

void VistaMeccanismo::mostra(std::optional<live::PareteViva> parete, const QString& testo,
                             const std::string& titolo) {
    parete_ = std::move(parete);
    testo_ = testo;
    titolo_ = titolo;
    setAccessibleDescription(testo);
    update();
}

void VistaMeccanismo::paintEvent(QPaintEvent*) {
    const scene::Tavolozza tavolozza = device::tavolozza(palette());
    QPainter p(this);
    p.fillRect(rect(), device::qColore({scene::Ruolo::sfondo}, tavolozza));
    if (!parete_) {
        p.setPen(device::qColore({scene::Ruolo::testoTenue}, tavolozza));
        p.drawText(rect().adjusted(16, 16, -16, -16), Qt::AlignCenter | Qt::TextWordWrap,
                   inRighe(testo_));
        return;
    }
    const live::Vista vista{.fase = static_cast<int>(parete_->fasi.size())};
    const scene::Misura misura{static_cast<double>(width()), static_cast<double>(height())};
    const device::MisuraTestiQt testi(font());
    device::PittoreScena(font(), tavolozza)
        .dipingi(p, scena(*parete_, vista, misura, testi,
                          {.curva = false, .parole = false, .didascalia = titolo_}));
}

}  // namespace korven::shell
