#include "shell/panels/stage_panel.hpp"

#include <QPainter>
#include <QVBoxLayout>

#include "scene/scene.hpp"
#include "shell/accessible_roles.hpp"
#include "shell/qt_text.hpp"
#include "shell/wrapped_text.hpp"

namespace korven::shell {

namespace {

constexpr QSize comoda(420, 320), minima(240, 180);
constexpr int larghezzaConCurva = 360;  // below, the curve would take the wall its room
constexpr int righeParole = 5;

scene::Rgb rgb(const QColor& c) {
    return {static_cast<std::uint8_t>(c.red()), static_cast<std::uint8_t>(c.green()),
            static_cast<std::uint8_t>(c.blue())};
}

scene::Tavolozza tavolozza(const QPalette& colori) {
    return scene::tavolozza(rgb(colori.color(QPalette::WindowText)),
                            rgb(colori.color(QPalette::Window)));
}

}  // namespace

SchizzoFase::SchizzoFase(const VitaProgetto& vita, QWidget* genitore)
    : QWidget(genitore), vita_(vita), pittore_(font(), tavolozza(palette())) {
    setObjectName(QStringLiteral("schizzoFase"));
    setAccessibleName(tradotto("Schizzo della fase"));
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
    pittore_.tavolozza(tavolozza(palette()));
    pittore.fillRect(rect(), device::qColore({scene::Ruolo::sfondo}, pittore_.tavolozza()));
    if (!fase_ || !vita_.vivo().aperto()) return;
    const live::Vista vista{.fase = *fase_, .curva = vita_.vivo().vista().curva};
    const device::MisuraTestiQt testi(font());
    pittore_.dipingi(
        pittore, scene::scena(vita_.vivo().parete(), vista,
                              {static_cast<double>(width()), static_cast<double>(height())}, testi,
                              {.curva = width() >= larghezzaConCurva, .parole = false}));
}

PannelloFasi::PannelloFasi(Base2_32& forma, VitaProgetto& vita)
    : PannelloLaterale(QStringLiteral("pannelloFasi"), tradotto("Schizzo della fase")),
      forma_(forma),
      vita_(vita),
      schizzo_(new SchizzoFase(vita, this)),
      parole_(new QLabel(this)) {
    parole_->setObjectName(QStringLiteral("paroleFase"));
    parole_->setWordWrap(true);
    parole_->setAlignment(Qt::AlignTop | Qt::AlignLeft);
    parole_->setMinimumHeight(righeParole * fontMetrics().lineSpacing());
    auto* tutto = new QWidget(this);
    auto* colonna = new QVBoxLayout(tutto);
    colonna->setContentsMargins(0, 0, 0, 0);
    colonna->addWidget(schizzo_, 1);
    colonna->addWidget(parole_);
    riempi(nullptr, tutto);
    connect(&forma, &FormaMaschera::digitata, this, &PannelloFasi::aggiorna);
    connect(&forma, &Base2_32::postoCambiato, this, &PannelloFasi::aggiorna);
    connect(&vita, &VitaProgetto::cambiata, this, &PannelloFasi::aggiorna);
    aggiorna();
}

void PannelloFasi::aggiorna() {
    const auto& griglia = forma_.modello();
    const auto qui = panels::faseDellaRiga(vita_.vivo(), griglia, griglia.corrente().riga);
    schizzo_->mostra(qui.fase);
    schizzo_->setAccessibleDescription(qt(qui.parole));
    parole_->setText(inRighe(qui.parole));
}

}  // namespace korven::shell
