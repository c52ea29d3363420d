#pragma once

#include <vector>

#include "analysis/solver/linear_system.hpp"

namespace korven::test {

/// What one iteration knows of the wall when it writes down its system. Nodes count from 1; the
/// vectors have room for one node beyond the toe, the ghost node of a fixed toe.
struct PareteDiProva {
    int nodi = 51;
    double passo = 0.4;                                      // m
    std::vector<double> rigidezza, pressione, coefficiente;  // EJ, p, k at each node
    double forzaTesta = 0.0, momentoTesta = 0.0;
    bool cernieraTesta = false, bloccoPiede = false, incastroPiede = false;

    explicit PareteDiProva(int quantiNodi)
        : nodi(quantiNodi),
          rigidezza(static_cast<std::size_t>(quantiNodi) + 2),
          pressione(rigidezza.size()),
          coefficiente(rigidezza.size()) {}
    [[nodiscard]] int incognite() const { return 2 * (nodi + (incastroPiede ? 1 : 0)); }
};

/// Writes the system of a wall in finite differences as an iteration of the analysis does: clears
/// rows and columns 1 to 2 * nodi, lays the restraints over the coefficients, assigns the cells of
/// the shear and moment balance of every segment and of the whole wall. With a fixed toe the last
/// two rows and columns keep what the solve before left there in every cell not named.
///
/// Written for the tests on its own, from the table of the equations, so that the solver is tried
/// on the shape it is made for.
inline void assemblaDiProva(const PareteDiProva& w, analysis::MatriceSistema& A,
                            analysis::VettoreSistema& b) {
    A.azzera(2 * w.nodi);
    for (int i = 1; i <= 2 * w.nodi; ++i) b[i] = 0.0;

    constexpr double mollaVincolo = -1e11;
    const int n = w.incognite() / 2, N = n - 1;
    std::vector<double> kNodo = w.coefficiente;
    const auto k = [&](int i) -> double& { return kNodo[static_cast<std::size_t>(i)]; };
    const auto p = [&](int i) { return w.pressione[static_cast<std::size_t>(i)]; };
    if (w.cernieraTesta) k(1) = mollaVincolo;
    if (w.bloccoPiede || w.incastroPiede) k(w.nodi) = mollaVincolo;
    if (w.incastroPiede) k(n) = mollaVincolo;
    const double h = w.passo;

    for (int j = 1; j <= N; ++j) {  // shear balance of the segments
        A(j, j) = -1.0;
        A(j, j + 1) = 1.0;
        A(j, n + j) = k(j) * h / 2;
        A(j, n + j + 1) = k(j + 1) * h / 2;
        b[j] = -p(j) * h / 2 - p(j + 1) * h / 2;
    }
    b[1] += w.forzaTesta;

    for (int j = 1; j <= N; ++j) {  // moment balance of the segments
        const double e = w.rigidezza[static_cast<std::size_t>(j)] / (h * h);
        const int riga = N + j, y = n + j;
        A(riga, j) = -h;
        if (j == 1) {
            A(riga, y) = -e + (k(1) * h / 2) * h;
            A(riga, y + 1) = 2 * e;
            A(riga, y + 2) = -e;
        } else {
            A(riga, y - 1) = e;
            A(riga, y) = (j < N ? -3 : -2) * e + (k(j) * h / 2) * h;
            A(riga, y + 1) = (j < N ? 3 : 1) * e;
            if (j < N) A(riga, y + 2) = -e;
        }
        b[riga] = -(p(j) * h / 2) * h;
    }
    b[N + 1] += -w.momentoTesta + w.forzaTesta * h;

    double spinta = 0.0, momento = 0.0;  // balance of the whole wall
    for (int i = 1; i <= n; ++i) {
        const double peso = i == 1 || i == n ? 1.0 : 2.0;
        A(2 * N + 1, n + i) = k(i) * peso * h / 2;
        A(2 * N + 2, n + i) = (k(i) * peso * h / 2) * (-(i - 1) * h);
        spinta += -p(i) * peso * h / 2;
        momento += (p(i) * peso * h / 2) * (i - 1) * h;
    }
    b[2 * N + 1] = spinta - w.forzaTesta;
    b[2 * N + 2] = momento - w.momentoTesta;
}

}  // namespace korven::test
