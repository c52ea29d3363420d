#include "tables/node_table.hpp"

#include <algorithm>

#include "analysis/node_vector.hpp"
#include "analysis/vertical_stress.hpp"
#include "base/code_page.hpp"
#include "base/colon.hpp"
#include "base/filled_text.hpp"
#include "base/translated_texts.hpp"
#include "drawings/log/layer_name.hpp"
#include "safety/words.hpp"
#include "tables/quantities.hpp"

namespace korven::tables {

namespace {

using analysis::StatoLato;
using base::traduttore;
using equilibrium::FaseEquilibrio;
using live::PareteViva;
using project::DatiProgetto;
namespace unita = project::unita;

// "2: Ghiaia". The description of a layer may ask for line ends, which a cell has none of.
std::string nomeStrato(const DatiProgetto& dati, int j) {
    std::string testo = drawings::descrizioneMostrata(dati.descrStrato[j]).testo;
    std::replace(testo.begin(), testo.end(), '|', ' ');
    return std::to_string(j) + (testo.empty() ? "" : base::duePunti() + testo);
}

// Cells of a layer are the same for all of its nodes.
class CelleStrati {
 public:
    explicit CelleStrati(const DatiProgetto& dati) : dati_(dati) {
        celle_.emplace_back();
        for (int j = 1; j <= dati.nStrati; ++j) celle_.push_back(parola(nomeStrato(dati, j), j));
    }
    [[nodiscard]] const Cella& a(double z) const {
        return celle_.at(static_cast<std::size_t>(analysis::tensioneMonte(dati_, z).strato));
    }

