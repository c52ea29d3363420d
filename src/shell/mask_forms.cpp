#include "shell/mask_forms.hpp"

#include "project/mask_editing.hpp"
#include "shell/base1.hpp"
#include "shell/base2_32.hpp"

namespace korven::shell {

void mostraForm(project::Maschere& maschere, base::Dialogo& dialogo, const GuidaForme& guida,
                QWidget* padre) {
    const project::Maschera& maschera = maschere.corrente();
    if (maschera.genere == project::GenereMaschera::campi) {
        Base1 forma(maschera, maschere.valoriCombo(), maschere.valoriTesto(), dialogo, guida,
                    padre);
        if (forma.exec() == QDialog::Accepted)
            maschere.conferma(forma.modello().valoriCombo(), forma.modello().valoriTesto());
        return;
    }
    const int capienza = project::capienza(static_cast<project::NumeroMaschera>(maschere.numero()));
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
