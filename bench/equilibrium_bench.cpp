#include <benchmark/benchmark.h>
#include <malloc.h>

#include <memory>

#include "analysis/staged_run.hpp"
#include "equilibrium/staged_equilibrium.hpp"
#include "example_run.hpp"
#include "safety/strength_reduction.hpp"
#include "yardsticks.hpp"

// The certain method beside what it is measured by: a step of Newton's method beside LAPACK's
// solver of a banded system of the same size, and all stages of an example beside the specified
// run, both in memory and with the soil. Then the verdict alone, strength reductions, and how the
// time grows with nodes and stages.

namespace {

using namespace korven;

// What a run frees stays with the program. To give it back and to ask the system for it anew would
// be timed with the rest: the results of the specified run are a megabyte, the vectors of the other
// half of one with 800 segments.
const bool memoriaTenuta =
    mallopt(M_MMAP_THRESHOLD, 1 << 28) != 0 && mallopt(M_TRIM_THRESHOLD, 1 << 28) != 0;

project::DatiProgetto muro(bool incastro) {
    return bench::esempio(incastro ? "paratia_lunga_incastro" : "diaframma_due_ordini");
}

/// The last stage of an example, set up, with the displacements of the stage before.
struct UltimaFase {
    equilibrium::EquilibrioParete parete;
    std::vector<double> prima;

    UltimaFase(const project::DatiProgetto& dati, int nSeg) : parete(dati, nSeg) {
        for (int k = 1; k < dati.nFasi; ++k) (void)parete.calcola(k);
        prima = parete.spostamenti();
        (void)parete.calcola(dati.nFasi);
    }
};

void passoDiNewton(benchmark::State& stato) {
    const UltimaFase fase(muro(stato.range(1) != 0), static_cast<int>(stato.range(0)));
    equilibrium::Newton newton(fase.parete.problema().n());
    int passi = 0;
    for (auto _ : stato) {
        auto y = fase.prima;
        passi += newton.risolvi(fase.parete.problema(), y).passi;
    }
    stato.counters["passo"] =
        benchmark::Counter(passi, benchmark::Counter::kIsRate | benchmark::Counter::kInvert);
}

void dpbsv(benchmark::State& stato) {
    const UltimaFase fase(muro(stato.range(1) != 0), static_cast<int>(stato.range(0)));
    const auto& p = fase.parete.problema();
    bench::unSoloFilo();
    bench::SistemaBandato sistema(p.n());
    const double e = p.EJ / (p.h * p.h * p.h);
    for (int i = 0; i < p.n(); ++i) {
        const auto& nodo = p.nodi[static_cast<std::size_t>(i)];
        const double y = fase.parete.spostamenti()[static_cast<std::size_t>(i)];
        const double molla =
            nodo.vincolato ? 1e11 : nodo.monte.rigidezza(y) + nodo.valle.rigidezza(y);
        sistema.aggiungi(i, i, nodo.peso * molla);
        if (i > 0 && i + 1 < p.n())
            for (int a = -1; a <= 1; ++a)
                for (int b = a; b <= 1; ++b)
                    sistema.aggiungi(i + a, i + b, e * (a == 0 ? -2 : 1) * (b == 0 ? -2 : 1));
    }
    for (auto _ : stato) {
        bench::SistemaBandato copia = sistema;
        if (!bench::risolviDpbsv(copia)) stato.SkipWithError("not positive");
    }
}

void fasiCerte(benchmark::State& stato) {
    const auto dati = muro(stato.range(1) != 0);
    const int nSeg = static_cast<int>(stato.range(0));
    for (auto _ : stato) {
        equilibrium::EquilibrioParete parete(dati, nSeg);
        for (int k = 1; k <= dati.nFasi; ++k)
            if (parete.calcola(k).esito != equilibrium::EsitoFase::equilibrio)
                stato.SkipWithError("no equilibrium");
    }
}

void fasiSpecificate(benchmark::State& stato) {
    const auto dati = muro(stato.range(1) != 0);
    const auto arrays = std::make_unique<analysis::ArraysCorsa>();
    analysis::OsservatoreCorsa osservatore;
    for (auto _ : stato)
        if (!analysis::calcolaFasi(dati, static_cast<int>(stato.range(0)), osservatore, *arrays)
                 .finita())
            stato.SkipWithError("not at rest");
}

void verdetto(benchmark::State& stato) {
    const UltimaFase fase(muro(stato.range(1) != 0), static_cast<int>(stato.range(0)));
    for (auto _ : stato) {
        auto moto = equilibrium::meccanismo(fase.parete.problema());
        benchmark::DoNotOptimize(moto);
        if (moto) stato.SkipWithError("no equilibrium");
    }
}

void riduzioni(benchmark::State& stato) {
    const auto dati = muro(stato.range(1) != 0);
    for (auto _ : stato)
        for (int k = 1; k <= dati.nFasi; ++k) {
            auto riduzione = safety::riduzione(dati, static_cast<int>(stato.range(0)), k);
            benchmark::DoNotOptimize(riduzione);
        }
}

void crescita(benchmark::State& stato) {
    const int nSeg = static_cast<int>(stato.range(0));
    const auto dati = bench::scavatoIn(static_cast<int>(stato.range(1)));
    int passi = 0;
    for (auto _ : stato) {
        equilibrium::EquilibrioParete parete(dati, nSeg);
        passi = 0;
        for (int k = 1; k <= dati.nFasi; ++k) {
            const auto& fase = parete.calcola(k);
            passi += fase.passi;
            if (fase.esito != equilibrium::EsitoFase::equilibrio)
                stato.SkipWithError("no equilibrium");
        }
    }
    stato.counters["nodo_e_fase"] = benchmark::Counter(
        (nSeg + 1.0) * dati.nFasi,
        benchmark::Counter::kIsIterationInvariantRate | benchmark::Counter::kInvert);
    stato.counters["passi"] = 1.0 * passi / dati.nFasi;
}

void taglie(benchmark::internal::Benchmark* b) {
    b->Unit(benchmark::kMicrosecond)->ArgNames({"segmenti", "incastro"});
    for (const int incastro : {0, 1})
        for (const int nSeg : {50, 100, 248}) b->Args({nSeg, incastro});
}

void nodiPerFasi(benchmark::internal::Benchmark* b) {
    b->Unit(benchmark::kMicrosecond)->ArgNames({"segmenti", "fasi"});
    for (const int fasi : {1, 5, 20})
        for (const int nSeg : {50, 100, 200, 400, 800}) b->Args({nSeg, fasi});
}

BENCHMARK(passoDiNewton)->Apply(taglie);
BENCHMARK(dpbsv)->Apply(taglie);
BENCHMARK(fasiCerte)->Apply(taglie);
BENCHMARK(fasiSpecificate)->Apply(taglie);
BENCHMARK(verdetto)->Apply(taglie);
BENCHMARK(riduzioni)->Apply(taglie);
BENCHMARK(crescita)->Apply(nodiPerFasi);

}  // namespace

BENCHMARK_MAIN();
