#include "shell/panels/stage_sketch.hpp"

#include <QPainter>
#include <QVBoxLayout>

#include "device/scene_palette.hpp"
#include "scene/scene.hpp"
#include "shell/accessible_roles.hpp"
#include "shell/forms/wrapped_label.hpp"
#include "shell/qt_text.hpp"
#include "shell/wrapped_text.hpp"

namespace korven::shell {

namespace {

constexpr QSize comoda(420, 320), minima(240, 180);
constexpr int larghezzaConCurva = 360;  // below, the curve would take the wall its room

}  // namespace

SchizzoFase::SchizzoFase(const VitaProgetto& vita, QWidget* genitore)
    : QWidget(genitore), vita_(vita), pittore_(font(), device::tavolozza(palette())) {
    setObjectName(QStringLiteral("schizzoFase"));
    presentaFigura(*this);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
}

void SchizzoFase::mostra(std::optional<int> fase) {
    fase_ = fase;
    update();
}

QSize SchizzoFase::sizeHint() const { return comoda; }

QSize SchizzoFase::minimumSizeHint() const { return minima; }

void SchizzoFase::paintEvent(QPaintEvent* /*evento*/) {
    QPainter pittore(this);
    pittore_.tavolozza(device::tavolozza(palette()));
    pittore.fillRect(rect(), device::qColore({scene::Ruolo::sfondo}, pittore_.tavolozza()));
    if (!fase_ || !vita_.vivo().aperto()) return;
    const live::Vista vista{.fase = *fase_, .curva = vita_.vivo().vista().curva};
    const device::MisuraTestiQt testi(font());
    pittore_.dipingi(
        pittore, scene::scena(vita_.vivo().parete(), vista,
                              {static_cast<double>(width()), static_cast<double>(height())}, testi,
                              {.curva = width() >= larghezzaConCurva, .parole = false}));
}

SchizzoConParole::SchizzoConParole(const VitaProgetto& vita, const QString& nome,
                                   const char* parole, int righe, QWidget* genitore)
    : QWidget(genitore),
      schizzo_(new SchizzoFase(vita, this)),
      parole_(etichettaInRighe(parole, this)) {
    schizzo_->setAccessibleName(nome);
    parole_->setAlignment(Qt::AlignTop | Qt::AlignLeft);
    parole_->setMinimumHeight(righe * fontMetrics().lineSpacing());
    auto* colonna = new QVBoxLayout(this);
    colonna->setContentsMargins(0, 0, 0, 0);
    colonna->addWidget(schizzo_, 1);
    colonna->addWidget(parole_);
}

void SchizzoConParole::mostra(std::optional<int> fase, const std::string& parole) {
    schizzo_->mostra(fase);
    schizzo_->setAccessibleDescription(qt(parole));
    parole_->setText(inRighe(parole));
}

}  // namespace korven::shell
