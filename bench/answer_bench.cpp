#include <benchmark/benchmark.h>

#include <QApplication>
#include <algorithm>
#include <chrono>
#include <filesystem>

#include "analysis/calcolo_paratia.hpp"
#include "analysis/run_flags.hpp"
#include "analysis/segment_count.hpp"
#include "base/folders/file_names.hpp"
#include "commands/report_files.hpp"
#include "example_run.hpp"
#include "shell/run/progress_qt.hpp"
#include "support/dialog_double.hpp"
#include "support/temporary_folder.hpp"

// How long the stop button waits while a run goes on: the longest time between two moments at which
// the event queue was served, with the progress shown as the desktop program shows it.

namespace {

using namespace korven;
using Istante = std::chrono::steady_clock::time_point;

class Attese : public analysis::Avanzamento {
 public:
    void apri() override {
        mostra_.apri();
        servita_ = std::chrono::steady_clock::now();
    }
    void iterazione(const analysis::StatoIterazione& stato) override {
        mostra_.iterazione(stato);
        const Istante ora = std::chrono::steady_clock::now();
        lunga = std::max(lunga, std::chrono::duration<double, std::milli>(ora - servita_).count());
        servita_ = ora;
        ++iterazioni;
    }
    void chiudi() override { mostra_.chiudi(); }

    double lunga = 0;  // ms
    int iterazioni = 0;

 private:
    shell::AvanzamentoQt mostra_;
    Istante servita_;
};

void ServeTheEventQueue(benchmark::State& stato) {
    const test::CartellaProvvisoria cartella;
    const auto dati = bench::esempio("paratia_lunga_incastro");
    analysis::contenutoNSeg = std::to_string(stato.range(0));
    project::fileCorrente = cartella / "muro.kvd";
    test::DialogoFinto dialogo(base::Risposta::no);
    commands::UscitaRelazione uscita(false);
    Attese attese;
    for (auto _ : stato) {
        std::filesystem::remove(base::nomeRisultati(project::fileCorrente));
        project::Progetto = dati;
        analysis::CalcoloParatia(analysis::relazione, {dialogo, attese, uscita});
        if (analysis::erroreCalcolo) stato.SkipWithError("no results");
    }
    stato.counters["iterazioni"] =
        static_cast<double>(attese.iterazioni) / static_cast<double>(stato.iterations());
    stato.counters["attesa_ms"] = attese.lunga;
}

BENCHMARK(ServeTheEventQueue)->Arg(50)->Arg(248)->Unit(benchmark::kMillisecond)->UseRealTime();

}  // namespace

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication applicazione(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
}
