#include "base/translated_texts.hpp"
#include "project/codes.hpp"
#include "review/remark_list.hpp"

namespace korven::review {

namespace {

using project::DatiProgetto;
using project::TipoTirante;

void numeroTiranti(const DatiProgetto& dati, int k, ElencoRilievi& elenco) {
    const double inOpera = dati.tirantiFase[k];
    const auto dici = [&](std::string_view testo) {
        return rigaCampo(dati, &DatiProgetto::tirantiFase, k, testo);
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
        const auto avvisaSe = [&](bool dubbio, const project::Membro& colonna,
                                  std::string_view testo) {
            if (dubbio) elenco.avviso(rigaCampo(dati, colonna, j, testo));
        };
        avvisaSe(dati.lunghezzaParatia > 0 && prof > dati.lunghezzaParatia,
                 &DatiProgetto::profTirante, "è più profondo della paratia");
        avvisaSe(prof < 0, &DatiProgetto::profTirante, "è sopra la testa della paratia");
        avvisaSe(j > 1 && prof < dati.profTirante[j - 1], &DatiProgetto::profTirante,
                 "è più in alto del precedente");
        avvisaSe(rig < 0, &DatiProgetto::rigTirante, "valore negativo");
        avvisaSe(rig == 0 && pret == 0, &DatiProgetto::rigTirante,
                 "senza rigidezza né pretensione il tirante non agisce");
        avvisaSe(pret < 0, &DatiProgetto::pretTirante, "valore negativo");
        if (dati.tipoTirante[j] != TipoTirante::soloTrazione &&
            dati.tipoTirante[j] != TipoTirante::trazioneCompressione)
            elenco.avviso(conValoreTraParentesi(
                rigaNumerata("tirante", j,
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
            if (dubbio) elenco.avviso(rigaCampo(dati, &DatiProgetto::profFase, k, testo));
        };
        avvisaSe(scavo < 0, "lo scavo è sopra la testa della paratia");
        avvisaSe(k > 1 && scavo < dati.profFase[k - 1],
                 "lo scavo è meno profondo che nella fase precedente");
        avvisaSe(dati.lunghezzaParatia > 0 && scavo >= dati.lunghezzaParatia,
                 "lo scavo raggiunge o supera il piede della paratia");
        if (dati.sovraccFase[k] < 0)
            elenco.avviso(rigaCampo(dati, &DatiProgetto::sovraccFase, k, "valore negativo"));
    }
}

}  // namespace korven::review
