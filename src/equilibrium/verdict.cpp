#include "equilibrium/verdict.hpp"

#include <algorithm>

namespace korven::equilibrium {

namespace {

// What the nodes on one side of a point do to a movement: sums of limit forces and of their moments
// about the top, and how many of them hold without bound.
struct Somme {
    double forza = 0, momento = 0;
    int trattenuti = 0;

    void aggiungi(const Somme& s) {
        forza += s.forza;
        momento += s.momento;
        trattenuti += s.trattenuti;
    }
    void togli(const Somme& s) {
        forza -= s.forza;
        momento -= s.momento;
        trattenuti -= s.trattenuti;
    }
};

// The anchors of a node that moves without end: a force, or a hold.
void tiranti(const ProblemaFase& problema, int i, int verso, Somme& nodo) {
    for (const TiranteFase& t : problema.tiranti) {
        if (t.nodo != i) continue;
        if (t.rigidezza == 0)
            nodo.forza -= t.volte * t.tiro(0);
        else if (verso > 0 || t.compressione)
            ++nodo.trattenuti;
    }
}

Somme limite(const ProblemaFase& problema, int i, int verso) {
    const NodoFase& nodo = problema.nodi[static_cast<std::size_t>(i)];
    Somme s;
    if (nodo.vincolato) {
        s.trattenuti = 1;
        return s;
    }
    s.forza = nodo.peso * (nodo.acqua + problema.costante + nodo.monte.limite(verso) +
                           nodo.valle.limite(verso));
    tiranti(problema, i, verso, s);
    s.momento = s.forza * problema.profondita(i);
    return s;
}

Somme tutti(const ProblemaFase& problema, int verso) {
    Somme somme;
    for (int i = 0; i < problema.n(); ++i) somme.aggiungi(limite(problema, i, verso));
    return somme;
}

// Keeps the movement that most is missing for.
class Peggiore {
 public:
    // One movement: what all forces do along it, and its largest displacement.
    void prova(const Meccanismo& moto, int trattenuti, double spostamentoMassimo) {
        if (trattenuti > 0 || moto.mancante < 0) return;
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

void traslazioni(const ProblemaFase& problema, Peggiore& peggiore) {
    for (const int verso : {1, -1}) {
        const Somme s = tutti(problema, verso);
        peggiore.prova({true, 0, verso, verso * (s.forza + problema.H)}, s.trattenuti, 1);
    }
}

// The nodes above the point move one way and those below the other, so the sums of both ways are
// kept for both parts.
void rotazioni(const ProblemaFase& problema, int verso, Peggiore& peggiore) {
    Somme sopra;                           // they move against `verso`
    Somme sotto = tutti(problema, verso);  // they move with it
    const double lunghezza = problema.profondita(problema.n() - 1);
    for (int i = 0; i < problema.n(); ++i) {
        sotto.togli(limite(problema, i, verso));
        const double z = problema.profondita(i);
        const double forza = sopra.forza + sotto.forza + problema.H;
        const double momento = sopra.momento + sotto.momento - problema.M;
        peggiore.prova({false, z, verso, verso * (momento - z * forza)},
                       sopra.trattenuti + sotto.trattenuti, std::max(z, lunghezza - z));
        sopra.aggiungi(limite(problema, i, -verso));
    }
}

}  // namespace

std::optional<Meccanismo> meccanismo(const ProblemaFase& problema) {
    Peggiore peggiore;
    traslazioni(problema, peggiore);
    for (const int verso : {1, -1}) rotazioni(problema, verso, peggiore);
    return peggiore.trovato();
}

}  // namespace korven::equilibrium
