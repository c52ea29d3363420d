#pragma once

#include <algorithm>
#include <bit>
#include <cassert>
#include <cmath>
#include <cstdint>
#include <utility>

#include "analysis/solver/system_matrix.hpp"
#include "analysis/solver/vector_lanes.hpp"

namespace korven::analysis {

/// The rows of an elimination that have not been pivot, `quante` of them in no particular order,
/// and as many active columns, which are the leftmost.
///
/// A pass changes a row by `row -= d * pivot row`. These subtractions are put off: the d of the
/// passes of one window are kept beside the row, and applied together when the row itself is
/// needed, in the order of the passes, so each cell sees the operations it would have seen at once.
///
/// `massima` bounds the absolute values of a row. A pass raises it by |d| times the largest cell of
/// the pivot row. Because rounding is monotone, the sum as rounded is no less than any cell as
/// rounded; where nothing is put off, the bound is the largest cell.
struct RigheAttive {
    static constexpr int finestraMassima = 8;
    static constexpr int pocheRighe = 32;  // fewer are done at once: keeping the d costs more
    using Colonna = double[MatriceSistema::passoRiga];

    int quante = 0;
    double* celle[capacitaSistema];
    // Numbers of the rows, and of the columns at each place; doubles, searched with the cells.
    alignas(64) Colonna numero;
    alignas(64) Colonna colonna;
    int indice[capacitaSistema];         // of the row of a number
    int posto[capacitaSistema];          // of the column of a number
    bool zeroNegativo[capacitaSistema];  // some cell is -0
    bool zeriNegativi = false;           // in some row
    alignas(64) Colonna massima;
    alignas(64) Colonna termine;  // right-hand side
    alignas(64) Colonna fattore;  // d of the running pass

