#include <benchmark/benchmark.h>

#include <algorithm>
#include <chrono>
#include <cmath>
#include <cstddef>
#include <memory>

#include "analysis/plastic_iteration.hpp"
#include "analysis/solver/linear_system.hpp"
#include "example_run.hpp"
#include "support/reference_solver.hpp"
#include "yardsticks.hpp"

// One solve of the system that an iteration of a real project writes down, by four solvers: the
// state in which the last stage of an example comes to rest. With a fixed toe the last two rows and
// columns hold what the solve before left there.
//
// Only the solve is timed: every solver gets its own fresh copy outside the clock.

namespace {

using namespace korven;
using analysis::EsitoSistema;
using Orologio = std::chrono::steady_clock;

/// The system to solve, and the solution of the plain algorithm to compare with.
struct Sistema {
    int n = 0, bordo = 0;
    std::unique_ptr<analysis::ArraysCorsa> corsa;
    analysis::VettoreSistema b, x;

    Sistema(int nSeg, bool incastro) : bordo(incastro ? 2 : 0) {
        const auto dati =
            bench::esempio(incastro ? "paratia_lunga_incastro" : "diaframma_due_ordini");
        corsa = bench::corsaConvergente(dati, nSeg);
        n = 2 * analysis::preparaSistema(dati, *corsa);
        b = corsa->termineB;
        analysis::MatriceSistema copia;
        copiaIn(copia);
        if (test::risolviPassoPasso(n, copia, b, x) != EsitoSistema::risolto) n = 0;
    }

    void copiaIn(analysis::MatriceSistema& copia) const {
        for (int i = 1; i <= n; ++i)
            for (int j = 1; j <= n; ++j) copia(i, j) = corsa->matriceA(i, j);
    }

    [[nodiscard]] bench::SistemaPieno pieno() const {
        bench::SistemaPieno s;
        s.n = n;
        for (int j = 1; j <= n; ++j) {
            for (int i = 1; i <= n; ++i) s.A.push_back(corsa->matriceA(i, j));
            s.b.push_back(b[j]);
        }
        return s;
    }
};

/// Runs the clock over `risolvi` alone; `prepara` comes before each run.
template <class Prepara, class Risolvi>
void cronometra(benchmark::State& stato, int n, Prepara prepara, Risolvi risolvi) {
    for (auto _ : stato) {
        prepara();
        const auto inizio = Orologio::now();
        const bool riuscito = risolvi();
        const std::chrono::duration<double> durata = Orologio::now() - inizio;
        stato.SetIterationTime(durata.count());
        if (!riuscito) stato.SkipWithError("singular");
    }
    stato.counters["n"] = n;
}

using Risolutore = EsitoSistema (*)(const Sistema&, analysis::MatriceSistema&,
                                    analysis::VettoreSistema&);

EsitoSistema korven32(const Sistema& s, analysis::MatriceSistema& A, analysis::VettoreSistema& x) {
    return analysis::RisolviSistema(s.n, A, s.b, x, s.bordo);
}

EsitoSistema passoPasso(const Sistema& s, analysis::MatriceSistema& A,
                        analysis::VettoreSistema& x) {
    return test::risolviPassoPasso(s.n, A, s.b, x);
}

void nostro(benchmark::State& stato, Risolutore risolutore) {
    const Sistema s(static_cast<int>(stato.range(0)), stato.range(1) != 0);
    analysis::MatriceSistema A;
    analysis::VettoreSistema x;
    cronometra(
        stato, s.n, [&] { s.copiaIn(A); },
        [&] { return risolutore(s, A, x) == EsitoSistema::risolto; });
    for (int i = 1; i <= s.n; ++i)
        if (x[i] != s.x[i]) stato.SkipWithError("another solution");
}

void altrui(benchmark::State& stato, bool (*risolutore)(bench::SistemaPieno&)) {
    const Sistema s(static_cast<int>(stato.range(0)), stato.range(1) != 0);
    const bench::SistemaPieno fresco = s.pieno();
    bench::SistemaPieno copia = fresco;
    cronometra(
        stato, s.n, [&] { copia = fresco; }, [&] { return risolutore(copia); });
    double massimo = 0.0, scarto = 0.0;
    for (int i = 1; i <= s.n; ++i) {
        massimo = std::max(massimo, std::abs(s.x[i]));
        scarto = std::max(scarto, std::abs(s.x[i] - copia.b[static_cast<std::size_t>(i - 1)]));
    }
    if (!(scarto <= 1e-6 * massimo)) stato.SkipWithError("another solution");
}

void taglie(benchmark::internal::Benchmark* b) {
    b->UseManualTime()->Unit(benchmark::kMicrosecond)->ArgNames({"nSeg", "incastro"});
    for (const int nSeg : {25, 50, 100, 200, 249}) b->Args({nSeg, 0});
    for (const int nSeg : {25, 50, 100, 200, 248}) b->Args({nSeg, 1});  // capacity: 2 rows more
}

BENCHMARK_CAPTURE(nostro, RisolviSistema, korven32)->Apply(taglie);
BENCHMARK_CAPTURE(nostro, PassoPasso, passoPasso)->Apply(taglie);
BENCHMARK_CAPTURE(altrui, Dgesv, bench::risolviDgesv)->Apply(taglie);
BENCHMARK_CAPTURE(altrui, FullPivLU, bench::risolviFullPivLU)->Apply(taglie);

}  // namespace

int main(int argc, char** argv) {
    bench::unSoloFilo();
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv)) return 1;
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
