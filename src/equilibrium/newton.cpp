#include "equilibrium/newton.hpp"

#include <algorithm>
#include <cmath>

#include "analysis/stage_sequence.hpp"
#include "analysis/wall_mesh.hpp"

namespace korven::equilibrium {

namespace {

// Part of the residual along a step that may be left at its end. A smaller one searches longer for
// steps that are hardly better.
constexpr double quotaLasciata = 0.5;
// A search ends after so many halvings: the interval is then down to rounding.
constexpr int massimoTentativi = 120;
// Part of the largest spring per metre that is added to a singular tangent.
constexpr double spintaRelativa = 1e-6;

double prodotto(const std::vector<double>& a, const std::vector<double>& b) {
    double somma = 0;
    for (std::size_t i = 0; i < a.size(); ++i) somma += a[i] * b[i];
    return somma;
}

double massimoAssoluto(const std::vector<double>& v) {
    double massimo = 0;
    for (const double x : v) massimo = std::max(massimo, std::fabs(x));
    return massimo;
}

bool finito(const std::vector<double>& v) {
    double somma = 0;  // one number that is none makes the sum none
    for (const double x : v) somma += x * 0;
    return somma == 0;
}

// Forces of the nodes, from the second differences of the bending moment. The moment at the top is
// given, that at the other end is 0.
void flessione(const ProblemaFase& problema, const std::vector<double>& y, std::vector<double>& r) {
    const std::size_t n = y.size();
    const double E = problema.EJ / (problema.h * problema.h);
    double M0 = -problema.M;                    // of the node before
    double M1 = -E * (y[0] - 2 * y[1] + y[2]);  // of this one
    r[0] += (M1 - M0) / problema.h;
    for (std::size_t i = 1; i + 1 < n; ++i) {
        const double M2 = i + 2 < n ? -E * (y[i] - 2 * y[i + 1] + y[i + 2]) : 0;
        r[i] += ((M2 - M1) - (M1 - M0)) / problema.h;
        M0 = M1;
        M1 = M2;
    }
    r[n - 1] -= (M1 - M0) / problema.h;
}

}  // namespace

Newton::Newton(int n) : banda_(n) {
    const auto quanti = static_cast<std::size_t>(n);
    for (auto* v : {&qui_.y, &qui_.r, &qui_.k, &prova_.y, &prova_.r, &prova_.k, &d_,
                    &kFattorizzato_, &kSpinto_})
        v->resize(quanti);
}

void Newton::valuta(const ProblemaFase& problema, Punto& punto) const {
    const std::size_t n = punto.y.size();
    const auto nParete = static_cast<std::size_t>(problema.nParete);
    punto.r.back() = punto.k.back() = 0;  // of the node that a fixed toe adds
    for (std::size_t i = 0; i < nParete; ++i) {
        const NodoFase& nodo = problema.nodi[i];
        // The spring of a restraint takes the place of the soil's; the constant part stays.
        const double y = nodo.vincolato ? 0 : punto.y[i];
        double k = 0;
        const double p = nodo.monte.pressione(y, k) + nodo.valle.pressione(y, k);
        punto.r[i] = nodo.peso * (nodo.acqua + problema.costante + p);
        punto.k[i] = nodo.peso * k;
    }
    for (const TiranteFase& t : problema.tiranti) {
        if (t.nodo < 0) continue;
        const auto i = static_cast<std::size_t>(t.nodo);
        const double y = problema.nodi[i].vincolato ? 0 : punto.y[i];
        punto.r[i] -= t.volte * t.tiro(y);
        punto.k[i] += t.volte * t.rigidezzaIn(y);
    }
    for (std::size_t i = 0; i < n; ++i) {
        const NodoFase& nodo = problema.nodi[i];
        if (!nodo.vincolato) continue;
        punto.k[i] = -analysis::kVincolo * nodo.peso;
        punto.r[i] -= punto.k[i] * punto.y[i];
    }
    punto.r[0] += problema.H;
    flessione(problema, punto.y, punto.r);
}

void Newton::residuo(const ProblemaFase& problema, const std::vector<double>& y,
                     std::vector<double>& r) const {
    Punto punto{y, r, std::vector<double>(y.size())};
    punto.r.resize(y.size());
    valuta(problema, punto);
    r = punto.r;
}

bool Newton::direzione(const ProblemaFase& problema) {
    const double e = problema.EJ / (problema.h * problema.h * problema.h);
    if (!fattorizzato_ || kFattorizzato_ != qui_.k) {
        kFattorizzato_ = qui_.k;
        spinto_ = !banda_.fattorizza(e, qui_.k);
        for (double spinta = spintaRelativa; spinto_; spinta *= 100) {
            double massimo = 0;
            for (std::size_t i = 0; i < d_.size(); ++i) {
                const NodoFase& nodo = problema.nodi[i];
                massimo = std::max(massimo, -nodo.monte.Eh - nodo.valle.Eh);
            }
            const double L = problema.profondita(problema.n() - 1);
            if (massimo == 0) massimo = problema.EJ / (L * L * L * L);
            for (std::size_t i = 0; i < d_.size(); ++i)
                kSpinto_[i] = qui_.k[i] + spinta * massimo * problema.nodi[i].peso;
            if (banda_.fattorizza(e, kSpinto_)) break;
            if (!(spinta < 1e6)) return false;
        }
        fattorizzato_ = true;
    }
    banda_.risolvi(qui_.r, d_);
    return true;
}

double Newton::lavoroIn(const ProblemaFase& problema, double t) {
    for (std::size_t i = 0; i < d_.size(); ++i) prova_.y[i] = qui_.y[i] + t * d_[i];
    valuta(problema, prova_);
    return prodotto(prova_.r, d_);
}

// Leaves in `prova_` a point along the step where little of the residual is left.
double Newton::cerca(const ProblemaFase& problema, bool lunga) {
    const double g0 = prodotto(qui_.r, d_);
    const double lasciato = quotaLasciata * std::fabs(g0);
    double t = 1;
    double g = lavoroIn(problema, t);
    if (!(std::fabs(g) > lasciato) || massimoAssoluto(d_) <= tolleranzaPasso) return t;
    double sotto = 0, gSotto = g0, sopra = 0, gSopra = 0;
    if (g > 0) {  // the wall gives way before it is held again: further on
        for (int i = 0; g > lasciato && i < massimoTentativi; ++i) {
            sotto = t;
            gSotto = g;
            t *= lunga ? 8 : 2;
            g = lavoroIn(problema, t);
        }
        if (!(g < -lasciato)) return t;
    }
    sopra = t;
    gSopra = g;
    // Regula falsi in the variant "Illinois".
    int lato = 0;
    for (int i = 0; i < massimoTentativi; ++i) {
        t = (sotto * gSopra - sopra * gSotto) / (gSopra - gSotto);
        g = lavoroIn(problema, t);
        if (!(std::fabs(g) > lasciato)) return t;
        if (g > 0) {
            sotto = t;
            gSotto = g;
            if (lato == 1) gSopra /= 2;
            lato = 1;
        } else {
            sopra = t;
            gSopra = g;
            if (lato == -1) gSotto /= 2;
            lato = -1;
        }
    }
    return t;
}

SoluzioneNewton Newton::risolvi(const ProblemaFase& problema, std::vector<double>& y) {
    const double massimo =
        analysis::massimoSpostamentoRelativo * problema.profondita(problema.nParete - 1);
    qui_.y = y;
    fattorizzato_ = false;
    valuta(problema, qui_);
    SoluzioneNewton soluzione;
    double cambioPrima = INFINITY;
    while (soluzione.passi < massimoPassi) {
        const bool stesso = fattorizzato_ && kFattorizzato_ == qui_.k;
        if (!direzione(problema)) break;
        ++soluzione.passi;
        const double t = cerca(problema, spinto_);
        if (!finito(prova_.y) || !finito(prova_.r)) {
            soluzione.esito = EsitoNewton::nessunNumero;
            return soluzione;
        }
        std::swap(qui_, prova_);
        const double cambio = t * massimoAssoluto(d_);
        if (cambio <= tolleranzaPasso ||
            (stesso && !spinto_ && t == 1 && cambio > cambioPrima / 2)) {
            y = qui_.y;
            if (massimoAssoluto(y) > massimo) soluzione.esito = EsitoNewton::senzaMisura;
            return soluzione;
        }
        cambioPrima = cambio;
    }
    soluzione.esito = EsitoNewton::nonRaggiunto;
    return soluzione;
}

}  // namespace korven::equilibrium
