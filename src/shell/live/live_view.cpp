#include "shell/live/live_view.hpp"

#include <QTimer>
#include <utility>

#include "project/project_data.hpp"

namespace korven::shell {

namespace {

// Keys that follow one another at once cost one computation.
constexpr int riposo = 150;  // [ms]

}  // namespace

VitaProgetto::VitaProgetto(QObject* padre)
    : QObject(padre),
      lenti_(
          [this](int numero, live::RisultatiLenti risultati) {
              const int prima = vivo_.versione();
              vivo_.rispondi(numero, std::move(risultati));
              dopo(prima);
          },
          this),
      riposo_(new QTimer(this)) {
    riposo_->setSingleShot(true);
    riposo_->setInterval(riposo);
    connect(riposo_, &QTimer::timeout, this, [this] { chiedi(); });
}

void VitaProgetto::guarda(int apertura) {
    const int prima = vivo_.versione();
    vivo_.guarda(project::fileCorrente.empty() ? nullptr : &project::Progetto, apertura);
    dopo(prima);
}

void VitaProgetto::digita(const masks::Maschera& maschera, const live::ValoriForma& valori) {
    const int prima = vivo_.versione();
    vivo_.digita(maschera, valori);
    dopo(prima);
}

void VitaProgetto::digita(const project::Sezione& sezione) {
    const int prima = vivo_.versione();
    vivo_.digita(sezione);
    dopo(prima);
}

void VitaProgetto::mostra(live::Vista vista) {
    const int prima = vivo_.versione();
    vivo_.mostra(vista);
    dopo(prima);
}

void VitaProgetto::dopo(int versione) {
    if (versione == vivo_.versione()) return;
    if (vivo_.domanda()) riposo_->start();
    emit cambiata();
}

void VitaProgetto::chiedi() {
    if (vivo_.domanda()) lenti_.chiedi(*vivo_.domanda());
}

}  // namespace korven::shell
