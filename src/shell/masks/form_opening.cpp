#include "shell/masks/form_opening.hpp"

#include "masks/editing.hpp"
#include "review/heading_review.hpp"
#include "shell/live/live_view.hpp"
#include "shell/masks/base1.hpp"
#include "shell/masks/base2_32.hpp"

namespace korven::shell {

namespace {

void segui(const FormaMaschera& forma, const masks::Maschera& maschera,
           masks::NumeroMaschera numero, VitaProgetto* vita) {
    if (vita == nullptr) return;
    QObject::connect(&forma, &FormaMaschera::digitata, vita, [&forma, &maschera, numero, vita] {
        live::ValoriForma valori = forma.valori();
        valori.maschera = numero;
        vita->digita(maschera, valori);
    });
}

}  // namespace

void mostraForm(masks::Maschere& maschere, base::Dialogo& dialogo, const GuidaForme& guida,
                QWidget* padre, VitaProgetto* vita, const PannelliForme& pannelli) {
    const masks::Maschera& maschera = maschere.corrente();
    const auto numero = static_cast<masks::NumeroMaschera>(maschere.numero());
    if (maschera.genere == masks::GenereMaschera::campi) {
        Base1 forma(maschera, maschere.valoriCombo(), maschere.valoriTesto(), dialogo, guida,
                    padre);
        if (const auto inizio = maschere.inizio())
            forma.comincia(static_cast<std::size_t>(inizio->campo - 1));
        if (numero == masks::NumeroMaschera::titoli) forma.annota(review::notaTitolo);
        segui(forma, maschera, numero, vita);
        if (QWidget* accanto = pannelli.campi ? pannelli.campi(forma, numero) : nullptr)
            forma.affianca(accanto);
        if (forma.exec() == QDialog::Accepted)
            maschere.conferma(forma.modello().valoriCombo(), forma.modello().valoriTesto());
        return;
    }
    const int capienza = masks::capienza(numero);
    Base2_32 forma(maschera, maschere.valoriTesto(), dialogo, guida, padre, capienza);
    if (const auto inizio = maschere.inizio()) forma.comincia({inizio->riga, inizio->campo});
    segui(forma, maschera, numero, vita);  // first: a panel shows what `vita` makes of the rows
    if (QWidget* accanto = pannelli.tabella ? pannelli.tabella(forma, numero) : nullptr)
        forma.affianca(accanto);
    if (forma.exec() == QDialog::Accepted) maschere.conferma({}, forma.modello().valoriTesto());
}

void collegaMaschere(commands::FormeProgramma& forme, base::Dialogo& dialogo, QWidget* padre,
                     VitaProgetto* vita, const PannelliForme& pannelli) {
    GuidaForme guida;
    if (forme.guida)
        guida = [apri = forme.guida](int contesto) {
            apri(contesto);
            return true;
        };
    forme.maschera = [&dialogo, guida, padre, vita, pannelli](masks::Maschere& maschere) {
        mostraForm(maschere, dialogo, guida, padre, vita, pannelli);
    };
}

}  // namespace korven::shell
