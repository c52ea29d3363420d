#include <benchmark/benchmark.h>
#include <stdlib.h>

#include <QApplication>
#include <QListView>
#include <filesystem>

#include "device/report_pages.hpp"
#include "largest_report.hpp"
#include "markup/print_renderer.hpp"
#include "shell/report/form1.hpp"
#include "support/dialog_double.hpp"
#include "support/temporary_folder.hpp"

// The largest report there can be with the fonts, pages and list of Qt, from the mark-up file to
// the PDF file and to the picture of the preview.

namespace {

using namespace korven;

struct Relazione {
    Relazione() { test::metti(percorso, bench::relazionePiuLunga()); }
    const test::CartellaProvvisoria cartella;
    const std::string percorso = cartella / "muro.TAB";
    const std::string pdf = cartella / "muro.pdf";
};

void stampaPdf(benchmark::State& stato) {
    const Relazione relazione;
    test::DialogoFinto dialogo;
    for (auto _ : stato) {
        const auto carta = device::relazioneSuPdf(relazione.pdf, "muro");
        markup::printReport(relazione.percorso, *carta, dialogo);
    }
    const auto byte = std::filesystem::file_size(relazione.pdf);
    stato.counters["byte"] = static_cast<double>(byte);
    if (byte < 100000) stato.SkipWithError("pages were left out");
}

// Shown, its first screen drawn, closed.
void anteprima(benchmark::State& stato) {
    const Relazione relazione;
    shell::Form1 forma;
    int righe = 0;
    for (auto _ : stato) {
        forma.mostra(relazione.percorso);
        benchmark::DoNotOptimize(forma.grab());
        righe = forma.findChild<QListView*>()->model()->rowCount();
        forma.close();
    }
    stato.counters["righe"] = righe;
    if (righe < bench::fasi * bench::nNodi) stato.SkipWithError("rows were left out");
}

BENCHMARK(stampaPdf)->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK(anteprima)->Unit(benchmark::kMillisecond)->UseRealTime();

}  // namespace

int main(int argc, char** argv) {
    const test::CartellaProvvisoria utente;
    ::setenv("XDG_CONFIG_HOME", utente.percorso().c_str(), 1);
    ::setenv("QT_QPA_PLATFORM", "offscreen", 1);
    const QApplication applicazione(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
