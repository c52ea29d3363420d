#include <gtest/gtest.h>

#include <cmath>
#include <random>
#include <vector>

#include "analysis/solver/linear_system.hpp"
#include "support/solver_comparison.hpp"

namespace korven::analysis {
namespace {

using test::SistemaDoppio;
using Caso = std::mt19937_64;

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
void assemblaDiProva(const PareteDiProva& w, MatriceSistema& A, VettoreSistema& b) {
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

enum class Vincolo { libera, cernieraTesta, cernieraPiede, incastroPiede };

double tra(Caso& caso, double da, double a) {
    return std::uniform_real_distribution<double>(da, a)(caso);
}

/// Springs and pressures as an iteration leaves them: plastic nodes (no spring), springs that grow
/// with depth, now and then an anchor.
void caricaACaso(Caso& caso, PareteDiProva& w) {
    const double scavo = tra(caso, 0.0, 0.6) * w.passo * w.nodi, modulo = tra(caso, 300, 6000);
    const bool scarica = tra(caso, 0, 1) < 0.15;
    for (int i = 1; i <= w.nodi; ++i) {
        const auto nodo = static_cast<std::size_t>(i);
        const double z = (i - 1) * w.passo;
        double k = tra(caso, 0, 1) < 0.3 ? 0.0 : -modulo - 150.0 * z;
        if (z >= scavo && tra(caso, 0, 1) < 0.8) k += -1.2 * modulo;
        if (tra(caso, 0, 1) < 0.05) k += -1500.0 / w.passo;
        w.coefficiente[nodo] = k;
        w.pressione[nodo] = scarica ? 0.0 : 2.0 + 1.1 * z - (z >= scavo ? 4.0 * (z - scavo) : 0.0);
    }
}

PareteDiProva pareteACaso(Caso& caso, int nodi, Vincolo vincolo) {
    PareteDiProva w(nodi);
    w.passo = tra(caso, 5.0, 25.0) / (nodi - 1);
    const double EJ = std::pow(10.0, tra(caso, 2.5, 5.5));
    for (double& e : w.rigidezza) e = EJ;
    if (tra(caso, 0, 1) < 0.3) w.forzaTesta = tra(caso, -10, 10);
    if (tra(caso, 0, 1) < 0.3) w.momentoTesta = tra(caso, -10, 10);
    w.cernieraTesta = vincolo == Vincolo::cernieraTesta;
    w.bloccoPiede = vincolo == Vincolo::cernieraPiede;
    w.incastroPiede = vincolo == Vincolo::incastroPiede;
    return w;
}

/// Some solves in a row of one wall, each assembled over what the one before left.
void passeggia(Caso& caso, PareteDiProva w, int solve, SistemaDoppio& s) {
    s.A.azzera(w.incognite());
    s.piena.azzera(w.incognite());
    for (int volta = 0; volta < solve; ++volta) {
        caricaACaso(caso, w);
        assemblaDiProva(w, s.A, s.b);
        assemblaDiProva(w, s.piena, s.b);
        SCOPED_TRACE(testing::Message() << w.nodi << " nodes, solve " << volta);
        ASSERT_NO_FATAL_FAILURE(s.confronta(w.incognite(), w.incastroPiede ? 2 : 0));
    }
}

class SistemaDellaParete : public testing::TestWithParam<Vincolo> {};

TEST_P(SistemaDellaParete, EqualsThePlainAlgorithmSolveAfterSolve) {
    Caso caso(11);
    SistemaDoppio s;
    for (int volta = 0; volta < 40; ++volta) {
        const int nodi = 4 + volta % 12;
        ASSERT_NO_FATAL_FAILURE(passeggia(caso, pareteACaso(caso, nodi, GetParam()), 5, s));
    }
    ASSERT_NO_FATAL_FAILURE(passeggia(caso, pareteACaso(caso, 51, GetParam()), 4, s));
    ASSERT_NO_FATAL_FAILURE(passeggia(caso, pareteACaso(caso, 101, GetParam()), 2, s));
    EXPECT_GT(s.risolti, 180);
}

INSTANTIATE_TEST_SUITE_P(EveryRestraint, SistemaDellaParete,
                         testing::Values(Vincolo::libera, Vincolo::cernieraTesta,
                                         Vincolo::cernieraPiede, Vincolo::incastroPiede));

TEST(SistemaDellaParete, ReadsWithAFixedToeCellsThatTheSolveBeforeLeft) {
    // The rule these tests lean on: without it the border of the inverse would not matter.
    Caso caso(12);
    MatriceSistema conAvanzi, pulita;
    VettoreSistema b, x;
    PareteDiProva w = pareteACaso(caso, 10, Vincolo::incastroPiede);
    caricaACaso(caso, w);
    assemblaDiProva(w, conAvanzi, b);
    ASSERT_EQ(RisolviSistema(w.incognite(), conAvanzi, b, x, 2), EsitoSistema::risolto);
    assemblaDiProva(w, conAvanzi, b);
    assemblaDiProva(w, pulita, b);
    int avanzi = 0;
    for (int i = 1; i <= w.incognite(); ++i)
        for (int j = 1; j <= w.incognite(); ++j) avanzi += conAvanzi(i, j) != pulita(i, j);
    EXPECT_GT(avanzi, 20);
}

TEST(SistemaDellaParete, EqualsThePlainAlgorithmAtFullCapacity) {
    Caso caso(13);
    SistemaDoppio s;
    ASSERT_NO_FATAL_FAILURE(passeggia(caso, pareteACaso(caso, 249, Vincolo::incastroPiede), 2, s));
    ASSERT_NO_FATAL_FAILURE(passeggia(caso, pareteACaso(caso, 250, Vincolo::libera), 1, s));
    EXPECT_EQ(s.risolti, 3);
}

TEST(SistemaDellaParete, IsSingularWithoutAnySpring) {
    MatriceSistema A;
    VettoreSistema b, x;
    PareteDiProva w(51);
    for (double& e : w.rigidezza) e = 20000.0;
    for (double& p : w.pressione) p = 3.0;
    assemblaDiProva(w, A, b);
    EXPECT_EQ(RisolviSistema(w.incognite(), A, b, x, 0), EsitoSistema::singolare);
}

}  // namespace
}  // namespace korven::analysis
