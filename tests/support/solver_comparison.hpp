#pragma once

#include <gtest/gtest.h>

#include <bit>
#include <cmath>
#include <cstdint>

#include "analysis/solver/linear_system.hpp"
#include "analysis/solver/vector_lanes.hpp"
#include "support/reference_solver.hpp"

namespace korven::test {

/// The same bits; of NaN only that both are.
inline bool stessiBit(double a, double b) {
    return std::bit_cast<std::uint64_t>(a) == std::bit_cast<std::uint64_t>(b) ||
           (std::isnan(a) && std::isnan(b));
}

/// Two copies of one system: `A` for RisolviSistema, `piena` for the plain algorithm.
struct SistemaDoppio {
    analysis::MatriceSistema A, piena;
    analysis::VettoreSistema b, x, xPiena;
    int risolti = 0, singolari = 0;

    void assegna(int i, int j, double v) { A(i, j) = piena(i, j) = v; }

    /// Solves both, ours in each version that this processor can run, and compares the outcome, x,
    /// and the last `bordo` rows and columns of the inverse; every other cell of A must be as
    /// before, and on a singular system x as well.
    void confronta(int n, int bordo) {
        using analysis::EsitoSistema;
        for (int i = 1; i <= n; ++i)
            for (int j = 1; j <= n; ++j) prima_(i, j) = A(i, j);
        for (int i = 1; i <= n; ++i) xPiena[i] = -77.0 - i;
        const EsitoSistema atteso = risolviPassoPasso(n, piena, b, xPiena);
        ++(atteso == EsitoSistema::risolto ? risolti : singolari);

        for (const bool larghi : {false, true}) {
            if (larghi && !analysis::registriLarghi()) continue;
            confrontaVersione(n, bordo, larghi, atteso);
            if (::testing::Test::HasFatalFailure()) return;
        }
    }

 private:
    void confrontaVersione(int n, int bordo, bool larghi, analysis::EsitoSistema atteso) {
        using analysis::EsitoSistema;
        for (int i = 1; i <= n; ++i) {
            x[i] = -77.0 - i;
            for (int j = 1; j <= n; ++j) A(i, j) = prima_(i, j);
        }
        const EsitoSistema esito = analysis::RisolviSistema(n, A, b, x, bordo, larghi);
        ASSERT_EQ(esito, atteso);
        for (int i = 1; i <= n; ++i)
            ASSERT_TRUE(stessiBit(x[i], xPiena[i])) << "x " << i << ' ' << x[i] << ' ' << xPiena[i];
        for (int i = 1; i <= n; ++i)
            for (int j = 1; j <= n; ++j) {
                const bool visibile = i > n - bordo || j > n - bordo;
                const auto& attesa = visibile && esito == EsitoSistema::risolto ? piena : prima_;
                ASSERT_TRUE(stessiBit(A(i, j), attesa(i, j)))
                    << "A " << i << ' ' << j << ": " << A(i, j) << " for " << attesa(i, j);
            }
    }

    analysis::MatriceSistema prima_;
};

}  // namespace korven::test
