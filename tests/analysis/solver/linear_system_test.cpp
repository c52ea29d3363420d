#include "analysis/solver/linear_system.hpp"

#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <functional>
#include <limits>
#include <random>

#include "support/solver_comparison.hpp"

namespace korven::analysis {
namespace {

using test::SistemaDoppio;
using Caso = std::mt19937_64;

constexpr double nan = std::numeric_limits<double>::quiet_NaN();
constexpr double infinito = std::numeric_limits<double>::infinity();

double tra(Caso& caso, double da, double a) {
    return std::uniform_real_distribution<double>(da, a)(caso);
}
int intero(Caso& caso, int da, int a) { return std::uniform_int_distribution<int>(da, a)(caso); }

/// What a family of random systems puts into one cell of the matrix and of the right-hand side.
using Cella = std::function<double(Caso&)>;

/// Compares `quanti` systems of a family, sizes 1 to `nMax`, borders of every width.
void confrontaFamiglia(int quanti, int nMax, const Cella& cella, const Cella& termine,
                       SistemaDoppio& s) {
    Caso caso(static_cast<std::uint64_t>(quanti * 1000 + nMax));
    for (int volta = 0; volta < quanti; ++volta) {
        const int n = intero(caso, 1, nMax);
        for (int i = 1; i <= n; ++i) {
            for (int j = 1; j <= n; ++j) s.assegna(i, j, cella(caso));
            s.b[i] = termine(caso);
        }
        const std::array bordi = {0, std::min(2, n), n, intero(caso, 0, n)};
        SCOPED_TRACE(testing::Message() << "system " << volta << ", n " << n);
        s.confronta(n, bordi[static_cast<std::size_t>(volta % 4)]);
        if (testing::Test::HasFatalFailure()) return;
    }
}

double qualunque(Caso& caso) { return tra(caso, -1.0, 1.0); }

double zeroConSegno(Caso& caso) { return intero(caso, 0, 1) == 0 ? 0.0 : -0.0; }

TEST(RisolviSistema, EqualsThePlainAlgorithmOnDenseSystems) {
    SistemaDoppio s;
    confrontaFamiglia(400, 40, qualunque, qualunque, s);
    EXPECT_EQ(s.risolti, 400);
}

TEST(RisolviSistema, EqualsThePlainAlgorithmOnSparseSystems) {
    SistemaDoppio s;
    for (const double pieno : {0.1, 0.3, 0.7}) {
        const Cella cella = [pieno](Caso& caso) {
            return tra(caso, 0, 1) < pieno ? qualunque(caso) : 0.0;
        };
        confrontaFamiglia(200, 40, cella, qualunque, s);
    }
    EXPECT_GT(s.risolti, 100);
    EXPECT_GT(s.singolari, 50);
}

TEST(RisolviSistema, TakesTheLastOfEqualCellsAsThePlainAlgorithmDoes) {
    SistemaDoppio s;
    const Cella cella = [](Caso& caso) { return static_cast<double>(intero(caso, -2, 2)); };
    confrontaFamiglia(500, 30, cella, cella, s);
    EXPECT_GT(s.risolti, 300);
}

// Full pivoting lets no cell grow to more than twice the largest: such cells overflow all the same,
// in a pass of which others are still put off.
TEST(RisolviSistema, EqualsThePlainAlgorithmWhereCellsOverflowOnTheWay) {
    SistemaDoppio s;
    const Cella enorme = [](Caso& caso) { return qualunque(caso) * 1.7e308; };
    for (const double pieno : {0.2, 1.0}) {
        const Cella cella = [&](Caso& caso) {
            return tra(caso, 0, 1) < pieno ? enorme(caso) : 0.0;
        };
        confrontaFamiglia(40, 90, cella, qualunque, s);
    }
    EXPECT_GT(s.risolti + s.singolari, 0);
}

TEST(RisolviSistema, KeepsTheSignOfEveryZero) {
    SistemaDoppio s;
    for (const double pieno : {0.15, 0.4}) {
        const Cella cella = [pieno](Caso& caso) {
            return tra(caso, 0, 1) < pieno ? static_cast<double>(intero(caso, -3, 3))
                                           : zeroConSegno(caso);
        };
        const Cella termine = [](Caso& caso) {
            return intero(caso, 0, 2) == 0 ? qualunque(caso) : zeroConSegno(caso);
        };
        confrontaFamiglia(250, 30, cella, termine, s);
    }
    EXPECT_GT(s.risolti, 200);
}

TEST(RisolviSistema, EqualsThePlainAlgorithmOnBadlyScaledSystems) {
    SistemaDoppio s;
    const Cella cella = [](Caso& caso) {
        if (intero(caso, 0, 3) == 0) return 0.0;
        return qualunque(caso) * std::pow(10.0, intero(caso, -6, 6)) *
               (intero(caso, 0, 30) == 0 ? -1e11 : 1.0);
    };
    confrontaFamiglia(300, 40, cella, cella, s);
    EXPECT_GT(s.risolti, 250);
}

TEST(RisolviSistema, EqualsThePlainAlgorithmWhereNumbersOverflowAndUnderflow) {
    SistemaDoppio s;
    const Cella cella = [](Caso& caso) {
        constexpr std::array scale = {1e308, 1e300, 1.0, 1e-300, 5e-324, 0.0};
        return qualunque(caso) * scale[static_cast<std::size_t>(intero(caso, 0, 5))];
    };
    confrontaFamiglia(300, 20, cella, cella, s);
    EXPECT_GT(s.risolti, 200);
}

TEST(RisolviSistema, CarriesValuesThatAreNotFiniteAsThePlainAlgorithmDoes) {
    SistemaDoppio s;
    for (const int rari : {3, 40, 400}) {
        const Cella cella = [rari](Caso& caso) {
            constexpr std::array strani = {nan, infinito, -infinito};
            if (intero(caso, 0, rari) == 0)
                return strani[static_cast<std::size_t>(intero(caso, 0, 2))];
            return intero(caso, 0, 1) == 0 ? 0.0 : qualunque(caso);
        };
        confrontaFamiglia(200, 24, cella, cella, s);
    }
    EXPECT_GT(s.risolti, 100);
    EXPECT_GT(s.singolari, 100);
}

TEST(RisolviSistema, EqualsThePlainAlgorithmUpToTheLargestSize) {
    SistemaDoppio s;
    Caso caso(500);
    for (const int n : {63, 64, 65, 128, 251, capacitaSistema}) {
        for (int i = 1; i <= n; ++i) {
            for (int j = 1; j <= n; ++j)
                s.assegna(i, j, intero(caso, 0, 2) == 0 ? qualunque(caso) : 0.0);
            s.b[i] = qualunque(caso);
        }
        ASSERT_NO_FATAL_FAILURE(s.confronta(n, n < 128 ? n : 2)) << n;
    }
    EXPECT_EQ(s.risolti, 6);
}

TEST(RisolviSistema, CallsASystemWithAnEmptyRowSingularAndLeavesXAndA) {
    // A row of zeros stays one, however the others are mixed.
    SistemaDoppio s;
    Caso caso(7);
    for (int volta = 0; volta < 200; ++volta) {
        const int n = intero(caso, 2, 12), vuota = intero(caso, 2, n);
        for (int i = 1; i <= n; ++i) {
            for (int j = 1; j <= n; ++j) s.assegna(i, j, intero(caso, 0, 1));
            s.b[i] = i;
        }
        for (int j = 1; j <= n; ++j) s.assegna(vuota, j, 0.0);
        ASSERT_NO_FATAL_FAILURE(s.confronta(n, n));
    }
    EXPECT_EQ(s.singolari, 200);
}

TEST(RisolviSistema, FindsNoPivotAmongNaNAlone) {
    MatriceSistema A;
    VettoreSistema b, x;
    x[1] = 5.0;
    for (int i = 1; i <= 3; ++i)
        for (int j = 1; j <= 3; ++j) A(i, j) = nan;
    EXPECT_EQ(RisolviSistema(3, A, b, x, 3), EsitoSistema::singolare);
    for (int i = 1; i <= 3; ++i) A(i, 1) = A(1, i) = 0.0;
    A(1, 1) = 4.0;  // one good pass, then NaN alone
    EXPECT_EQ(RisolviSistema(3, A, b, x, 0), EsitoSistema::singolare);
    EXPECT_EQ(x[1], 5.0);
}

TEST(RisolviSistema, IsSingularWhenAnInfinitePivotTurnsTheRestIntoNaN) {
    SistemaDoppio s;  // 1 - inf * (1 / inf) in every row but the pivot's
    for (int n = 2; n <= 9; ++n) {
        for (int i = 1; i <= n; ++i)
            for (int j = 1; j <= n; ++j) s.assegna(i, j, j == 1 ? infinito : 1.0);
        ASSERT_NO_FATAL_FAILURE(s.confronta(n, 0));
    }
    EXPECT_EQ(s.singolari, 8);
}

TEST(RisolviSistema, SolvesSystemsDoneByHand) {
    MatriceSistema A;
    VettoreSistema b, x;
    A(1, 1) = 4.0;
    b[1] = 8.0;
    ASSERT_EQ(RisolviSistema(1, A, b, x, 1), EsitoSistema::risolto);
    EXPECT_EQ(x[1], 2.0);
    EXPECT_EQ(A(1, 1), 0.25);

    A(1, 1) = 0.0, A(1, 2) = 2.0;  // 2 y = 2, 4 x = 8: the rows trade places, then the columns
    A(2, 1) = 4.0, A(2, 2) = 0.0;
    b[1] = 2.0, b[2] = 8.0;
    ASSERT_EQ(RisolviSistema(2, A, b, x, 2), EsitoSistema::risolto);
    EXPECT_EQ(x[1], 2.0);
    EXPECT_EQ(x[2], 1.0);
    EXPECT_EQ(A(1, 1), 0.0);
    EXPECT_EQ(A(1, 2), 0.25);
    EXPECT_EQ(A(2, 1), 0.5);
    EXPECT_EQ(A(2, 2), 0.0);

    A(1, 1) = 0.0;
    EXPECT_EQ(RisolviSistema(1, A, b, x, 0), EsitoSistema::singolare);
}

TEST(RisolviSistema, AnswersWithAnXThatSatisfiesTheSystem) {
    MatriceSistema A;
    VettoreSistema b, x;
    Caso caso(3);
    for (int volta = 0; volta < 50; ++volta) {
        const int n = intero(caso, 1, 80);
        for (int i = 1; i <= n; ++i) {
            for (int j = 1; j <= n; ++j) A(i, j) = qualunque(caso) + (i == j ? 10.0 : 0.0);
            b[i] = qualunque(caso);
        }
        ASSERT_EQ(RisolviSistema(n, A, b, x, 0), EsitoSistema::risolto);
        for (int i = 1; i <= n; ++i) {
            double residuo = -b[i];
            for (int j = 1; j <= n; ++j) residuo += A(i, j) * x[j];
            EXPECT_NEAR(residuo, 0.0, 1e-11) << n << ' ' << i;
        }
    }
}

TEST(RisolviSistema, LeavesAnInverseThatTurnsTheMatrixIntoTheIdentity) {
    MatriceSistema A, inversa;
    VettoreSistema b, x;
    Caso caso(4);
    for (int volta = 0; volta < 30; ++volta) {
        const int n = intero(caso, 1, 50);
        for (int i = 1; i <= n; ++i)
            for (int j = 1; j <= n; ++j)
                A(i, j) = inversa(i, j) = qualunque(caso) + (i == j ? 10.0 : 0.0);
        ASSERT_EQ(RisolviSistema(n, inversa, b, x, n), EsitoSistema::risolto);
        for (int i = 1; i <= n; ++i)
            for (int j = 1; j <= n; ++j) {
                double somma = i == j ? -1.0 : 0.0;
                for (int k = 1; k <= n; ++k) somma += inversa(i, k) * A(k, j);
                EXPECT_NEAR(somma, 0.0, 1e-11) << n << ' ' << i << ' ' << j;
            }
    }
}

}  // namespace
}  // namespace korven::analysis
