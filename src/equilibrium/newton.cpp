#include "equilibrium/newton.hpp"

#include <algorithm>
#include <cmath>

#include "analysis/stage_sequence.hpp"

namespace korven::equilibrium {

namespace {

// Part of the residual along a step that may be left at its end. A smaller one searches longer for
// steps that are hardly better.
constexpr double quotaLasciata = 0.5;
// A search ends after so many halvings: the interval is then down to rounding.
constexpr int massimoTentativi = 120;
// Part of the largest spring per metre that is added to a singular tangent.
constexpr double spintaRelativa = 1e-6;

// Four sums or maxima side by side, since each addition waits for the one before it.
double prodotto(const std::vector<double>& a, const std::vector<double>& b) {
    const std::size_t n = a.size();
    const double *x = a.data(), *y = b.data();
    double somme[4] = {};
    std::size_t i = 0;
    for (; i + 4 <= n; i += 4)
        for (std::size_t j = 0; j < 4; ++j) somme[j] += x[i + j] * y[i + j];
    for (; i < n; ++i) somme[0] += x[i] * y[i];
    return (somme[0] + somme[1]) + (somme[2] + somme[3]);
}

double massimoAssoluto(const std::vector<double>& v) {
    const std::size_t n = v.size();
    const double* const x = v.data();
    double massimi[4] = {};
    std::size_t i = 0;
    for (; i + 4 <= n; i += 4)
        for (std::size_t j = 0; j < 4; ++j) massimi[j] = std::max(massimi[j], std::fabs(x[i + j]));
    for (; i < n; ++i) massimi[0] = std::max(massimi[0], std::fabs(x[i]));
    return std::max(std::max(massimi[0], massimi[1]), std::max(massimi[2], massimi[3]));
}

bool finito(const std::vector<double>& v) {
    double somma = 0;  // one number that is none makes the sum none
    for (const double x : v) somma += x * 0;
    return somma == 0;
}

}  // namespace

Newton::Newton(int n) : forze_(n), banda_(n) {
    const auto quanti = static_cast<std::size_t>(n);
    for (auto* v : {&qui_.y, &qui_.r, &qui_.k, &prova_.y, &prova_.r, &prova_.k, &d_,
                    &kFattorizzato_, &kSpinto_})
        v->resize(quanti);
}

void Newton::residuo(const ProblemaFase& problema, const std::vector<double>& y,
                     std::vector<double>& r) {
    forze_.imposta(problema);
    forze_.valuta(y, r, prova_.k);
}

bool Newton::fattorizza(const ProblemaFase& problema) {
    const double e = problema.EJ / (problema.h * problema.h * problema.h);
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
    return true;
}

Newton::Passo Newton::direzione() {
    banda_.risolvi(qui_.r, d_);
    return {prodotto(qui_.r, d_), massimoAssoluto(d_)};
}

void Newton::avanza(const std::vector<double>& da, double t, std::vector<double>& a) const {
    const double *y = da.data(), *d = d_.data();
    double* const nuovo = a.data();
    for (std::size_t i = 0; i < d_.size(); ++i) nuovo[i] = y[i] + t * d[i];
}

double Newton::lavoroIn(double t) {
    avanza(qui_.y, t, prova_.y);
    forze_.valuta(prova_.y, prova_.r, prova_.k);
    return prova_.lavoro = prodotto(prova_.r, d_);
}

// Leaves in `prova_` a point along the step where little of the residual is left.
double Newton::cerca(const Passo& passo) {
    const double g0 = passo.lavoro;
    const double lasciato = quotaLasciata * std::fabs(g0);
    double t = 1;
    double g = lavoroIn(t);
    if (!(std::fabs(g) > lasciato)) return t;
    double sotto = 0, gSotto = g0, sopra = 0, gSopra = 0;
    if (g > 0) {  // the wall gives way before it is held again: further on
        for (int i = 0; g > lasciato && i < massimoTentativi; ++i) {
            sotto = t;
            gSotto = g;
            t *= spinto_ ? 8 : 2;
            g = lavoroIn(t);
        }
        if (!(g < -lasciato)) return t;
    }
    sopra = t;
    gSopra = g;
    // Regula falsi in the variant "Illinois".
    int lato = 0;
    for (int i = 0; i < massimoTentativi; ++i) {
        t = (sotto * gSopra - sopra * gSotto) / (gSopra - gSotto);
        g = lavoroIn(t);
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

// What is no number in a point shows in its work: r holds the second differences of all y, and no
// product with what is no number is one.
bool Newton::numeri(const Punto& punto) {
    return std::isfinite(punto.lavoro) || (finito(punto.y) && finito(punto.r));
}

SoluzioneNewton Newton::risolvi(const ProblemaFase& problema, std::vector<double>& y) {
    forze_.imposta(problema);
    qui_.y = y;
    forze_.valuta(qui_.y, qui_.r, qui_.k);
    SoluzioneNewton soluzione;
    soluzione.esito = itera(problema, soluzione.passi);
    if (soluzione.esito != EsitoNewton::trovato) return soluzione;
    y = qui_.y;
    const double L = problema.profondita(problema.nParete - 1);
    if (massimoAssoluto(y) > analysis::massimoSpostamentoRelativo * L)
        soluzione.esito = EsitoNewton::senzaMisura;
    return soluzione;
}

EsitoNewton Newton::itera(const ProblemaFase& problema, int& passi) {
    double cambioPrima = INFINITY;
    while (passi < massimoPassi) {
        const bool stesso = passi > 0 && kFattorizzato_ == qui_.k;
        if (!stesso && !fattorizza(problema)) return EsitoNewton::nonRaggiunto;
        const Passo passo = direzione();
        ++passi;
        if (passo.massimo <= tolleranzaPasso && std::isfinite(passo.lavoro)) {
            avanza(qui_.y, 1, qui_.y);
            return EsitoNewton::trovato;
        }
        const double t = cerca(passo);
        if (!numeri(prova_)) return EsitoNewton::nessunNumero;
        std::swap(qui_, prova_);
        const double cambio = t * passo.massimo;
        if (cambio <= tolleranzaPasso) return EsitoNewton::trovato;
        if (stesso && !spinto_ && t == 1 && cambio > cambioPrima / 2) return EsitoNewton::trovato;
        cambioPrima = cambio;
    }
    return EsitoNewton::nonRaggiunto;
}

}  // namespace korven::equilibrium
