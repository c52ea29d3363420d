#include "yardsticks.hpp"

#include <lapacke.h>

#include <Eigen/Dense>

extern "C" void openblas_set_num_threads(int quanti);

namespace korven::bench {

void unSoloFilo() { openblas_set_num_threads(1); }

bool risolviDgesv(SistemaPieno& s) {
    static std::vector<lapack_int> perni;
    perni.resize(s.b.size());
    return LAPACKE_dgesv_work(LAPACK_COL_MAJOR, s.n, 1, s.A.data(), s.n, perni.data(), s.b.data(),
                              s.n) == 0;
}

bool risolviDpbsv(SistemaBandato& s) {
    return LAPACKE_dpbsv_work(LAPACK_COL_MAJOR, 'U', s.n, 2, 1, s.A.data(), 3, s.b.data(), s.n) ==
           0;
}

bool risolviFullPivLU(SistemaPieno& s) {
    Eigen::Map<Eigen::MatrixXd> A(s.A.data(), s.n, s.n);
    Eigen::Map<Eigen::VectorXd> b(s.b.data(), s.n);
    Eigen::FullPivLU<Eigen::Ref<Eigen::MatrixXd>> lu(A);  // in place, as the others
    lu.setThreshold(0.0);
    b = lu.solve(b).eval();
    return lu.isInvertible();
}

}  // namespace korven::bench
