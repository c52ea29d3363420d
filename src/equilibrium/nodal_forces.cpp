#include "equilibrium/nodal_forces.hpp"

#include <cassert>
#include <cstddef>
#include <cstring>

#include "analysis/solver/vector_lanes.hpp"
#include "project/project_data.hpp"

namespace korven::equilibrium {

namespace {

// Two nodes that follow each other. Written with choices between two values and no branch, since
// the states of the nodes are just what a processor can't foresee.
using Coppia = analysis::Corsie<2>;
constexpr std::size_t quantiInsieme = 2;

KORVEN_CORSIE Coppia leggi(const std::vector<double>& v, std::size_t i) {
    Coppia valori;
    std::memcpy(&valori, v.data() + i, sizeof valori);
    return valori;
}
KORVEN_CORSIE void scrivi(const Coppia& valori, std::vector<double>& v, std::size_t i) {
    std::memcpy(v.data() + i, &valori, sizeof valori);
}

// LatoNodo::pressione of nodes i and i + 1, for limits in their order.
KORVEN_CORSIE Coppia pressione(const LatoNodi& lato, std::size_t i, const Coppia& y,
                               Coppia& rigidezza) {
    const Coppia Eh = leggi(lato.Eh, i);
    const Coppia minimo = leggi(lato.minimo, i), massimo = leggi(lato.massimo, i);
    const Coppia prova = leggi(lato.riposo, i) + y * Eh;
    const Coppia sotto = prova > massimo ? massimo : prova;
    const Coppia p = sotto < minimo ? minimo : sotto;
    rigidezza -= p == prova ? Eh : Coppia{};
    return p;
}

void imposta(const LatoNodo& dato, bool fermo, LatoNodi& lato, std::size_t i) {
    LatoNodo nodo = dato;
    if (fermo || dato.Eh == 0) {  // it does not react: its pressure is at both limits
        nodo.Eh = 0;
        nodo.riposo = nodo.minimo = nodo.massimo = dato.pressione(0);
    }
    lato.riposo[i] = nodo.riposo;
    lato.Eh[i] = nodo.Eh;
    lato.minimo[i] = nodo.minimo;
    lato.massimo[i] = nodo.massimo;
}

}  // namespace

ForzeNodi::ForzeNodi(int n)
    : peso_(static_cast<std::size_t>(n)),
      costante_(peso_.size()),
      vincolo_(peso_.size()),
      monte_(peso_.size()),
      valle_(peso_.size()),
      momento_(peso_.size()) {
    tiranti_.reserve(project::massimoTiranti);
}

void ForzeNodi::imposta(const ProblemaFase& problema) {
    assert(problema.nodi.size() == peso_.size());
    rigidezza_ = problema.EJ / (problema.h * problema.h * problema.h);
    H_ = problema.H;
    coppia_ = problema.M / problema.h;
    const auto nParete = static_cast<std::size_t>(problema.nParete);
    std::size_t i = 0;
    for (const NodoFase& nodo : problema.nodi) {
        peso_[i] = i < nParete ? nodo.peso : 0;  // nothing loads the node that a fixed toe adds
        costante_[i] = nodo.acqua + problema.costante;
        // The spring of a restraint takes the place of the soil's; the constant part stays.
        vincolo_[i] = problema.molla(nodo);
        equilibrium::imposta(nodo.monte, nodo.vincolato, monte_, i);
        equilibrium::imposta(nodo.valle, nodo.vincolato, valle_, i);
        ++i;
    }
    tiranti_.clear();
    for (const TiranteFase& t : problema.tiranti)
        if (t.nodo >= 0) tiranti_.push_back(t);
}

void ForzeNodi::terreno(const std::vector<double>& y, std::vector<double>& r,
                        std::vector<double>& k) const {
    const auto coppia = [&](std::size_t i) {
        const Coppia peso = leggi(peso_, i), vincolo = leggi(vincolo_, i), dove = leggi(y, i);
        Coppia rigidezza{};
        const Coppia p =
            pressione(monte_, i, dove, rigidezza) + pressione(valle_, i, dove, rigidezza);
        scrivi(peso * (leggi(costante_, i) + p) - vincolo * dove, r, i);
        scrivi(peso * rigidezza + vincolo, k, i);
    };
    const std::size_t n = y.size();
    for (std::size_t i = 0; i + quantiInsieme <= n; i += quantiInsieme) coppia(i);
    coppia(n - quantiInsieme);  // of an odd number the last one, its neighbour once more
}

void ForzeNodi::tiranti(const std::vector<double>& y, std::vector<double>& r,
                        std::vector<double>& k) const {
    for (const TiranteFase& t : tiranti_) {
        const auto i = static_cast<std::size_t>(t.nodo);
        const bool fermo = vincolo_[i] != 0;
        r[i] -= t.volte * t.tiro(fermo ? 0 : y[i]);
        if (!fermo) k[i] += t.volte * t.rigidezzaIn(y[i]);
    }
}

// The forces of bending are the second differences of its moment, over the step. The moment at the
// top is given, that at the other end is 0.
void ForzeNodi::flessione(const std::vector<double>& y, std::vector<double>& r) {
    const std::size_t n = y.size();
    const double* const dove = y.data();
    double* const __restrict M = momento_.data();
    double* const __restrict forza = r.data();
    M[0] = -coppia_;
    for (std::size_t i = 1; i + 1 < n; ++i)
        M[i] = -rigidezza_ * (dove[i - 1] - 2 * dove[i] + dove[i + 1]);
    M[n - 1] = 0;
    forza[0] += M[1] - M[0];
    for (std::size_t i = 1; i + 1 < n; ++i) forza[i] += (M[i + 1] - M[i]) - (M[i] - M[i - 1]);
    forza[n - 1] -= M[n - 1] - M[n - 2];
}

void ForzeNodi::valuta(const std::vector<double>& y, std::vector<double>& r,
                       std::vector<double>& k) {
    assert(y.size() == peso_.size() && r.size() == y.size() && k.size() == y.size());
    terreno(y, r, k);
    tiranti(y, r, k);
    r.front() += H_;
    flessione(y, r);
}

}  // namespace korven::equilibrium
