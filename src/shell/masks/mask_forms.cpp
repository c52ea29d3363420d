#include "shell/masks/mask_forms.hpp"

#include "masks/mask_editing.hpp"
#include "review/heading_review.hpp"
#include "shell/masks/base1.hpp"
#include "shell/masks/base2_32.hpp"

namespace korven::shell {

void mostraForm(project::Maschere& maschere, base::Dialogo& dialogo, const GuidaForme& guida,
                QWidget* padre) {
    const project::Maschera& maschera = maschere.corrente();
    const auto numero = static_cast<project::NumeroMaschera>(maschere.numero());
    if (maschera.genere == project::GenereMaschera::campi) {
        Base1 forma(maschera, maschere.valoriCombo(), maschere.valoriTesto(), dialogo, guida,
                    padre);
        if (numero == project::NumeroMaschera::titoli) forma.annota(commands::notaTitolo);
        if (forma.exec() == QDialog::Accepted)
            maschere.conferma(forma.modello().valoriCombo(), forma.modello().valoriTesto());
        return;
    }
    const int capienza = project::capienza(numero);
    Base2_32 forma(maschera, maschere.valoriTesto(), dialogo, guida, padre, capienza);
    if (forma.exec() == QDialog::Accepted) maschere.conferma({}, forma.modello().valoriTesto());
}

void collegaMaschere(commands::FormeProgramma& forme, base::Dialogo& dialogo, QWidget* padre) {
    GuidaForme guida;
    if (forme.aiuto)
        guida = [aiuto = forme.aiuto](int contesto) {
            aiuto(contesto);
            return true;
        };
    forme.maschera = [&dialogo, guida, padre](project::Maschere& maschere) {
        mostraForm(maschere, dialogo, guida, padre);
    };
}

}  // namespace korven::shell
