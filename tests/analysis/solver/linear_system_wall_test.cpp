#include <gtest/gtest.h>

#include <cmath>
#include <random>

#include "analysis/solver/linear_system.hpp"
#include "support/solver_comparison.hpp"
#include "support/wall_system.hpp"

namespace korven::analysis {
namespace {

using test::PareteDiProva;
using test::SistemaDoppio;
using Caso = std::mt19937_64;

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
        test::assemblaDiProva(w, s.A, s.b);
        test::assemblaDiProva(w, s.piena, s.b);
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
    test::assemblaDiProva(w, conAvanzi, b);
    ASSERT_EQ(RisolviSistema(w.incognite(), conAvanzi, b, x, 2), EsitoSistema::risolto);
    test::assemblaDiProva(w, conAvanzi, b);
    test::assemblaDiProva(w, pulita, b);
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
    test::assemblaDiProva(w, A, b);
    EXPECT_EQ(RisolviSistema(w.incognite(), A, b, x, 0), EsitoSistema::singolare);
}

}  // namespace
}  // namespace korven::analysis
