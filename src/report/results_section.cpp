#include "analysis/anchors_in_place.hpp"
#include "base/translated_texts.hpp"
#include "project/units.hpp"
#include "report/sections.hpp"

namespace korven::report {

namespace {

namespace unita = project::unita;
using project::etichetta;

void fase(const results::DatiRelazione& dati, int s, RigheRelazione& righe) {
    righe.riga(base::traduttore("RISULTATI FASE") + ' ' + std::to_string(s));
    righe.riga("#STARTTABLE");
    righe.intestazione({etichetta("Profondità", unita::metri),
                        etichetta("Spostamento", unita::spostamento),
                        etichetta("Momento", unita::momento)});
    const auto& risultati = dati.fasi[static_cast<std::size_t>(s - 1)];
    for (int i = 1; i <= dati.nNodi; ++i)
        righe.valori({analysis::zNodo(i, dati.passo),
                      mostrato(unita::spostamento, risultati.yNodo[i]),
                      mostrato(unita::momento, risultati.momentoNodo[i])});
    righe.riga("#ENDTABLE");
    righe.vuota();
}

void tiranti(const results::DatiRelazione& dati, RigheRelazione& righe) {
    const int inOpera = analysis::tirantiInOpera(dati.progetto, dati.progetto.nFasi);
    if (inOpera <= 0) return;
    righe.titolo("MASSIME TENSIONI APPLICATE AI TIRANTI");
    righe.vuota();
    righe.riga("#STARTTABLE");
    righe.intestazione(
        {etichetta("Prof. tirante", unita::metri), etichetta("Tensione max.", unita::forza)});
    for (int j = 1; j <= inOpera; ++j)
        righe.valori({dati.progetto.profTirante[j], mostrato(unita::forza, dati.tiroTirante[j])});
    righe.riga("#ENDTABLE");
    righe.vuota();
}

}  // namespace

void sezioneRisultati(const results::DatiRelazione& dati, RigheRelazione& righe) {
    for (int s = 1; s <= dati.progetto.nFasi; ++s) fase(dati, s, righe);
    tiranti(dati, righe);
}

}  // namespace korven::report
