#include "shell/remarks/live_remarks.hpp"

#include <QTimer>
#include <utility>

#include "base/translated_texts.hpp"
#include "shell/live/live_view.hpp"
#include "shell/main/menu1.hpp"
#include "shell/qt_text.hpp"
#include "shell/remarks/remarks_window.hpp"

namespace korven::shell {

namespace {

// Keys that follow one another at once cost one look at all data.
constexpr int riposo = 50;  // [ms]

}  // namespace

OsservazioniVive::OsservazioniVive(Menu1& principale, VitaProgetto& vita,
                                   std::function<void(const std::string&)> guida)
    : QObject(&principale),
      principale_(principale),
      vita_(vita),
      guida_(std::move(guida)),
      riposo_(new QTimer(this)) {
    riposo_->setSingleShot(true);
    riposo_->setInterval(riposo);
    connect(riposo_, &QTimer::timeout, this, [this] { guarda(); });
    connect(&principale, &Menu1::aggiornata, this, [this] {
        vita_.guarda();
        aperte_.guardaFile();
        guarda();
    });
    connect(&vita, &VitaProgetto::cambiata, riposo_, [this] { riposo_->start(); });
}

void OsservazioniVive::guarda() {
    const live::ProgettoVivo& vivo = vita_.vivo();
    if (vivo.aperto()) {
        aperte_.guarda(vivo.dati());
        aperte_.risultati(vivo.lenti() == nullptr ? nullptr : &vivo.lenti()->osservazioni);
    }
    mostra();
}

void OsservazioniVive::mostra() {
    const auto& tutte = aperte_.tutte();
    const std::string conteggio = aperte_.conteggio();
    principale_.osservazioni(conteggio,
                             !tutte.empty() && tutte.front().peso != review::Peso::daVedere);
    if (finestra_ != nullptr)
        finestra_->mostra(
            tutte, conteggio.empty() ? base::traduttore("Nessun progetto aperto") : conteggio);
}

void OsservazioniVive::apriFinestra() {
    if (finestra_ == nullptr) {
        finestra_ = new FinestraOsservazioni(
            principale_,
            {.apribile = [](const auto& o) { return commands::postoDi(o).has_value(); },
             .apri = [this](const auto& o) { apriCampo(o); },
             .guida = guida_});
        mostra();
    }
    finestra_->mostraDavanti();
}

void OsservazioniVive::apriCampo(const review::Osservazione& osservazione) {
    const auto posto = commands::postoDi(osservazione);
    if (!posto) return;
    principale_.editaDa(*posto);
    // Back to the list: the next remark waits there.
    if (finestra_ != nullptr && finestra_->isVisible()) finestra_->activateWindow();
}

void collegaOsservazioni(commands::FormeProgramma& forme, Menu1& principale, VitaProgetto& vita) {
    auto* vive = new OsservazioniVive(principale, vita, forme.paginaGuida);
    forme.controlli = [vive] { vive->apriFinestra(); };
}

}  // namespace korven::shell
