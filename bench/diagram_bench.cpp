#include <benchmark/benchmark.h>

#include "analysis/calcolo_paratia.hpp"
#include "analysis/run_flags.hpp"
#include "analysis/segment_count.hpp"
#include "base/folders/file_names.hpp"
#include "base/folders/program_folder.hpp"
#include "commands/diagram_output.hpp"
#include "drawings/result_diagram.hpp"
#include "example_run.hpp"
#include "plot/plot_configuration.hpp"
#include "plot/plot_engine.hpp"
#include "support/dialog_double.hpp"
#include "support/progress_double.hpp"
#include "support/temporary_folder.hpp"

// A diagram of the largest example from its result file to the finished store.

namespace {

using namespace korven;

// All stages visible: any pen will do.
void penne(const test::CartellaProvvisoria& programma) {
    plot::ConfigurazionePlot c;
    for (int i = 1; i <= plot::numeroColori; ++i) c.colori[i] = {"Colore", plot::bianco};
    for (int i = 1; i <= plot::numeroPenne; ++i) c.penne[i] = {"Penna", 1, 0.25, "Arial"};
    plot::scriviConfigurazione(programma / "module06ita.cfg", c);
    base::impostaCartellaProgramma(programma.percorso());
}

void diagramma(benchmark::State& stato, analysis::Diagramma quale) {
    const test::CartellaProvvisoria programma, cartella;
    penne(programma);
    project::Progetto = bench::esempio("paratia_lunga_incastro");
    analysis::contenutoNSeg = std::to_string(stato.range(0));
    project::fileCorrente = cartella / "muro.kvd";
    test::DialogoFinto dialogo(base::Risposta::no);
    test::AvanzamentoFinto avanzamento;
    commands::UscitaDiagramma uscita;
    analysis::CalcoloParatia(quale, {dialogo, avanzamento, uscita});
    if (analysis::erroreCalcolo) stato.SkipWithError("no results");
    project::fileCorrente = base::nomeRisultati(project::fileCorrente);
    for (auto _ : stato) drawings::disegnaDiagramma(quale);
    stato.counters["lines"] = static_cast<double>(plot::statoPlot.archivio.lineeInMemoria().size());
}

void taglie(benchmark::internal::Benchmark* b) {
    b->Arg(50)->Arg(248)->Unit(benchmark::kMillisecond);
}

BENCHMARK_CAPTURE(diagramma, pressioni, analysis::Diagramma::pressioni)->Apply(taglie);
BENCHMARK_CAPTURE(diagramma, momenti, analysis::Diagramma::momenti)->Apply(taglie);
BENCHMARK_CAPTURE(diagramma, taglio, analysis::Diagramma::taglio)->Apply(taglie);

}  // namespace

BENCHMARK_MAIN();
