#include "equilibrium/verdict.hpp"

#include <algorithm>
#include <limits>

namespace korven::equilibrium {

namespace {

// The nodes that hold a movement one way without bound, by the first and the last of them.
struct Fermi {
    int primo = std::numeric_limits<int>::max();
    int ultimo = -1;

    void aggiungi(int i) {
        primo = std::min(primo, i);
        ultimo = std::max(ultimo, i);
    }
    [[nodiscard]] bool nessuno() const { return ultimo < 0; }
};

// The sum of forces and that of their moments about the top.
struct Somme {
    double forza = 0, momento = 0;

    void aggiungi(double F, double z) {
        forza += F;
        momento += F * z;
    }
};

// Something for each way: towards the excavation and away from it.
template <class T>
struct DueVersi {
    T verso{}, via{};
};

DueVersi<Fermi> fermi(const ProblemaFase& problema) {
    DueVersi<Fermi> f;
    int i = 0;
    for (const NodoFase& nodo : problema.nodi) {
        if (nodo.vincolato) {
            f.verso.aggiungi(i);
            f.via.aggiungi(i);
        }
        ++i;
    }
    for (const TiranteFase& t : problema.tiranti) {
        if (t.nodo < 0 || t.rigidezza == 0) continue;
        f.verso.aggiungi(t.nodo);
        if (t.compressione) f.via.aggiungi(t.nodo);
    }
    return f;
}

// What a side tends to.
DueVersi<double> limiti(const LatoNodo& lato) {
    if (lato.Eh != 0) return {lato.minimo, lato.massimo};
    const double ferma = lato.pressione(0);
    return {ferma, ferma};
}

// The force that a node tends to. A restraint that moves holds, whatever else there is.
DueVersi<double> limiti(const NodoFase& nodo, double costante) {
    if (nodo.vincolato) return {};
    const auto monte = limiti(nodo.monte), valle = limiti(nodo.valle);
    const double carico = nodo.acqua + costante;
    return {nodo.peso * (carico + monte.verso + valle.verso),
            nodo.peso * (carico + monte.via + valle.via)};
}

// All limit forces along a translation each way, with force and moment at the top.
DueVersi<Somme> traslazione(const ProblemaFase& problema) {
    DueVersi<Somme> somme{{problema.H, -problema.M}, {problema.H, -problema.M}};
    const auto aggiungi = [&](const DueVersi<double>& forza, double z) {
        somme.verso.aggiungi(forza.verso, z);
        somme.via.aggiungi(forza.via, z);
    };
    for (const TiranteFase& t : problema.tiranti) {
        if (t.nodo < 0 || t.rigidezza != 0) continue;
        if (problema.nodi[static_cast<std::size_t>(t.nodo)].vincolato) continue;
        const double forza = -t.volte * t.tiro(0);
        aggiungi({forza, forza}, problema.profondita(t.nodo));
    }
    int i = 0;
    for (const NodoFase& nodo : problema.nodi)
        aggiungi(limiti(nodo, problema.costante), problema.profondita(i++));
    return somme;
}

// Keeps the movement that most is missing for.
class Peggiore {
 public:
    // One movement: what all forces do along it, and its largest displacement.
    void prova(const Meccanismo& moto, double spostamentoMassimo) {
        if (moto.mancante < 0) return;
        const double misura = moto.mancante / spostamentoMassimo;
        if (peggiore_ && misura <= misura_) return;
        peggiore_ = moto;
        misura_ = misura;
    }
    [[nodiscard]] const std::optional<Meccanismo>& trovato() const { return peggiore_; }

 private:
    std::optional<Meccanismo> peggiore_;
    double misura_ = 0;
};

}  // namespace

std::optional<Meccanismo> meccanismo(const ProblemaFase& problema) {
    const auto [fermiVerso, fermiVia] = fermi(problema);
    // Above its pivot a rotation goes the other way than below, so what holds one way must lie on
    // one side of it. With two points that hold both ways no pivot is left.
    if (fermiVerso.ultimo > fermiVia.primo && fermiVia.ultimo > fermiVerso.primo)
        return std::nullopt;
    const auto [verso, via] = traslazione(problema);
    Peggiore peggiore;
    if (fermiVerso.nessuno()) peggiore.prova({true, 0, 1, verso.forza}, 1);
    if (fermiVia.nessuno()) peggiore.prova({true, 0, -1, -via.forza}, 1);

    const double lunghezza = problema.profondita(problema.n() - 1);
    Somme girate;  // what the nodes above the pivot push more away than towards
    int i = 0;
    for (const NodoFase& nodo : problema.nodi) {
        const double z = problema.profondita(i);
        if (fermiVerso.ultimo <= i && i <= fermiVia.primo)
            peggiore.prova(
                {false, z, 1, verso.momento + girate.momento - z * (verso.forza + girate.forza)},
                std::max(z, lunghezza - z));
        if (fermiVia.ultimo <= i && i <= fermiVerso.primo)
            peggiore.prova(
                {false, z, -1, z * (via.forza - girate.forza) - (via.momento - girate.momento)},
                std::max(z, lunghezza - z));
        const auto forza = limiti(nodo, problema.costante);
        girate.aggiungi(forza.via - forza.verso, z);
        ++i;
    }
    return peggiore.trovato();
}

}  // namespace korven::equilibrium
