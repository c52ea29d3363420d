#include "tables/curves.hpp"

#include <algorithm>
#include <cmath>

#include "analysis/node_vector.hpp"
#include "base/axis_steps.hpp"
#include "base/colon.hpp"
#include "base/translated_texts.hpp"
#include "live/envelope.hpp"
#include "tables/node_table.hpp"
#include "tables/quantities.hpp"

namespace korven::tables {

namespace {

using equilibrium::FaseEquilibrio;
using live::Fascia;
using live::PareteViva;

constexpr int passiAlPiu = 4;  // of an axis

// A curve that is 0 all along has an axis all the same.
void asse(CurvaMostrata& c) {
    double minimo = 0, massimo = 0;
    for (const auto* valori : {&c.minimo, &c.minimoSotto})
        for (const double v : *valori) minimo = std::min(minimo, mostrato(*c.unita, v));
    for (const auto* valori : {&c.massimo, &c.massimoSotto})
        for (const double v : *valori) massimo = std::max(massimo, mostrato(*c.unita, v));
    const double ampiezza = massimo - minimo;
    c.passo = ampiezza > 0 ? base::passoAsse(ampiezza, passiAlPiu) : 1;
    c.da = std::floor(minimo / c.passo) * c.passo;
    c.a = std::ceil(massimo / c.passo) * c.passo;
    if (c.da == c.a) c.a = c.da + c.passo;
}

CurvaMostrata curva(const Grandezza& g, Fascia sopra, Fascia sotto) {
    CurvaMostrata c{.testa = colonna(g),
                    .minimo = std::move(sopra.minimo),
                    .massimo = std::move(sopra.massimo),
                    .minimoSotto = std::move(sotto.minimo),
                    .massimoSotto = std::move(sotto.massimo),
                    .unita = &g.unita,
                    .cella = g.cella};
    asse(c);
    return c;
}

CurvaMostrata curva(const Grandezza& g, const Fascia& fascia) { return curva(g, fascia, fascia); }

Fascia sola(const std::vector<double>& valori) { return {valori, valori}; }

Fascia pressioni(const FaseEquilibrio& fase) {
    std::vector<double> netta;
    for (std::size_t i = 0; i < fase.y.size(); ++i) netta.push_back(live::pressioneNetta(fase, i));
    return sola(netta);
}

}  // namespace

CurveMostrate curve(const PareteViva& parete, int fase) {
    CurveMostrate m{.titolo = titoloFase(fase), .fase = fase, .perche = perche(parete, fase)};
    live::Inviluppo e;
    if (fase == 0) {
        e = live::inviluppo(parete);
    } else if (const FaseEquilibrio* f = parete.fase(fase)) {
        e = {.y = sola(f->y),
             .momento = sola(f->momento),
             .taglio = sola(f->taglio),
             .taglioSopra = sola(f->taglioSopra),
             .taglioSotto = sola(f->taglioSotto),
             .pressione = pressioni(*f),
             .tiri = {}};
    }
    for (std::size_t i = 0; i < e.y.minimo.size(); ++i)
        m.z.push_back(analysis::zNodo(static_cast<int>(i) + 1, parete.h));
    m.curve = {curva(grandezzaPressione, e.pressione), curva(grandezzaSpostamento, e.y),
               curva(grandezzaMomento, e.momento),
               curva(grandezzaTaglio, std::move(e.taglioSopra), std::move(e.taglioSotto))};
    return m;
}

std::size_t nodoVicino(const CurveMostrate& curve, double z) {
    const auto vicino = std::min_element(
        curve.z.begin(), curve.z.end(),
        [z](double una, double altra) { return std::fabs(una - z) < std::fabs(altra - z); });
    return vicino == curve.z.end() ? 0 : static_cast<std::size_t>(vicino - curve.z.begin());
}

bool conSalto(const CurvaMostrata& curva, std::size_t nodo) {
    return curva.minimo.at(nodo) == curva.massimo.at(nodo) &&
           curva.minimoSotto.at(nodo) == curva.massimoSotto.at(nodo) &&
           curva.minimo[nodo] != curva.minimoSotto[nodo];
}

std::string valore(const CurvaMostrata& curva, std::size_t nodo) {
    double uno = std::min(curva.minimo.at(nodo), curva.minimoSotto.at(nodo));
    double altro = std::max(curva.massimo.at(nodo), curva.massimoSotto.at(nodo));
    if (conSalto(curva, nodo)) {
        uno = curva.minimo[nodo];
        altro = curva.minimoSotto[nodo];
    }
    const std::string primo = curva.cella(uno).testo, secondo = curva.cella(altro).testo;
    return primo == secondo ? primo : primo + " / " + secondo;
}

std::string lettura(const CurveMostrate& curve, std::size_t nodo) {
    std::string testo = base::conDuePunti("z " + profondita(curve.z.at(nodo)).testo + " m", {});
    std::string segno;
    for (const CurvaMostrata& c : curve.curve) {
        testo += segno + c.testa.titolo + " " + valore(c, nodo) + " " + c.testa.unita;
        if (conSalto(c, nodo)) testo += " (" + base::traduttore("sopra / sotto il tirante") + ")";
        segno = base::puntoEVirgola();
    }
    return testo;
}

}  // namespace korven::tables
