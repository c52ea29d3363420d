#include "base/translated_texts.hpp"
#include "project/codes.hpp"
#include "project/deepest_excavation.hpp"
#include "review/remark_list.hpp"

namespace korven::review {

namespace {

using project::DatiProgetto;
using project::TipoTirante;

void numeroTiranti(const DatiProgetto& dati, int k, ElencoOsservazioni& elenco) {
    const double inOpera = dati.tirantiFase[k];
    const auto avvisa = [&](Voce voce) {
        elenco.aggiungi(voce, rigaConValore(dati, &DatiProgetto::tirantiFase, k));
    };
    if (inOpera >= project::massimoTiranti + 1)
        avvisa("troppi-tiranti");
    else if (inOpera > dati.nTiranti)
        avvisa("tiranti-non-definiti");
    else if (inOpera < 0)
        avvisa("tiranti-negativi");
    if (!intero(inOpera)) avvisa("tiranti-non-interi");
    if (k > 1 && inOpera < dati.tirantiFase[k - 1]) avvisa("tiranti-in-meno");
}

}  // namespace

void controlloTiranti(const DatiProgetto& dati, ElencoOsservazioni& elenco) {
    for (int j = 1; j <= dati.nTiranti; ++j) {
        const double prof = dati.profTirante[j];
        const double rig = dati.rigTirante[j];
        const double pret = dati.pretTirante[j];
        const auto avvisaSe = [&](bool dubbio, const project::Membro& colonna, Voce voce) {
            if (dubbio) elenco.aggiungi(voce, rigaConValore(dati, colonna, j));
        };
        avvisaSe(dati.lunghezzaParatia > 0 && prof > dati.lunghezzaParatia,
                 &DatiProgetto::profTirante, "tirante-sotto-il-piede");
        avvisaSe(prof < 0, &DatiProgetto::profTirante, "tirante-sopra-la-testa");
        avvisaSe(j > 1 && prof < dati.profTirante[j - 1], &DatiProgetto::profTirante,
                 "tirante-in-disordine");
        avvisaSe(rig < 0, &DatiProgetto::rigTirante, "rigidezza-negativa");
        avvisaSe(rig == 0 && pret == 0, &DatiProgetto::rigTirante, "tirante-inerte");
        const bool maiTeso =
            rig == 0 && pret < 0 && !(dati.tipoTirante[j] == TipoTirante::trazioneCompressione);
        avvisaSe(maiTeso, &DatiProgetto::pretTirante, "tirante-mai-teso");
        avvisaSe(pret < 0 && !maiTeso, &DatiProgetto::pretTirante, "valore-negativo");
        if (dati.tipoTirante[j] != TipoTirante::soloTrazione &&
            dati.tipoTirante[j] != TipoTirante::trazioneCompressione)
            elenco.conValore("tipo-tirante", riga(&DatiProgetto::tipoTirante, j),
                             dati.tipoTirante[j]);
    }
}

void controlloFasi(const DatiProgetto& dati, ElencoOsservazioni& elenco) {
    for (int k = 1; k <= dati.nFasi; ++k) {
        const double scavo = dati.profFase[k];
        numeroTiranti(dati, k, elenco);
        const auto avvisaSe = [&](bool dubbio, Voce voce) {
            if (dubbio) elenco.aggiungi(voce, rigaConValore(dati, &DatiProgetto::profFase, k));
        };
        avvisaSe(scavo < 0, "scavo-sopra-la-testa");
        avvisaSe(k > 1 && scavo < dati.profFase[k - 1], "scavo-che-risale");
        avvisaSe(project::alPiede(dati, scavo), "scavo-al-piede");
        if (dati.sovraccFase[k] < 0)
            elenco.aggiungi("valore-negativo", rigaConValore(dati, &DatiProgetto::sovraccFase, k));
    }
}

}  // namespace korven::review