 private:
    const DatiProgetto& dati_;
    std::vector<Cella> celle_;
};

Colonna colonnaNodo() {
    return colonna(unita::nessuna, "Nodo", "Numero del nodo, dalla testa della paratia");
}
Colonna colonnaZ() {
    return colonnaSimbolo(unita::metri, "z", "Profondità dalla testa della paratia");
}
Colonna colonnaStrato() {
    return colonnaParole("Strato", "Strato di terreno in cui si trova il nodo");
}

// "Momento min."
Colonna colonnaEstremo(const Grandezza& g, const char* quale) {
    Colonna c = colonna(g);
    c.titolo = base::riempito(traduttore(quale), {c.titolo});
    return c;
}

// What the tables of all stages of a wall have in common.
struct Forma {
    bool conCostante = false;  ///< a constant pressure
    bool conTiranti = false;   ///< some stage has anchors: shear has two sides
};
Forma forma(const PareteViva& parete) {
    Forma f{.conCostante = parete.dati.pressioneOrizz != 0};
    for (int k = 1; k <= parete.fasiInEquilibrio(); ++k)
        f.conTiranti |= !parete.fase(k)->tiri.empty();
    return f;
}

std::vector<Colonna> colonneFase(const Forma& forma) {
    std::vector<Colonna> colonne = {colonnaNodo(), colonnaZ(), colonna(grandezzaSpostamento),
                                    colonna(grandezzaMomento)};
    if (forma.conTiranti) {
        colonne.push_back(colonna(grandezzaTaglioSopra));
        colonne.push_back(colonna(grandezzaTaglioSotto));
    } else {
        colonne.push_back(colonna(grandezzaTaglio));
    }
    colonne.push_back(colonna(unita::pressione, "Monte",
                              "Pressione del terreno a monte, positiva verso lo scavo"));
    colonne.push_back(colonna(unita::pressione, "Valle",
                              "Pressione del terreno a valle: negativa, perché spinge verso "
                              "monte"));
    colonne.push_back(colonna(unita::pressione, "Acqua",
                              "Pressione dell'acqua a monte meno quella a valle, positiva verso lo "
                              "scavo"));
    if (forma.conCostante)
        colonne.push_back(colonna(unita::pressione, "Costante",
                                  "Pressione orizzontale costante, positiva verso lo scavo"));
    colonne.push_back(colonna(grandezzaPressione));
    colonne.push_back(colonnaParole(
        "A monte", "Stato del terreno a monte: elastico, o al limite attivo o passivo"));
    colonne.push_back(colonnaParole("A valle",
                                    "Stato del terreno a valle: elastico, o al limite attivo o "
                                    "passivo; sopra lo scavo nessuno"));
    colonne.push_back(colonnaStrato());
    return colonne;
}

Cella stato(StatoLato lato) { return parola(nomeStato(lato)); }

std::vector<Cella> rigaFase(const FaseEquilibrio& fase, std::size_t i, double z, double scavo,
                            const Forma& forma) {
    std::vector<Cella> riga;
    riga.reserve(14);
    riga = {cella(static_cast<int>(i) + 1), profondita(z), spostamento(fase.y[i]),
            momento(fase.momento[i]), forza(fase.taglioSopra[i])};
    if (forma.conTiranti) riga.push_back(forza(fase.taglioSotto[i]));
    for (const auto* lato : {&fase.monte, &fase.valle, &fase.acqua})
        riga.push_back(pressione((*lato)[i]));
    if (forma.conCostante) riga.push_back(pressione(fase.costante));
    riga.push_back(pressione(live::pressioneNetta(fase, i)));
    riga.push_back(stato(fase.stati[i].monte));
    riga.push_back(z >= scavo ? stato(fase.stati[i].valle)
                              : senza(traduttore("Sopra lo scavo non c'è terreno a valle.")));
    return riga;
}

}  // namespace

std::string nomeStato(StatoLato stato) {
    switch (stato) {
        case StatoLato::attivo:
            return traduttore("attivo");
        case StatoLato::passivo:
            return traduttore("passivo");
        case StatoLato::elastico:
            break;
    }
    return traduttore("elastico");
}

std::string perche(const PareteViva& parete, int fase) {
    const int stanno = parete.fasiInEquilibrio();
    if (fase == 0 ? stanno > 0 : fase <= stanno) return {};
    if (!parete.rifiuto.empty()) return parete.rifiuto;
    if (parete.perche && fase <= parete.perche->fase)
        return base::conMaiuscola(safety::frase(*parete.perche));
    if (parete.perche)
        return base::conMaiuscola(
            base::riempito(traduttore("non calcolata: nessun equilibrio nella fase %1"),
                           {std::to_string(parete.perche->fase)}));
    return traduttore("Il progetto non ha fasi.");
}

Prospetto prospettoNodi(const PareteViva& parete, int fase) {
    const Forma sua = forma(parete);
    Prospetto p{.titolo = base::conDuePunti(traduttore("Nodi"), titoloFase(fase)),
                .colonne = colonneFase(sua)};
    const FaseEquilibrio* f = parete.fase(fase);
    if (f == nullptr) {
        p.note.push_back(perche(parete, fase));
        return p;
    }
    const CelleStrati strati(parete.dati);
    p.righe.reserve(f->y.size());
    for (std::size_t i = 0; i < f->y.size(); ++i) {
        const double z = analysis::zNodo(static_cast<int>(i) + 1, parete.h);
        p.righe.push_back(rigaFase(*f, i, z, parete.dati.profFase[fase], sua));
        p.righe.back().push_back(strati.a(z));
    }
    return p;
}

Prospetto prospettoInviluppo(const PareteViva& parete) {
    Prospetto p{.titolo = base::conDuePunti(traduttore("Nodi"), titoloFase(0)),
                .colonne = {colonnaNodo(), colonnaZ()}};
    for (const Grandezza* g :
         {&grandezzaSpostamento, &grandezzaMomento, &grandezzaTaglio, &grandezzaPressione}) {
        p.colonne.push_back(colonnaEstremo(*g, "%1 min."));
        p.colonne.push_back(colonnaEstremo(*g, "%1 max."));
    }
    p.colonne.push_back(colonnaStrato());
    if (std::string motivo = perche(parete, 0); !motivo.empty()) p.note.push_back(motivo);
    const live::Inviluppo e = live::inviluppo(parete);
    const CelleStrati strati(parete.dati);
    for (std::size_t i = 0; i < e.y.minimo.size(); ++i) {
        const double z = analysis::zNodo(static_cast<int>(i) + 1, parete.h);
        p.righe.push_back(
            {cella(static_cast<int>(i) + 1), profondita(z), spostamento(e.y.minimo[i]),
             spostamento(e.y.massimo[i]), momento(e.momento.minimo[i]),
             momento(e.momento.massimo[i]), forza(e.taglio.minimo[i]), forza(e.taglio.massimo[i]),
             pressione(e.pressione.minimo[i]), pressione(e.pressione.massimo[i]), strati.a(z)});
    }
    return p;
}

}  // namespace korven::tables
