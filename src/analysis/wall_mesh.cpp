#include "analysis/wall_mesh.hpp"

#include <cassert>
#include <cmath>

namespace korven::analysis {

namespace {

void equilibrioTagli(const Parete& parete, MatriceSistema& A, VettoreNodi& b) {
    const int n = parete.n;
    const double h = parete.h;
    const VettoreNodi &p = *parete.p, &k = *parete.k;
    for (int j = 1; j <= n - 1; ++j) {
        A(j, j) = -1;
        A(j, j + 1) = 1;
        A(j, n + j) = k[j] * h / 2;
        A(j, n + j + 1) = k[j + 1] * h / 2;
        b[j] = -p[j] * h / 2 - p[j + 1] * h / 2;
    }
    b[1] += parete.H;
}

void equilibrioMomenti(const Parete& parete, MatriceSistema& A, VettoreNodi& b) {
    const int n = parete.n;
    const int N = n - 1;
    const double h = parete.h;
    const VettoreNodi &E = *parete.E, &p = *parete.p, &k = *parete.k;
    const double h2 = h * h;

    A(N + 1, 1) = -h;
    A(N + 1, n + 1) = -E[1] / h2 + (k[1] * h / 2) * h;
    A(N + 1, n + 2) = 2 * E[1] / h2;
    A(N + 1, n + 3) = -E[1] / h2;
    b[N + 1] = -(p[1] * h / 2) * h - parete.M + parete.H * h;

    for (int j = 2; j < N; ++j) {
        A(N + j, j) = -h;
        A(N + j, n + j - 1) = E[j] / h2;
        A(N + j, n + j) = -3 * E[j] / h2 + (k[j] * h / 2) * h;
        A(N + j, n + j + 1) = 3 * E[j] / h2;
        A(N + j, n + j + 2) = -E[j] / h2;
        b[N + j] = -(p[j] * h / 2) * h;
    }

    A(N + N, N) = -h;
    A(N + N, n + N - 1) = E[N] / h2;
    A(N + N, n + N) = -2 * E[N] / h2 + (k[N] * h / 2) * h;
    A(N + N, n + N + 1) = E[N] / h2;
    b[N + N] = -(p[N] * h / 2) * h;
}

void equilibrioGlobale(const Parete& parete, MatriceSistema& A, VettoreNodi& b) {
    const int n = parete.n;
    const int N = n - 1;
    const double h = parete.h;
    const VettoreNodi &p = *parete.p, &k = *parete.k;
    double forze = 0;
    double momenti = 0;
    for (int i = 1; i <= n; ++i) {
        const double w = i == 1 || i == n ? 1 : 2;  // a node at an end counts for half a segment
        A(2 * N + 1, n + i) = k[i] * w * h / 2;
        A(2 * N + 2, n + i) = (k[i] * w * h / 2) * -zNodo(i, h);
        forze += -p[i] * w * h / 2;
        momenti += (p[i] * w * h / 2) * (i - 1) * h;
    }
    b[2 * N + 1] = forze - parete.H;
    b[2 * N + 2] = momenti - parete.M;  // the force at the top has no arm
}

}  // namespace

// Depths far outside the wall all lead to nodes that do not exist.
static constexpr int primaDiTutti = -1;
static constexpr int dopoTutti = 1000000;

int nodoTirante(double profondita, double passoNodi) {
    const double nodo = 1 + std::trunc(profondita / passoNodi + 0.5);
    if (!(nodo > primaDiTutti)) return primaDiTutti;  // true for NaN as well
    return nodo < dopoTutti ? static_cast<int>(nodo) : dopoTutti;
}

void assembla(const Parete& parete, MatriceSistema& A, VettoreNodi& b) {
    assert(parete.n >= 4);
    equilibrioTagli(parete, A, b);
    equilibrioMomenti(parete, A, b);
    equilibrioGlobale(parete, A, b);
}

}  // namespace korven::analysis