    int finestra = 0;  // passes put off
    double* pivot[finestraMassima];
    alignas(64) Colonna sospeso[finestraMassima];  // their d
    alignas(64) Colonna inSospeso;                 // sum of the |d| put off
};

/// Largest absolute value of m cells, NaN apart; 0 when there is none.
template <int L>
KORVEN_CORSIE double cellaMassima(const double* celle, int m) {
    Corsie<L> massimi{};
    int k = 0;
    for (; k + L <= m; k += L) massimi = massimo(assoluto(corsie<L>(celle + k)), massimi);
    if (k < m)
        massimi = sotto<L>(m - k) ? massimo(assoluto(corsie<L>(celle + k)), massimi) : massimi;
    return massimoCorsie<L>(massimi);
}

inline bool haZeroNegativo(const double* riga, int m) {
    return std::any_of(riga, riga + m, [](double v) {
        return std::bit_cast<std::uint64_t>(v) == std::uint64_t{1} << 63;
    });
}

/// V vectors of cells from column k on, of R rows, through `passi` passes; the vectors' largest
/// absolute values go into `massimi`. With `attive` only those lanes change: the cells after the
/// last active column hold the factors of earlier passes.
template <int L, int R, int V, bool parziale>
KORVEN_CORSIE void attraversaPassi(double* const (&riga)[R], double* const* pivot,
                                   const double (*d)[R], int passi, int k, Corsie<L> (&massimi)[R],
                                   const MascheraCorsie<L>& attive) {
    Corsie<L> c[R][V];
    for (int q = 0; q < R; ++q)
        for (int v = 0; v < V; ++v) c[q][v] = corsie<L>(riga[q] + k + v * L);
    for (int w = 0; w < passi; ++w)
        for (int v = 0; v < V; ++v) {
            const Corsie<L> p = corsie<L>(pivot[w] + k + v * L);
            for (int q = 0; q < R; ++q) c[q][v] -= d[w][q] * p;
        }
    for (int q = 0; q < R; ++q)
        for (int v = 0; v < V; ++v) {
            Corsie<L>& cella = corsie<L>(riga[q] + k + v * L);
            const Corsie<L> piuGrande = massimo(assoluto(c[q][v]), massimi[q]);
            cella = parziale ? (attive ? c[q][v] : cella) : c[q][v];
            massimi[q] = parziale ? (attive ? piuGrande : massimi[q]) : piuGrande;
        }
}

/// Applies `passi` passes to R rows and finds their largest cells.
template <int L, int R>
KORVEN_CORSIE void applicaPassi(RigheAttive& r, const int* quali, double* const* pivot,
                                const double (*d)[R], int passi) {
    constexpr int V = 4 / R;
    double* riga[R];
    Corsie<L> massimi[R];
    for (int q = 0; q < R; ++q) {
        riga[q] = r.celle[quali[q]];
        massimi[q] = Corsie<L>{};
    }
    const MascheraCorsie<L> attive = sotto<L>(r.quante % L);
    int k = 0;
    for (; k + V * L <= r.quante; k += V * L)
        attraversaPassi<L, R, V, false>(riga, pivot, d, passi, k, massimi, attive);
    if constexpr (V > 1)
        for (; k + L <= r.quante; k += L)
            attraversaPassi<L, R, 1, false>(riga, pivot, d, passi, k, massimi, attive);
    if (k < r.quante) attraversaPassi<L, R, 1, true>(riga, pivot, d, passi, k, massimi, attive);
    for (int q = 0; q < R; ++q) r.massima[quali[q]] = massimoCorsie<L>(massimi[q]);
}

/// Applies to R rows what was put off; their bounds are the largest cells after that. A pass whose
/// d are all 0 is left out: none of these rows holds -0, and their pivot rows are finite.
template <int L, int R>
KORVEN_CORSIE void aggiorna(RigheAttive& r, const int* quali) {
    double* pivot[RigheAttive::finestraMassima];
    double d[RigheAttive::finestraMassima][R];
    int passi = 0;
    for (int w = 0; w < r.finestra; ++w) {
        bool serve = false;
        for (int q = 0; q < R; ++q) {
            double& sospeso = r.sospeso[w][quali[q]];
            d[passi][q] = sospeso;
            serve |= sospeso != 0.0;
            sospeso = 0.0;
        }
        pivot[passi] = r.pivot[w];
        passi += serve;
    }
    for (int q = 0; q < R; ++q) r.inSospeso[quali[q]] = 0.0;
    applicaPassi<L, R>(r, quali, pivot, d, passi);
}

/// Applies everything that was put off and opens a new window.
template <int L>
KORVEN_CORSIE void aggiornaTutte(RigheAttive& r) {
    constexpr int insieme = 4;
    int quali[insieme], pronte = 0;
    for (int i = 0; i < r.quante; ++i) {
        if (r.inSospeso[i] == 0.0) continue;
        quali[pronte++] = i;
        if (pronte < insieme) continue;
        aggiorna<L, insieme>(r, quali);
        pronte = 0;
    }
    for (int q = 0; q < pronte; ++q) aggiorna<L, 1>(r, quali + q);
    r.finestra = 0;
}

/// Applies the running pass to row i at once; nothing may be put off for it.
template <int L>
KORVEN_CORSIE void applicaSubito(RigheAttive& r, int i, double* pivot) {
    const double d[1][1] = {{r.fattore[i]}};
    applicaPassi<L, 1>(r, &i, &pivot, d, 1);
}

/// Puts the running pass off; rows that hold -0 take it at once.
/// @pre the pivot row is finite, which is asserted of its largest value
/// @param massimoPivot  that value, without its sign
template <int L>
KORVEN_CORSIE void rimanda(RigheAttive& r, double* pivot, double massimoPivot) {
    assert(std::isfinite(massimoPivot));
    RigheAttive::Colonna& sospeso = r.sospeso[r.finestra];
    r.pivot[r.finestra++] = pivot;
    for (int i = 0; i < r.quante; ++i) {
        const double d = std::abs(r.fattore[i]);
        sospeso[i] = r.fattore[i];
        r.massima[i] += d * massimoPivot;
        r.inSospeso[i] += d;
    }
    if (r.zeriNegativi) {
        r.zeriNegativi = false;
        for (int i = 0; i < r.quante; ++i) {
            if (!r.zeroNegativo[i]) continue;
            sospeso[i] = r.inSospeso[i] = 0.0;
            applicaSubito<L>(r, i, pivot);
            r.zeroNegativo[i] = haZeroNegativo(r.celle[i], r.quante);
            r.zeriNegativi |= r.zeroNegativo[i];
        }
    }
    if (r.finestra == RigheAttive::finestraMassima || r.quante < RigheAttive::pocheRighe)
        aggiornaTutte<L>(r);
}

/// Of m numbers the largest whose value has the absolute value `cercato`, -1 if there is none.
template <int L>
KORVEN_CORSIE int numeroMaggiore(const double* valori, const double* numeri, double cercato,
                                 int m) {
    const Corsie<L> nessuno = Corsie<L>{} - 1.0;
    Corsie<L> trovati = nessuno;
    int k = 0;
    for (; k + L <= m; k += L) {
        const Corsie<L> n =
            assoluto(corsie<L>(valori + k)) == cercato ? corsie<L>(numeri + k) : nessuno;
        trovati = massimo(n, trovati);
    }
    if (k < m) {
        Corsie<L> n = assoluto(corsie<L>(valori + k)) == cercato ? corsie<L>(numeri + k) : nessuno;
        n = sotto<L>(m - k) ? n : nessuno;
        trovati = massimo(n, trovati);
    }
    return static_cast<int>(massimoCorsie<L>(trovati));
}

/// Index of the row that holds the largest cell; among equals the one of the largest number. Brings
/// rows up to date until the largest bound is a cell.
template <int L>
KORVEN_CORSIE int trovaRiga(RigheAttive& r) {
    for (;;) {
        const double massima = cellaMassima<L>(r.massima, r.quante);
        const int i = r.indice[numeroMaggiore<L>(r.massima, r.numero, massima, r.quante)];
        if (r.inSospeso[i] == 0.0) return i;
        aggiorna<L, 1>(r, &i);
    }
}

/// Number of the column of the row's largest cell; among equals the largest.
template <int L>
KORVEN_CORSIE int trovaColonna(const RigheAttive& r, int i) {
    return numeroMaggiore<L>(r.celle[i], r.colonna, r.massima[i], r.quante);
}

/// Takes the pivot row i out, after the swap that brings it to row number `arrivo`: the row found
/// there moves to where the pivot row was.
KORVEN_CORSIE void togliRiga(RigheAttive& r, int i, int arrivo) {
    const int spostata = r.indice[arrivo];
    std::swap(r.numero[i], r.numero[spostata]);
    r.indice[static_cast<int>(r.numero[spostata])] = spostata;
    const int ultima = --r.quante;
    // Filled for all rows at the start, which the analyzer does not follow.
    r.celle[i] = r.celle[ultima];  // NOLINT(clang-analyzer-core.uninitialized.Assign)
    r.massima[i] = r.massima[ultima];
    r.termine[i] = r.termine[ultima];
    r.zeroNegativo[i] = r.zeroNegativo[ultima];
    r.inSospeso[i] = r.inSospeso[ultima];
    for (int w = 0; w < r.finestra; ++w) r.sospeso[w][i] = r.sospeso[w][ultima];
    r.numero[i] = r.numero[ultima];
    r.indice[static_cast<int>(r.numero[i])] = i;
}

/// Takes the column at a place out of all rows, leaving there the last active column, and finds d,
/// the cell of each row in the column taken out.
/// @param conserva  whether d is wanted in the row, in the place that the last column left
KORVEN_CORSIE void togliColonna(RigheAttive& r, int posto, bool conserva) {
    const int m = r.quante;  // columns left, and place of the one that was last
    for (int i = 0; i < m; ++i) {
        double* riga = r.celle[i];
        r.fattore[i] = riga[posto];
        riga[posto] = riga[m];
    }
    RigheAttive::Colonna letta;
    if (r.zeriNegativi) std::copy_n(r.fattore, m, letta);
    for (int w = 0; w < r.finestra; ++w) {
        const double p = r.pivot[w][posto];
        for (int i = 0; i < m; ++i) r.fattore[i] -= r.sospeso[w][i] * p;
        std::swap(r.pivot[w][posto], r.pivot[w][m]);
    }
    // Nothing is put off for a row that holds -0, and -0 less 0 may be +0.
    for (int i = 0; i < m && r.zeriNegativi; ++i)
        if (r.zeroNegativo[i]) r.fattore[i] = letta[i];
    r.colonna[posto] = r.colonna[m];
    r.posto[static_cast<int>(r.colonna[posto])] = posto;
    if (!conserva) return;
    for (int i = 0; i < m; ++i) r.celle[i][m] = r.fattore[i];
}

}  // namespace korven::analysis
