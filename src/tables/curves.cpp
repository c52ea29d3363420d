#include "tables/curves.hpp"

#include <algorithm>
#include <cmath>

#include "analysis/node_vector.hpp"
#include "base/axis_steps.hpp"
#include "base/colon.hpp"
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
    for (const double v : c.minimo) minimo = std::min(minimo, mostrato(*c.unita, v));
    for (const double v : c.massimo) massimo = std::max(massimo, mostrato(*c.unita, v));
    const double ampiezza = massimo - minimo;
    c.passo = ampiezza > 0 ? base::passoAsse(ampiezza, passiAlPiu) : 1;
    c.da = std::floor(minimo / c.passo) * c.passo;
    c.a = std::ceil(massimo / c.passo) * c.passo;
    if (c.da == c.a) c.a = c.da + c.passo;
}

CurvaMostrata curva(const Grandezza& g, Fascia fascia) {
    CurvaMostrata c{.testa = colonna(g),
                    .minimo = std::move(fascia.minimo),
                    .massimo = std::move(fascia.massimo),
                    .unita = &g.unita,
                    .cella = g.cella};
    asse(c);
    return c;
}

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
        e = {sola(f->y), sola(f->momento), sola(f->taglio), pressioni(*f), {}};
    }
    for (std::size_t i = 0; i < e.y.minimo.size(); ++i)
        m.z.push_back(analysis::zNodo(static_cast<int>(i) + 1, parete.h));
    m.curve = {curva(grandezzaPressione, std::move(e.pressione)),
               curva(grandezzaSpostamento, std::move(e.y)),
               curva(grandezzaMomento, std::move(e.momento)),
               curva(grandezzaTaglio, std::move(e.taglio))};
    return m;
}

std::size_t nodoVicino(const CurveMostrate& curve, double z) {
    const auto vicino = std::min_element(
        curve.z.begin(), curve.z.end(),
        [z](double una, double altra) { return std::fabs(una - z) < std::fabs(altra - z); });
    return vicino == curve.z.end() ? 0 : static_cast<std::size_t>(vicino - curve.z.begin());
}

std::string valore(const CurvaMostrata& curva, std::size_t nodo) {
    const std::string minimo = curva.cella(curva.minimo.at(nodo)).testo;
    const std::string massimo = curva.cella(curva.massimo.at(nodo)).testo;
    return minimo == massimo ? minimo : minimo + " / " + massimo;
}

std::string lettura(const CurveMostrate& curve, std::size_t nodo) {
    std::string testo = base::conDuePunti("z " + profondita(curve.z.at(nodo)).testo + " m", {});
    std::string segno;
    for (const CurvaMostrata& c : curve.curve) {
        testo += segno + c.testa.titolo + " " + valore(c, nodo) + " " + c.testa.unita;
        segno = base::puntoEVirgola();
    }
    return testo;
}

}  // namespace korven::tables
