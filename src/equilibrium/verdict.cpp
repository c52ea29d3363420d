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

}  // namespace

std::optional<Meccanismo> meccanismo(const ProblemaFase& problema) {
    // What the nodes above and below a point do when they move towards the excavation and away.
    Somme sopraVia, sopraVerso, sottoVia, sottoVerso;
    for (int i = 0; i < problema.n(); ++i) {
        sottoVerso.aggiungi(limite(problema, i, 1));
        sottoVia.aggiungi(limite(problema, i, -1));
    }
    Peggiore peggiore;
    peggiore.prova({true, 0, 1, sottoVerso.forza + problema.H}, sottoVerso.trattenuti, 1);
    peggiore.prova({true, 0, -1, -(sottoVia.forza + problema.H)}, sottoVia.trattenuti, 1);

    const double lunghezza = problema.profondita(problema.n() - 1);
    const auto rotazione = [&](int verso, double z, const Somme& sopra, const Somme& sotto) {
        const double forza = sopra.forza + sotto.forza + problema.H;
        const double momento = sopra.momento + sotto.momento - problema.M;
        peggiore.prova({false, z, verso, verso * (momento - z * forza)},
                       sopra.trattenuti + sotto.trattenuti, std::max(z, lunghezza - z));
    };
    for (int i = 0; i < problema.n(); ++i) {
        const double z = problema.profondita(i);
        const Somme nodoVerso = limite(problema, i, 1), nodoVia = limite(problema, i, -1);
        sottoVerso.togli(nodoVerso);
        sottoVia.togli(nodoVia);
        rotazione(1, z, sopraVia, sottoVerso);
        rotazione(-1, z, sopraVerso, sottoVia);
        sopraVerso.aggiungi(nodoVerso);
        sopraVia.aggiungi(nodoVia);
    }
    return peggiore.trovato();
}

}  // namespace korven::equilibrium
