#include <benchmark/benchmark.h>

#include <filesystem>

#include "analysis/calcolo_paratia.hpp"
#include "analysis/run_flags.hpp"
#include "analysis/segment_count.hpp"
#include "base/folders/file_names.hpp"
#include "commands/report_files.hpp"
#include "example_run.hpp"
#include "support/dialog_double.hpp"
#include "support/progress_double.hpp"
#include "support/temporary_folder.hpp"

// Whole runs of the largest example, a long wall with six layers and six stages, files included.

namespace {

using namespace korven;

void corsa(benchmark::State& stato, bool aggiornata, bool relazione) {
    const test::CartellaProvvisoria cartella;
    const auto dati = bench::esempio("paratia_lunga_incastro");
    analysis::contenutoNSeg = std::to_string(stato.range(0));
    project::fileCorrente = cartella / "muro.kvd";
    test::DialogoFinto dialogo(base::Risposta::no);
    test::AvanzamentoFinto avanzamento;
    commands::UscitaRelazione uscita(relazione);
    const auto esegui = [&] {
        project::Progetto = dati;
        analysis::CalcoloParatia(analysis::relazione, {dialogo, avanzamento, uscita});
    };
    esegui();
    for (auto _ : stato) {
        if (!aggiornata) {
            stato.PauseTiming();
            std::filesystem::remove(base::nomeRisultati(project::fileCorrente));
            stato.ResumeTiming();
        }
        avanzamento.iterazioni = 0;
        esegui();
        if (analysis::erroreCalcolo || (avanzamento.iterazioni == 0) != aggiornata)
            stato.SkipWithError("not the run that was meant");
    }
    stato.counters["iterazioni"] = avanzamento.iterazioni;
}

void taglie(benchmark::internal::Benchmark* b) {
    b->Unit(benchmark::kMillisecond)->UseRealTime();
    for (const int nSeg : {50, 100, 248}) b->Arg(nSeg);
}

BENCHMARK_CAPTURE(corsa, daCapo, false, false)->Apply(taglie);
BENCHMARK_CAPTURE(corsa, aggiornata, true, false)->Apply(taglie);
BENCHMARK_CAPTURE(corsa, daCapoConRelazione, false, true)->Apply(taglie);

}  // namespace

BENCHMARK_MAIN();
