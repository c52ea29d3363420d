#include "analysis/solver/gauss_jordan_completion.hpp"

#include <algorithm>
#include <utility>

#include "analysis/solver/vector_lanes.hpp"

// Pass by pass the plain algorithm takes, from every row but the pivot's,
//
//     row -= d * pivot row        d: the row's cell in the pivot column, which starts anew from 0
//
// Seen from one cell, that is a chain of subtractions in the order of the passes. Here the chains
// are run row by row and, within a row, for a group of columns at a time; the chain of a cell never
// changes its order, and no link is left out, be d zero or not. With the places of SistemaEliminato
// passes run from high places to low:
//
//     left of the diagonal   a cell waits to become the d of its pass: cell(t,k) takes the passes
//                            t > j > k. The pivot row of a pass enters as it was then, so row t
//                            must be completed before the rows of lower places change.
//     right of the diagonal  an inverse cell is born in the pass of its column as 0 - d / pivot
//                            and takes all later ones: k > j > t before its row becomes pivot
//                            (the d of these passes are kept in the same cells), t > j after.

namespace korven::analysis {
namespace {

constexpr int blocco = 8;  // rows that go through the passes together, to share each pivot row

KORVEN_CORSIE void sottraiCelle(double* riga, const double* pivot, double d, int da, int a) {
    for (int k = da; k < a; ++k) riga[k] -= d * pivot[k];
}

/// Left of the diagonal: columns k0 to k0 + L - 1 of the rows t0 to t0 + R - 1 through the passes
/// below the place t0.
template <int L, int R>
KORVEN_CORSIE void completaColonneSinistra(SistemaEliminato& s, int t0, int k0) {
    Corsie<L> c[R];
    const double* riga[R];
    for (int i = 0; i < R; ++i) {
        riga[i] = s.riga[t0 + i];
        c[i] = corsie<L>(riga[i] + k0);
    }
    for (int j = t0 - 1; j >= k0 + L; --j) {
        const Corsie<L> pivot = corsie<L>(s.riga[j] + k0);
        for (int i = 0; i < R; ++i) c[i] -= riga[i][j] * pivot;
    }
#pragma GCC unroll 4
    for (int q = L - 1; q > 0; --q) {
        const int j = k0 + q;
        if (j >= t0) continue;
        const MascheraCorsie<L> prima = sotto<L>(q);
        const Corsie<L> pivot = corsie<L>(s.riga[j] + k0);
        for (int i = 0; i < R; ++i) c[i] = prima ? c[i] - c[i][q] * pivot : c[i];
    }
    for (int i = 0; i < R; ++i) corsie<L>(s.riga[t0 + i] + k0) = c[i];
}

template <int L, int R>
KORVEN_CORSIE void completaBloccoSinistra(SistemaEliminato& s, int t0) {
    for (int t = t0 + R - 1; t > t0; --t)
        for (int j = t - 1; j >= t0; --j) sottraiCelle(s.riga[t], s.riga[j], s.riga[t][j], 0, j);
    for (int k0 = (t0 - 1) / L * L; k0 >= 0 && t0 > 0; k0 -= L)
        completaColonneSinistra<L, R>(s, t0, k0);
}

/// After this the cells left of the diagonal are the d of the passes after the row's own.
template <int L>
KORVEN_CORSIE void completaSinistra(SistemaEliminato& s) {
    int t0 = s.n;
    for (; t0 >= blocco; t0 -= blocco) completaBloccoSinistra<L, blocco>(s, t0 - blocco);
    while (t0-- > 0) completaBloccoSinistra<L, 1>(s, t0);
}

/// The right-hand side has no cell of its own in a pass: it only takes d times the pivot's entry.
KORVEN_CORSIE void completaTermini(const SistemaEliminato& s, VettoreSistema& x) {
    for (int t0 = 0; t0 < s.n; t0 += blocco) {
        double v[blocco];
        const int righe = std::min(blocco, s.n - t0);
        for (int i = 0; i < righe; ++i) {
            const int t = t0 + i;
            v[i] = s.termine[t];
            for (int j = t - 1; j >= t0; --j) v[i] -= s.riga[t][j] * s.termine[j];
        }
        for (int j = t0 - 1; j >= 0; --j)
            for (int i = 0; i < righe; ++i) v[i] -= s.riga[t0 + i][j] * s.termine[j];
        for (int i = 0; i < righe; ++i) x[s.colonnaPivot[t0 + i] + 1] = v[i];
    }
}

/// Right of the diagonal, passes before the row's own: columns k0 to k0 + L - 1 of the rows t0 to
/// t0 + R - 1 through the passes above the place t0 + R - 1.
template <int L, int R>
KORVEN_CORSIE void avviaColonneDestra(SistemaEliminato& s, int t0, int k0) {
    Corsie<L> c[R];
    const double* riga[R];
    const int fine = t0 + R;  // lowest place of these passes
    for (int i = 0; i < R; ++i) {
        riga[i] = s.riga[t0 + i];
        c[i] = corsie<L>(riga[i] + k0);
    }
#pragma GCC unroll 4
    for (int q = L - 1; q >= 0; --q) {
        const int j = k0 + q;
        if (j >= s.n || j < fine) continue;
        const MascheraCorsie<L> prima = sotto<L>(q);
        const Corsie<L> pivot = corsie<L>(s.riga[j] + k0);
        for (int i = 0; i < R; ++i) {
            const double d = c[i][q];
            const Corsie<L> passata = c[i] - d * pivot;
            c[i] = prima ? c[i] : passata;
            c[i][q] = 0.0 - d * s.inverso[j];
        }
    }
    for (int j = k0 - 1; j >= fine; --j) {
        const Corsie<L> pivot = corsie<L>(s.riga[j] + k0);
        for (int i = 0; i < R; ++i) c[i] -= riga[i][j] * pivot;
    }
    for (int i = 0; i < R; ++i) corsie<L>(s.riga[t0 + i] + k0) = c[i];
}

/// One pass, of the place j, on the cells right of place j of a row; the row's cell j holds d.
KORVEN_CORSIE void passoDestra(const SistemaEliminato& s, double* riga, int j) {
    const double d = riga[j];
    riga[j] = 0.0 - d * s.inverso[j];
    sottraiCelle(riga, s.riga[j], d, j + 1, s.n);
}

template <int L, int R>
KORVEN_CORSIE void avviaBloccoDestra(SistemaEliminato& s, int t0) {
    // From the right: a cell is the d of its pass for all columns right of it.
    for (int k0 = (s.n - 1) / L * L; k0 + L > t0 + R && k0 >= 0; k0 -= L)
        avviaColonneDestra<L, R>(s, t0, k0);
    for (int t = t0 + R - 1; t >= t0; --t) {
        for (int j = t0 + R - 1; j > t; --j) passoDestra(s, s.riga[t], j);
        for (int k = t + 1; k < s.n; ++k) s.riga[t][k] *= s.inverso[t];
    }
}

/// After this the cells from the diagonal to the right are the row's part of the inverse as it was
/// when the row had just been pivot.
template <int L>
KORVEN_CORSIE void avviaDestra(SistemaEliminato& s) {
    int t0 = s.n;
    for (; t0 >= blocco; t0 -= blocco) avviaBloccoDestra<L, blocco>(s, t0 - blocco);
    while (t0-- > 0) avviaBloccoDestra<L, 1>(s, t0);
}

/// Place of each column of the inverse once the row swaps have been undone on the columns.
void postiInversa(const SistemaEliminato& s, int* posto) {
    int postoColonna[capacitaSistema];
    for (int t = 0; t < s.n; ++t) postoColonna[s.colonnaPivot[t]] = t;
    std::copy_n(postoColonna, s.n, posto);
    for (int t = 0; t < s.n; ++t) std::swap(posto[s.rigaPivot[t]], posto[s.colonnaPivot[t]]);
}

/// Column of the inverse at place v, for all rows: cell(t, v) takes the passes after its row's own.
KORVEN_CORSIE void scriviColonna(const SistemaEliminato& s, int v, int colonna, MatriceSistema& A) {
    double pivot[capacitaSistema];
    for (int j = 0; j <= v; ++j) pivot[j] = s.riga[j][v];
    for (int t = 0; t < s.n; ++t) {
        const double* riga = s.riga[t];
        double c = t > v ? 0.0 - riga[v] * pivot[v] : pivot[t];
        for (int j = std::min(t, v) - 1; j >= 0; --j) c -= riga[j] * pivot[j];
        A(s.colonnaPivot[t] + 1, colonna + 1) = c;
    }
}

template <int L>
KORVEN_CORSIE void completaCon(SistemaEliminato& s, VettoreSistema& x, MatriceSistema& A,
                               int bordo) {
    const int primaVisibile = s.n - bordo;
    completaSinistra<L>(s);
    completaTermini(s, x);
    if (bordo == 0) return;

    avviaDestra<L>(s);
    int posto[capacitaSistema];
    postiInversa(s, posto);
    // The columns, and the rows from the highest place down, while lower rows are still as in their
    // own pass.
    for (int f = primaVisibile; f < s.n && bordo < s.n; ++f) scriviColonna(s, posto[f], f, A);
    for (int t = s.n - 1; t >= 0; --t) {
        if (s.colonnaPivot[t] < primaVisibile) continue;
        for (int j = t - 1; j >= 0; --j) passoDestra(s, s.riga[t], j);
        double* inversa = A.riga(s.colonnaPivot[t]);
        for (int f = 0; f < s.n; ++f) inversa[f] = s.riga[t][posto[f]];
    }
}

KORVEN_REGISTRI_LARGHI
void completaLarga(SistemaEliminato& s, VettoreSistema& x, MatriceSistema& A, int bordo) {
    completaCon<4>(s, x, A, bordo);
}

}  // namespace

void completa(SistemaEliminato& s, VettoreSistema& x, MatriceSistema& A, int bordo, bool larghi) {
    if (larghi)
        completaLarga(s, x, A, bordo);
    else
        completaCon<2>(s, x, A, bordo);
}

}  // namespace korven::analysis
