#include "analysis/solver/linear_system.hpp"

#include <cassert>

#include "analysis/solver/full_pivot_elimination.hpp"
#include "analysis/solver/gauss_jordan_completion.hpp"

// Row swaps, column swaps and the order of the passes are those of the plain algorithm; the work is
// cut in two so that each half touches only what somebody reads: the pivot search sees the rows
// that have not been pivot, and of the rest only the solution and the visible border are wanted.

namespace korven::analysis {

EsitoSistema RisolviSistema(int n, MatriceSistema& A, const VettoreSistema& b, VettoreSistema& x,
                            int bordoVisibile, bool larghi) {
    assert(1 <= n && n <= capacitaSistema);
    assert(0 <= bordoVisibile && bordoVisibile <= n);
    assert(&b != &x);
    assert(!larghi || registriLarghi());
    SistemaEliminato s;
    if (!elimina(n, A, b, bordoVisibile > 0, larghi, s)) return EsitoSistema::singolare;
    completa(s, x, A, bordoVisibile, larghi);
    return EsitoSistema::risolto;
}

}  // namespace korven::analysis
