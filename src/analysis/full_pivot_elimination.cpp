#include "analysis/full_pivot_elimination.hpp"

#include <algorithm>
#include <bit>
#include <cstdint>
#include <utility>

#include "analysis/vector_lanes.hpp"

// Why each saving leaves the bits alone
//
// Largest cell of a row. A pass changes a row only by `cell - d * pivot cell`, so its largest cell
// is worked out while the row is written, and stays known as long as the row is skipped: d = 0
// says that the column which leaves held no larger cell than 0.
//
// Skipping a row with d = 0. cell - 0 * y is the cell itself for every finite y, but for one case:
// -0 - (-0) is +0. No subtraction gives -0 unless it starts from -0, so a row that holds no -0
// never gets one: only rows marked as holding -0 are worked on whatever d is. A pivot row with a
// value that is not finite is taken from all rows (0 * inf is NaN).
//
// Column order. The last active column takes the place of the column that leaves, so the active
// cells stay contiguous. Where cells tie, the numbers of row and column decide, not the places.

namespace korven::analysis {
namespace {

/// The rows that have not been pivot, in no particular order, `quante` of them, and as many active
/// columns.
struct RigheAttive {
    int quante = 0;
    std::array<double*, capacitaSistema> celle{};
    alignas(64) std::array<double, MatriceSistema::passoRiga> massima{};  // absolute, NaN apart
    alignas(64) std::array<double, MatriceSistema::passoRiga> termine{};  // right-hand side
    alignas(64) std::array<double, MatriceSistema::passoRiga> fattore{};  // d of the running pass
    std::array<bool, capacitaSistema> zeroNegativo{};                     // some cell may be -0
    std::array<int, capacitaSistema> numero{};                            // where the row stands
    std::array<int, capacitaSistema> indice{};   // of the row that stands at a number
    std::array<int, capacitaSistema> colonna{};  // number of the column at each place
};

bool haZeroNegativo(const double* riga, int m) {
    return std::any_of(riga, riga + m, [](double v) {
        return std::bit_cast<std::uint64_t>(v) == std::uint64_t{1} << 63;
    });
}

KORVEN_CORSIE double massimoRiga(const double* riga, int m) {
    Corsie massimi{};
    int k = 0;
    for (; k + larghezza <= m; k += larghezza)
        massimi = massimo(assoluto(corsie(riga + k)), massimi);
    if (k < m) massimi = sotto(m - k) ? massimo(assoluto(corsie(riga + k)), massimi) : massimi;
    return massimoCorsie(massimi);
}

/// riga -= d * pivot over m cells; returns the largest absolute value that results.
KORVEN_CORSIE double sottrai(double* riga, const double* pivot, double d, int m) {
    Corsie massimi{};
    int k = 0;
    for (; k + larghezza <= m; k += larghezza) {
        const Corsie v = corsie(riga + k) - d * corsie(pivot + k);
        corsie(riga + k) = v;
        massimi = massimo(assoluto(v), massimi);
    }
    if (k < m) {  // the cells behind the m-th hold the factors of earlier passes
        const MascheraCorsie attive = sotto(m - k);
        const Corsie v = corsie(riga + k) - d * corsie(pivot + k);
        corsie(riga + k) = attive ? v : corsie(riga + k);
        massimi = attive ? massimo(assoluto(v), massimi) : massimi;
    }
    return massimoCorsie(massimi);
}

/// riga *= f over m cells; returns whether all results are finite.
KORVEN_CORSIE bool moltiplica(double* riga, double f, int m) {
    Corsie spia{};  // 0 * v is 0 or NaN
    int k = 0;
    for (; k + larghezza <= m; k += larghezza) {
        corsie(riga + k) *= f;
        spia += corsie(riga + k) * 0.0;
    }
    double resto = 0.0;
    for (; k < m; ++k) {
        riga[k] *= f;
        resto += riga[k] * 0.0;
    }
    for (int i = 0; i < larghezza; ++i) resto += spia[i];
    return resto == 0.0;
}

/// Copies the system into the work area and looks at each row once.
KORVEN_CORSIE void prepara(int n, MatriceSistema& A, const VettoreSistema& b, RigheAttive& r) {
    r.quante = n;
    for (int i = 0; i < n; ++i) {
        double* celle = A.rigaLavoro(i);
        std::copy_n(A.riga(i), n, celle);
        r.celle[i] = celle;
        r.termine[i] = b[i + 1];
        r.massima[i] = massimoRiga(celle, n);
        r.zeroNegativo[i] = haZeroNegativo(celle, n);
        r.numero[i] = r.indice[i] = r.colonna[i] = i;
    }
}

/// Index of the row that holds the largest cell; among equals the one that stands lowest.
KORVEN_CORSIE int trovaRiga(const RigheAttive& r) {
    const double massima = massimoRiga(r.massima.data(), r.quante);
    int trovata = -1;
    for (int i = 0; i < r.quante; ++i)
        if (r.massima[i] == massima && (trovata < 0 || r.numero[i] > r.numero[trovata]))
            trovata = i;
    return trovata;
}

/// Place of the row's largest cell; among equals the column of the largest number.
KORVEN_CORSIE int trovaPosto(const RigheAttive& r, int i) {
    const double* celle = r.celle[i];
    const double massima = r.massima[i];
    int trovato = -1;
    for (int k = 0; k < r.quante; ++k) {
        if (!(celle[k] == massima || celle[k] == -massima)) continue;
        if (trovato < 0 || r.colonna[k] > r.colonna[trovato]) trovato = k;
    }
    return trovato;
}

/// Takes the pivot row i out, after the swap that brings it to row number `arrivo`: the row that
/// stood there moves to where the pivot row was.
KORVEN_CORSIE void togliRiga(RigheAttive& r, int i, int arrivo) {
    const int spostata = r.indice[arrivo];
    std::swap(r.numero[i], r.numero[spostata]);
    r.indice[r.numero[spostata]] = spostata;
    const int ultima = --r.quante;
    r.celle[i] = r.celle[ultima];
    r.massima[i] = r.massima[ultima];
    r.termine[i] = r.termine[ultima];
    r.zeroNegativo[i] = r.zeroNegativo[ultima];
    r.numero[i] = r.numero[ultima];
    r.indice[r.numero[i]] = i;
}

/// Takes the column at a place out of every active row, leaving there the last active column and
/// in that one's place the factor d; then takes d times the pivot row from the row.
KORVEN_CORSIE void aggiornaRighe(RigheAttive& r, int posto, const double* pivot, double termine,
                                 bool finito) {
    const int m = r.quante;  // columns left, and place of the column that leaves
    for (int i = 0; i < m; ++i) {
        double* riga = r.celle[i];
        const double d = riga[posto];
        riga[posto] = riga[m];
        riga[m] = d;
        r.fattore[i] = d;
        if (d == 0.0 && finito && !r.zeroNegativo[i]) continue;
        r.massima[i] = sottrai(riga, pivot, d, m);
        if (r.zeroNegativo[i]) r.zeroNegativo[i] = haZeroNegativo(riga, m);
    }
    for (int i = 0; i < m; ++i) r.termine[i] -= r.fattore[i] * termine;
}

/// Each row knows the column order of its own pass: brings the later exchanges in.
void riordinaColonne(SistemaEliminato& s, const std::array<int, capacitaSistema>& posto) {
    for (int t = s.n - 1; t > 0; --t)
        for (int j = t - 1; j > 0; --j) std::swap(s.riga[t][posto[j]], s.riga[t][j]);
}

}  // namespace

KORVEN_PER_PROCESSORE
bool elimina(int n, MatriceSistema& A, const VettoreSistema& b, SistemaEliminato& s) {
    RigheAttive r;
    std::array<int, capacitaSistema> posto;
    prepara(n, A, b, r);
    s.n = n;
    for (int t = n - 1; t >= 0; --t) {
        const int i = trovaRiga(r);
        if (!(r.massima[i] > 0.0)) return false;
        const int k = posto[t] = trovaPosto(r, i);
        s.rigaPivot[t] = r.numero[i];
        s.colonnaPivot[t] = r.colonna[k];
        double* pivot = s.riga[t] = r.celle[i];
        const double inverso = s.inverso[t] = 1.0 / pivot[k];
        s.termine[t] = r.termine[i] * inverso;
        togliRiga(r, i, r.colonna[k]);
        r.colonna[k] = r.colonna[t];
        pivot[k] = pivot[t];
        pivot[t] = inverso;
        const bool finito = moltiplica(pivot, inverso, t);
        aggiornaRighe(r, k, pivot, s.termine[t], finito);
    }
    riordinaColonne(s, posto);
    return true;
}

}  // namespace korven::analysis
