#include "tables/stage_table.hpp"

#include <algorithm>

#include "base/translated_texts.hpp"
#include "equilibrium/extremes.hpp"
#include "safety/words.hpp"
#include "tables/node_table.hpp"
#include "tables/quantities.hpp"

namespace korven::tables {

namespace {

using base::traduttore;
using equilibrium::EsitoFase;
using equilibrium::Estremo;
using live::PareteViva;
namespace unita = project::unita;

Cella verdetto(const PareteViva& parete, int k) {
    if (k > static_cast<int>(parete.fasi.size())) return parola(traduttore("non calcolata"));
    const EsitoFase e = parete.fasi[static_cast<std::size_t>(k) - 1].esito;
    return esito(safety::parole(e), e != EsitoFase::equilibrio);
}

// The value, then the depth of its node.
void aggiungi(const Estremo& estremo, Cella (*valore)(double), std::vector<Cella>& riga) {
    riga.push_back(valore(estremo.valore));
    riga.push_back(dove(estremo.fase, estremo.z, estremo.lato));
}

std::vector<Cella> rigaFase(const PareteViva& parete, int k) {
    std::vector<Cella> riga = {cella(k), verdetto(parete, k), profondita(parete.dati.profFase[k])};
    const equilibrium::FaseEquilibrio* fase = parete.fase(k);
    if (fase == nullptr) {
        riga.resize(9, senza(perche(parete, k)));
        return riga;
    }
    const equilibrium::Estremi e = equilibrium::estremi(*fase, parete.h);
    aggiungi(e.spostamento, spostamento, riga);
    aggiungi(e.momento(), momento, riga);
    aggiungi(e.taglio, forza, riga);
    return riga;
}

}  // namespace

Prospetto prospettoFasi(const PareteViva& parete) {
    const Colonna z = colonnaSimbolo(unita::metri, "z", "Profondità del valore a sinistra");
    Prospetto p{
        .titolo = traduttore("Fasi"),
        .colonne = {
            colonna(unita::nessuna, "Fase", "Numero della fase"),
            colonnaParole("Esito", "Esito della soluzione di equilibrio"),
            colonna(unita::metri, "Scavo", "Profondità dello scavo, dalla testa della paratia"),
            colonna(unita::spostamentoFine, "Spostamento",
                    "Il maggiore in valore assoluto, positivo verso lo scavo"),
            z,
            colonna(unita::momentoAlMetro, "Momento",
                    "Il maggiore in valore assoluto, positivo se tende la faccia verso lo scavo"),
            z, colonna(unita::forzaAlMetro, "Taglio", "Il maggiore in valore assoluto"), z}};
    for (int k = 1; k <= std::min(parete.dati.nFasi, project::massimoFasi); ++k)
        p.righe.push_back(rigaFase(parete, k));
    if (!parete.sta()) p.note.push_back(perche(parete, parete.fasiInEquilibrio() + 1));
    return p;
}

}  // namespace korven::tables
