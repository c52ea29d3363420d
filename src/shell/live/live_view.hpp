#pragma once

#include <QObject>

#include "live/live_project.hpp"
#include "shell/live/background_results.hpp"

class QTimer;

namespace korven::shell {

/// The live project of the desktop: told by the main form and by the forms what happens, it tells
/// the picture and the windows beside the main form. What takes longer than a key is computed in
/// another thread once typing rests.
class VitaProgetto : public QObject {
    Q_OBJECT
 public:
    explicit VitaProgetto(QObject* padre = nullptr);

    [[nodiscard]] const live::ProgettoVivo& vivo() const { return vivo_; }

    /// Looks at `Progetto`: after each command, never during a run.
    /// @param apertura  as `ProgettoVivo::guarda`
    void guarda(int apertura);
    /// The same of the project that it knows.
    void guarda() { guarda(vivo_.apertura()); }
    /// What stands in an open form (`ProgettoVivo::digita`).
    void digita(const masks::Maschera& maschera, const live::ValoriForma& valori);
    void digita(const project::Sezione& sezione);
    /// Another stage or curve.
    void mostra(live::Vista vista);

 signals:
    /// Wall, view or slow results are others than before.
    void cambiata();

 private:
    void dopo(int versione);
    void chiedi();

    live::ProgettoVivo vivo_;
    RisultatiInDisparte lenti_;
    QTimer* riposo_;
};

}  // namespace korven::shell
