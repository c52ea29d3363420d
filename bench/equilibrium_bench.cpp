#include <benchmark/benchmark.h>

#include <memory>

#include "analysis/staged_run.hpp"
#include "equilibrium/staged_equilibrium.hpp"
#include "example_run.hpp"
#include "yardsticks.hpp"

// The certain method beside what it is measured by: a step of Newton's method beside LAPACK's
// solver of a banded system of the same size, and all stages of an example beside the specified
// run, both in memory and with the soil.

namespace {

using namespace korven;

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

void taglie(benchmark::internal::Benchmark* b) {
    b->Unit(benchmark::kMicrosecond)->ArgNames({"segmenti", "incastro"});
    for (const int incastro : {0, 1})
        for (const int nSeg : {50, 100, 248}) b->Args({nSeg, incastro});
}

BENCHMARK(passoDiNewton)->Apply(taglie);
BENCHMARK(dpbsv)->Apply(taglie);
BENCHMARK(fasiCerte)->Apply(taglie);
BENCHMARK(fasiSpecificate)->Apply(taglie);

}  // namespace

BENCHMARK_MAIN();
