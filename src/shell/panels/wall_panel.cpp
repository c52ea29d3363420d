#include "shell/panels/wall_panel.hpp"

#include <QStyle>
#include <string>

#include "base/code_page.hpp"
#include "panels/stage_words.hpp"
#include "scene/scene.hpp"
#include "shell/form_sizes.hpp"
#include "shell/panels/stage_sketch.hpp"
#include "shell/qt_text.hpp"

namespace korven::shell {

namespace {

constexpr int righeParole = 4;

std::string parole(const live::ProgettoVivo& vivo) {
    return base::conMaiuscola(
        panels::comEra(vivo, scene::descrizione(vivo.parete(), vivo.vista())));
}

}  // namespace

PannelloParatia::PannelloParatia(const QWidget& forma, VitaProgetto& vita)
    : PannelloLaterale(QStringLiteral("pannelloParatia"), tradotto("Figura del progetto")),
      vita_(vita),
      schizzo_(new SchizzoConParole(vita, tradotto("Figura del progetto"), "paroleParatia",
                                    righeParole, this)) {
    riempi(nullptr, schizzo_);
    const int perICampi =
        forma.minimumSizeHint().width() + style()->pixelMetric(QStyle::PM_ScrollBarExtent);
    if (perICampi + minimumSizeHint().width() > misuraMassima(forma).width()) piega();
    connect(&vita, &VitaProgetto::cambiata, this, &PannelloParatia::aggiorna);
    aggiorna();
}

void PannelloParatia::aggiorna() {
    const live::ProgettoVivo& vivo = vita_.vivo();
    if (!vivo.aperto()) return;
    schizzo_->mostra(vivo.vista().fase, parole(vivo));
}

}  // namespace korven::shell
