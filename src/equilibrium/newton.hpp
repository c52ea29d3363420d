#pragma once

#include <vector>

#include "equilibrium/band_system.hpp"
#include "equilibrium/nodal_forces.hpp"
#include "equilibrium/stage_problem.hpp"

namespace korven::equilibrium {

/// Largest change of a node between two steps at which the displacements count as found [m].
inline constexpr double tolleranzaPasso = 1e-11;

enum class EsitoNewton {
    trovato,
    nessunNumero,  ///< a number grew beyond all numbers
    senzaMisura,   ///< a displacement beyond `massimoSpostamentoRelativo` lengths of the wall
    nonRaggiunto,  ///< `massimoPassi` were not enough
};

struct SoluzioneNewton {
    EsitoNewton esito = EsitoNewton::trovato;
    int passi = 0;
};

/// More steps than any wall takes: each finds the zero of the residual along it, and there are only
/// so many combinations of states.
inline constexpr int massimoPassi = 500;

/// Finds the displacements at which the forces on all nodes are in balance: Newton's method on the
/// gradient of the energy, whose tangent is a symmetric band. Along a step the residual is
/// monotone; where the whole step leaves more than a part of it, its zero is searched for, beyond
/// the step too. Where the tangent is singular, which on the way proves nothing, a small multiple
/// of the weights is added. It ends when no node changes by more than `tolleranzaPasso`, or when
/// the same linear system, solved once more, changes them by no less than before: what is left is
/// rounding. Source: Boyd & Vandenberghe, Convex Optimization (2004), chapter 9; for the tangent of
/// a function that is linear in pieces, Qi & Sun, A nonsmooth version of Newton's method (1993)
/// (neither looked up).
///
/// One object serves one number of nodes; after its construction nothing is allocated.
class Newton {
 public:
    explicit Newton(int n);

    /// @param y  displacements to begin with, and those found [m]; node 1 is element 0
    /// @pre every rigid movement is held (`meccanismo`) and nothing is unstable
    [[nodiscard]] SoluzioneNewton risolvi(const ProblemaFase& problema, std::vector<double>& y);

    /// Forces without balance at displacements y, node by node [t].
    void residuo(const ProblemaFase& problema, const std::vector<double>& y,
                 std::vector<double>& r);

 private:
    struct Punto {
        std::vector<double> y, r, k;
        double lavoro = 0;  ///< of r along the step that led here
    };
    /// The unknown step, and what says how far to go along it.
    struct Passo {
        double lavoro = 0;   ///< of the residual at its begin
        double massimo = 0;  ///< largest change of a node
    };
    [[nodiscard]] bool fattorizza(const ProblemaFase& problema);
    [[nodiscard]] Passo direzione();
    double cerca(const Passo& passo);
    double lavoroIn(double t);
    void avanza(const std::vector<double>& da, double t, std::vector<double>& a) const;
    static bool numeri(const Punto& punto);
    EsitoNewton itera(const ProblemaFase& problema, int& passi);

    ForzeNodi forze_;
    SistemaBanda banda_;
    Punto qui_, prova_;
    std::vector<double> d_, kFattorizzato_, kSpinto_;
    bool spinto_ = false;
};

}  // namespace korven::equilibrium
