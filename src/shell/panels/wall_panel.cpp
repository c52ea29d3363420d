#include "shell/panels/wall_panel.hpp"

#include <QStyle>
#include <QVBoxLayout>
#include <string>

#include "base/code_page.hpp"
#include "panels/stage_words.hpp"
#include "scene/scene.hpp"
#include "shell/form_sizes.hpp"
#include "shell/panels/stage_panel.hpp"
#include "shell/qt_text.hpp"
#include "shell/wrapped_text.hpp"

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
      schizzo_(new SchizzoFase(vita, this)),
      parole_(new QLabel(this)) {
    schizzo_->setAccessibleName(tradotto("Figura del progetto"));
    parole_->setObjectName(QStringLiteral("paroleParatia"));
    parole_->setWordWrap(true);
    parole_->setAlignment(Qt::AlignTop | Qt::AlignLeft);
    parole_->setMinimumHeight(righeParole * fontMetrics().lineSpacing());
    auto* tutto = new QWidget(this);
    auto* colonna = new QVBoxLayout(tutto);
    colonna->setContentsMargins(0, 0, 0, 0);
    colonna->addWidget(schizzo_, 1);
    colonna->addWidget(parole_);
    riempi(nullptr, tutto);
    const int perICampi =
        forma.minimumSizeHint().width() + style()->pixelMetric(QStyle::PM_ScrollBarExtent);
    if (perICampi + minimumSizeHint().width() > misuraMassima(forma).width()) piega();
    connect(&vita, &VitaProgetto::cambiata, this, &PannelloParatia::aggiorna);
    aggiorna();
}

void PannelloParatia::aggiorna() {
    const live::ProgettoVivo& vivo = vita_.vivo();
    if (!vivo.aperto()) return;
    schizzo_->mostra(vivo.vista().fase);
    const std::string dette = parole(vivo);
    schizzo_->setAccessibleDescription(qt(dette));
    parole_->setText(inRighe(dette));
}

}  // namespace korven::shell
