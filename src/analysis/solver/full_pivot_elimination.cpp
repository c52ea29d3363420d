#include "analysis/solver/full_pivot_elimination.hpp"

#include <algorithm>
#include <cmath>
#include <utility>

#include "analysis/solver/active_rows.hpp"
#include "analysis/solver/vector_lanes.hpp"

// Why each saving leaves the bits alone
//
// Putting passes off. Each cell takes its subtractions in the order of the passes, sooner or later;
// the bound that says which rows the pivot search must bring up to date is never below a cell.
//
// Leaving out d = 0. cell - 0 * y is the cell itself for every finite y, but for one case: -0 -
// (-0) is +0. No subtraction gives -0 unless it starts from -0, so a row that holds no -0 never
// gets one: rows that hold -0 take every pass at once. As soon as a value is not finite every row
// does (0 * inf is NaN): infinity is the largest cell there is, so it shows as a pivot before it
// can spread.
//
// Column order. The last active column takes the place of the column that leaves, so the active
// cells stay contiguous. Where cells tie, the numbers of row and column decide, not the places.

namespace korven::analysis {
namespace {

/// What a row's cells have in common.
struct Riassunto {
    double massimo;  // largest absolute value, NaN apart
    bool finiti;
};

/// riga *= f over m cells.
template <int L>
KORVEN_CORSIE Riassunto moltiplica(double* riga, double f, int m) {
    Corsie<L> massimi{}, spia{};  // 0 * v is 0 or NaN
    int k = 0;
    for (; k + L <= m; k += L) {
        const Corsie<L> v = corsie<L>(riga + k) * f;
        corsie<L>(riga + k) = v;
        massimi = massimo(assoluto(v), massimi);
        spia += v * 0.0;
    }
    if (k < m) {
        const MascheraCorsie<L> prime = sotto<L>(m - k);
        const Corsie<L> v = prime ? corsie<L>(riga + k) * f : Corsie<L>{};
        corsie<L>(riga + k) = prime ? v : corsie<L>(riga + k);
        massimi = massimo(assoluto(v), massimi);
        spia += v * 0.0;
    }
    double somma = 0.0;
    for (int i = 0; i < L; ++i) somma += spia[i];
    return {massimoCorsie<L>(massimi), somma == 0.0};
}

/// Copies the system into the work area and looks at each row once; returns whether all cells of
/// the matrix are finite.
template <int L>
KORVEN_CORSIE bool prepara(int n, MatriceSistema& A, const VettoreSistema& b, RigheAttive& r) {
    bool finiti = true;
    r.quante = n;
    for (int i = 0; i < n; ++i) {
        double* celle = r.celle[i] = A.rigaLavoro(i);
        std::copy_n(A.riga(i), n, celle);
        const Riassunto riga = moltiplica<L>(celle, 1.0, n);
        finiti &= riga.finiti;
        r.massima[i] = riga.massimo;
        r.zeroNegativo[i] = haZeroNegativo(celle, n);
        r.zeriNegativi |= r.zeroNegativo[i];
        r.termine[i] = b[i + 1];
        r.inSospeso[i] = 0.0;
        r.numero[i] = r.colonna[i] = r.indice[i] = r.posto[i] = i;
    }
    return finiti;
}

/// Each row knows the column order of the window in which it was pivot: brings in the exchanges of
/// the places below `primo`, the same for all rows of a window.
void riordinaColonne(SistemaEliminato& s, const int* posto, const int* primo) {
    int da[capacitaSistema];
    double prima[capacitaSistema];
    for (int t = s.n - 1; t > 0; --t) {
        const int m = primo[t];
        if (t == s.n - 1 || m != primo[t + 1]) {
            for (int j = 0; j < m; ++j) da[j] = j;
            for (int j = m - 1; j > 0; --j) std::swap(da[posto[j]], da[j]);
        }
        std::copy_n(s.riga[t], m, prima);
        for (int j = 0; j < m; ++j) s.riga[t][j] = prima[da[j]];
    }
}

template <int L>
KORVEN_CORSIE bool eliminaCon(int n, MatriceSistema& A, const VettoreSistema& b,
                              bool conservaFattori, SistemaEliminato& s) {
    RigheAttive r;
    int posto[capacitaSistema], primo[capacitaSistema];  // column exchanges, see riordinaColonne
    bool finiti = prepara<L>(n, A, b, r);
    int finestraDa = n - 1;
    s.n = n;
    for (int t = n - 1; t >= 0; --t) {
        const int i = trovaRiga<L>(r);
        if (!(r.massima[i] > 0.0)) return false;
        const int colonna = s.colonnaPivot[t] = trovaColonna<L>(r, i);
        const int k = posto[t] = r.posto[colonna];
        s.rigaPivot[t] = static_cast<int>(r.numero[i]);
        double* pivot = s.riga[t] = r.celle[i];
        finiti &= std::isfinite(pivot[k]);
        const double inverso = s.inverso[t] = 1.0 / pivot[k];
        const double termine = s.termine[t] = r.termine[i] * inverso;
        togliRiga(r, i, colonna);
        pivot[k] = pivot[t];
        const Riassunto divisa = moltiplica<L>(pivot, inverso, t);
        pivot[t] = inverso;
        finiti &= divisa.finiti;

        togliColonna(r, k, conservaFattori);
        for (int j = 0; j < t; ++j) r.termine[j] -= r.fattore[j] * termine;
        if (finiti) {
            rimanda<L>(r, pivot, divisa.massimo);
        } else {
            aggiornaTutte<L>(r);
            for (int j = 0; j < t; ++j) applicaSubito<L>(r, j, pivot);
        }
        if (r.finestra == 0) {
            for (; finestraDa >= t; --finestraDa) primo[finestraDa] = t;
        }
    }
    for (; finestraDa >= 0; --finestraDa) primo[finestraDa] = 0;
    riordinaColonne(s, posto, primo);
    return true;
}

KORVEN_REGISTRI_LARGHI
bool eliminaLarga(int n, MatriceSistema& A, const VettoreSistema& b, bool conservaFattori,
                  SistemaEliminato& s) {
    return eliminaCon<4>(n, A, b, conservaFattori, s);
}

}  // namespace

bool elimina(int n, MatriceSistema& A, const VettoreSistema& b, bool conservaFattori, bool larghi,
             SistemaEliminato& s) {
    return larghi ? eliminaLarga(n, A, b, conservaFattori, s)
                  : eliminaCon<2>(n, A, b, conservaFattori, s);
}

}  // namespace korven::analysis
