#include "shell/comparison/comparison_wiring.hpp"

#include <QPointer>
#include <memory>

#include "shell/comparison/comparison_window.hpp"
#include "shell/file_dialogs_qt.hpp"
#include "shell/main/menu1.hpp"
#include "shell/viewer/dialogs.hpp"

namespace korven::shell {

void collegaConfronto(commands::FormeProgramma& forme, Menu1& principale, VitaProgetto& vita,
                      base::Dialogo& dialogo, const std::function<QPrinter&()>& stampante,
                      const std::function<void(const std::string&)>& annuncia) {
    const auto finestra = std::make_shared<QPointer<FinestraConfronto>>();
    const PorteConfronto porte{dialogo, [finestra] { return chiediProgetto(*finestra); },
                               std::make_shared<PorteDesktop>(stampante, annuncia)};
    forme.confronto = [finestra, &principale, &vita, porte, guida = forme.paginaGuida] {
        if (*finestra == nullptr) {
            *finestra = new FinestraConfronto(principale, vita, porte, guida);
            // A command may have saved it.
            QObject::connect(&principale, &Menu1::aggiornata, *finestra,
                             [questa = finestra->data()] { questa->guarda(); });
        }
        (*finestra)->mostraDavanti();
    };
}

}  // namespace korven::shell
