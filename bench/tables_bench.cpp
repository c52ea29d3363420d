#include <benchmark/benchmark.h>

#include <QApplication>

#include "live/wall.hpp"
#include "shell/tables/table_view.hpp"
#include "support/wall_builder.hpp"
#include "tables/node_table.hpp"

// The table of nodes of a wall of 249 segments and 20 stages, as the window of results follows each
// key: its rows alone, and with the view that takes them, sorted.

namespace {

using namespace korven;

const live::PareteViva& parete(bool altra) {
    static const auto pareti = [] {
        std::vector<live::PareteViva> due;
        for (const double sovraccarico : {1.0, 1.1}) {
            test::Muro muro = test::muro().lungo(18).sovraccarico(sovraccarico).falda(4);
            for (int j = 0; j < 20; ++j)
                muro.strato({.fondo = 1.0 * j + 1, .descrizione = "1A Sabbia"});
            muro.tirante(2, 1000, 10);
            for (int k = 1; k <= 20; ++k)
                muro.fase({.scavo = 0.3 * k, .tiranti = k > 10 ? 1.0 : 0.0, .falda = 6});
            due.push_back(live::calcola(muro.dati(), 249));
        }
        return due;
    }();
    return pareti[altra ? 1 : 0];
}

tables::Prospetto prospetto(bool altra, int fase) {
    return fase == 0 ? tables::prospettoInviluppo(parete(altra))
                     : tables::prospettoNodi(parete(altra), fase);
}

void righe(benchmark::State& stato) {
    bool altra = false;
    for (auto _ : stato)
        benchmark::DoNotOptimize(prospetto(altra = !altra, static_cast<int>(stato.range(0))));
    stato.counters["stanno"] = parete(false).fasiInEquilibrio();
}

void vista(benchmark::State& stato) {
    shell::VistaProspetto vista(QStringLiteral("nodi"), nullptr);
    vista.resize(980, 400);
    vista.show();
    vista.sortByColumn(2, Qt::DescendingOrder);
    bool altra = false;
    for (auto _ : stato) vista.mostra(prospetto(altra = !altra, static_cast<int>(stato.range(0))));
}

BENCHMARK(righe)->Arg(0)->Arg(20)->Unit(benchmark::kMillisecond);
BENCHMARK(vista)->Arg(0)->Arg(20)->Unit(benchmark::kMillisecond);

}  // namespace

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication applicazione(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
}
