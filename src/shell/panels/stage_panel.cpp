#include "shell/panels/stage_panel.hpp"

#include "panels/stage_words.hpp"
#include "shell/qt_text.hpp"

namespace korven::shell {

namespace {

constexpr int righeParole = 5;

}  // namespace

PannelloFasi::PannelloFasi(Base2_32& forma, VitaProgetto& vita)
    : PannelloLaterale(QStringLiteral("pannelloFasi"), tradotto("Schizzo della fase")),
      forma_(forma),
      vita_(vita),
      schizzo_(new SchizzoConParole(vita, tradotto("Schizzo della fase"), "paroleFase", righeParole,
                                    this)) {
    riempi(nullptr, schizzo_);
    connect(&forma, &FormaMaschera::digitata, this, &PannelloFasi::aggiorna);
    connect(&forma, &Base2_32::postoCambiato, this, &PannelloFasi::aggiorna);
    connect(&vita, &VitaProgetto::cambiata, this, &PannelloFasi::aggiorna);
    aggiorna();
}

void PannelloFasi::aggiorna() {
    const auto& griglia = forma_.modello();
    const auto qui = panels::faseDellaRiga(vita_.vivo(), griglia, griglia.corrente().riga);
    schizzo_->mostra(qui.fase, qui.parole);
}

}  // namespace korven::shell
