#include "report/annex/peaks.hpp"

#include <cassert>
#include <optional>

#include "base/translated_texts.hpp"
#include "report/annex/columns.hpp"
#include "report/annex/table_pieces.hpp"
#include "tables/quantities.hpp"

namespace korven::report {

using base::traduttore;
using equilibrium::FaseEquilibrio;
using live::PareteViva;
using tables::Cella;
using tables::Prospetto;
namespace unita = project::unita;

namespace {

double profondita(const PareteViva& parete, const Picco& p) {
    return static_cast<double>(p.nodo) * parete.h;
}

void aggiungi(const PareteViva& parete, const GrandezzaFase& g, int fase, int segno,
              std::vector<Cella>& riga) {
    const Picco p = picco(parete, fase, g, segno);
    const Cella valore = g.cella(p.valore);
    const bool nullo = stampataNulla(valore);
    riga.push_back(valore);
    riga.push_back(nullo ? senzaPosto() : tables::profondita(profondita(parete, p), p.lato));
    if (fase == 0) riga.push_back(nullo ? senzaPosto() : tables::cella(p.fase));
}

}  // namespace

const std::array<GrandezzaFase, 3>& grandezze() {
    using tables::grandezzaMomento;
    using tables::grandezzaSpostamento;
    using tables::grandezzaTaglio;
    const auto di = [](const tables::Grandezza& g, auto sopra, auto sotto) {
        return GrandezzaFase{sopra, sotto, g.titolo, g.unita, g.cella};
    };
    static const std::array<GrandezzaFase, 3> tutte = {
        di(grandezzaSpostamento, &FaseEquilibrio::y, &FaseEquilibrio::y),
        di(grandezzaMomento, &FaseEquilibrio::momento, &FaseEquilibrio::momento),
        di(grandezzaTaglio, &FaseEquilibrio::taglioSopra, &FaseEquilibrio::taglioSotto)};
    return tutte;
}

Picco picco(const PareteViva& parete, int fase, const GrandezzaFase& grandezza, int segno) {
    assert(parete.fasiInEquilibrio() > 0);
    const int prima = fase == 0 ? 1 : fase;
    const int ultima = fase == 0 ? parete.fasiInEquilibrio() : fase;
    const bool dueLati = grandezza.sopra != grandezza.sotto;
    std::optional<Picco> trovato;
    for (int k = prima; k <= ultima; ++k) {
        const FaseEquilibrio& f = *parete.fase(k);
        for (std::size_t i = 0; i < f.y.size(); ++i)
            for (const double v : {(f.*grandezza.sopra)[i], (f.*grandezza.sotto)[i]})
                if (!trovato || segno * v > segno * trovato->valore)
                    trovato = {v, i, k,
                               dueLati ? equilibrium::lato(f, i, v) : equilibrium::Lato::unico};
    }
    return *trovato;
}

std::vector<std::size_t> nodiDeiPicchi(const PareteViva& parete, int fase) {
    std::vector<std::size_t> nodi;
    for (const GrandezzaFase& g : grandezze())
        for (const int segno : {1, -1}) nodi.push_back(picco(parete, fase, g, segno).nodo);
    return nodi;
}

Prospetto prospettoPicchi(const PareteViva& parete, int fase) {
    Prospetto p{.titolo = traduttore("Valori massimi e minimi")};
    p.colonne = {colonna("Risultato")};
    for (const char* quale : {"Valore massimo", "Valore minimo"}) {
        p.colonne.push_back(numeri(quale));
        p.colonne.push_back(simboli(unita::metri, "z"));
        if (fase == 0) p.colonne.push_back(numeri("Fase"));
    }
    for (const GrandezzaFase& g : grandezze()) {
        auto& riga = p.righe.emplace_back(std::vector{conUnita(g.unita, g.titolo)});
        for (const int segno : {1, -1}) aggiungi(parete, g, fase, segno, riga);
    }
    return p;
}

}  // namespace korven::report
