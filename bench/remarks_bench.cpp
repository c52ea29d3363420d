#include <benchmark/benchmark.h>

#include "analysis/segment_count.hpp"
#include "review/project_review.hpp"
#include "review/result_review.hpp"
#include "support/wall_files.hpp"

// The remarks on a project: what the desktop program looks for after every command.

namespace {

using namespace korven;

void deiDati(benchmark::State& stato, const char* file) {
    const auto dati = test::leggiMuro(file);
    analysis::contenutoNSeg = "50";
    for (auto _ : stato) benchmark::DoNotOptimize(review::esaminaProgetto(dati));
}

void deiRisultati(benchmark::State& stato, const char* file) {
    const auto dati = test::leggiMuro(file);
    for (auto _ : stato)
        benchmark::DoNotOptimize(review::esaminaRisultati(dati, static_cast<int>(stato.range(0))));
}

void taglie(benchmark::internal::Benchmark* b) {
    b->Arg(50)->Arg(248)->Unit(benchmark::kMillisecond);
}

constexpr const char* mensola = KORVEN_EXAMPLES "/palancola_mensola.kvd";
constexpr const char* lunga = KORVEN_EXAMPLES "/paratia_lunga_incastro.kvd";
constexpr const char* oscillante = KORVEN_WALLS "/oscilla_1.kvd";

BENCHMARK_CAPTURE(deiDati, lunga, lunga)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(deiRisultati, mensola, mensola)->Apply(taglie);
BENCHMARK_CAPTURE(deiRisultati, lunga, lunga)->Apply(taglie);
BENCHMARK_CAPTURE(deiRisultati, oscilla_1, oscillante)->Apply(taglie);

}  // namespace

BENCHMARK_MAIN();
