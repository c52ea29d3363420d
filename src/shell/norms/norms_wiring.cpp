#include "shell/norms/norms_wiring.hpp"

#include <QPointer>
#include <memory>

#include "factors/catalogue.hpp"
#include "shell/norms/norms_window.hpp"
#include "shell/viewer/dialogs.hpp"

namespace korven::shell {

void collegaNorme(commands::FormeProgramma& forme, QWidget& principale, VitaProgetto& vita,
                  base::Dialogo& dialogo, const std::function<QPrinter&()>& stampante,
                  const std::function<void(const std::string&)>& annuncia) {
    const PorteNorme porte{dialogo, [] { return factors::leggiCombinazioni(); },
                           std::make_shared<PorteDesktop>(stampante, annuncia)};
    forme.norme = [finestra = std::make_shared<QPointer<FinestraNorme>>(), &principale, &vita,
                   porte, guida = forme.paginaGuida] {
        if (*finestra == nullptr) *finestra = new FinestraNorme(principale, vita, porte, guida);
        (*finestra)->mostraDavanti();
    };
}

}  // namespace korven::shell
