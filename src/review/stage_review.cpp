#include "base/translated_texts.hpp"
#include "review/list.hpp"

namespace korven::review {

namespace {

using project::DatiProgetto;

void numeroTiranti(const DatiProgetto& dati, int k, ElencoRilievi& elenco) {
    const double inOpera = dati.tirantiFase[k];
    const auto dici = [&](std::string_view testo) {
        return rigaCampo("fase", k, "Numero tot. tiranti", inOpera, testo);
    };
    if (inOpera >= project::massimoTiranti + 1)
        elenco.impedimento(dici("più tiranti di quanti ne tiene la tabella (20)"));
    else if (inOpera > dati.nTiranti)
        elenco.avviso(
            dici("più tiranti di quelli definiti: gli altri non agiscono, definirli nella tabella "
                 "dei tiranti o correggere il numero"));
    else if (inOpera < 0)
        elenco.avviso(dici("valore negativo"));
    if (!intero(inOpera)) elenco.avviso(dici("il numero di tiranti non è intero"));
    if (k > 1 && inOpera < dati.tirantiFase[k - 1])
        elenco.avviso(dici("i tiranti sono meno che nella fase precedente"));
}

}  // namespace

void controlloTiranti(const DatiProgetto& dati, ElencoRilievi& elenco) {
    for (int j = 1; j <= dati.nTiranti; ++j) {
        const double prof = dati.profTirante[j];
        const double rig = dati.rigTirante[j];
        const double pret = dati.pretTirante[j];
        const auto avvisaSe = [&](bool dubbio, std::string_view etichetta, double valore,
                                  std::string_view testo) {
            if (dubbio) elenco.avviso(rigaCampo("tirante", j, etichetta, valore, testo));
        };
        avvisaSe(dati.lunghezzaParatia > 0 && prof > dati.lunghezzaParatia, "Prof. [m]", prof,
                 "è più profondo della paratia");
        avvisaSe(prof < 0, "Prof. [m]", prof, "è sopra la testa della paratia");
        avvisaSe(j > 1 && prof < dati.profTirante[j - 1], "Prof. [m]", prof,
                 "è più in alto del precedente");
        avvisaSe(rig < 0, "Rigidezza [kN/m]", rig * 10, "valore negativo");
        avvisaSe(rig == 0 && pret == 0, "Rigidezza [kN/m]", rig * 10,
                 "senza rigidezza né pretensione il tirante non agisce");
        avvisaSe(pret < 0, "Pretens. [kN]", pret * 10, "valore negativo");
        if (dati.tipoTirante[j] != 0 && dati.tipoTirante[j] != 1)
            elenco.avviso(
                conValore(rigaNumerata("tirante", j,
                                       "tipo non previsto: il calcolo lo fa agire solo a "
                                       "trazione, la relazione lo dice a trazione e compressione"),
                          dati.tipoTirante[j]));
    }
}

void controlloFasi(const DatiProgetto& dati, ElencoRilievi& elenco) {
    for (int k = 1; k <= dati.nFasi; ++k) {
        const double scavo = dati.profFase[k];
        numeroTiranti(dati, k, elenco);
        const auto avvisaSe = [&](bool dubbio, std::string_view testo) {
            if (dubbio) elenco.avviso(rigaCampo("fase", k, "Prof. [m]", scavo, testo));
        };
        avvisaSe(scavo < 0, "lo scavo è sopra la testa della paratia");
        avvisaSe(k > 1 && scavo < dati.profFase[k - 1],
                 "lo scavo è meno profondo che nella fase precedente");
        avvisaSe(dati.lunghezzaParatia > 0 && scavo >= dati.lunghezzaParatia,
                 "lo scavo raggiunge o supera il piede della paratia");
        if (dati.sovraccFase[k] < 0)
            elenco.avviso(rigaCampo("fase", k, "Sovracc. [kN/m²]", dati.sovraccFase[k] * 10,
                                    "valore negativo"));
    }
}

}  // namespace korven::review
