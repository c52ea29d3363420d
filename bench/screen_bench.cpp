#include <benchmark/benchmark.h>

#include <random>

#include "base/folders/program_folder.hpp"
#include "device/graphics_session.hpp"
#include "device/screen_surface.hpp"
#include "plot/plot_configuration.hpp"
#include "plot/plot_engine.hpp"
#include "support/temporary_folder.hpp"

// A drawing of many short strokes on the screen: shown whole, shown enlarged, and copied to a
// window that is uncovered, as every repaint does.

namespace {

using namespace korven;

constexpr double larghezza = 19, altezza = 27;

class Disegno {
 public:
    explicit Disegno(int tratti) {
        base::impostaCartellaProgramma(cartella.percorso());
        plot::ConfigurazionePlot penne;
        for (int i = 1; i <= plot::numeroPenne; ++i) penne.penne[i] = {"Penna", 1, 0.18, "Arial"};
        for (int i = 1; i <= plot::numeroColori; ++i) penne.colori[i] = {"Nero", plot::bianco};
        plot::scriviConfigurazione(cartella / "module06ita.cfg", penne);
        plot::statoPlot = {};
        plot::statoPlot.superficie = &superficie;
        plot::plotApri(0, 0, larghezza, altezza);
        plot::plotPenna(1);
        std::mt19937 caso(200);
        std::uniform_real_distribution<double> x(0, larghezza), y(0, altezza), d(-0.2, 0.2);
        for (int i = 0; i < tratti; ++i) {
            const double px = x(caso), py = y(caso);
            plot::plotMuovi(px, py, plot::pennaSu);
            plot::plotMuovi(px + d(caso), py + d(caso), plot::pennaGiu);
        }
        plot::plotMuovi(0, 0, plot::fineDisegno);
    }
    ~Disegno() { plot::statoPlot = {}; }

    const device::SessioneGrafica sessione;
    const test::CartellaProvvisoria cartella;
    device::SuperficieSchermo superficie{[] { return plot::SpazioDisegno{1000, 1000, 40}; }, [] {}};
};

void ShowTheWholeDrawing(benchmark::State& stato) {
    const Disegno disegno(static_cast<int>(stato.range(0)));
    for (auto _ : stato) plot::plotTutto();
}

void ShowAQuarterOfTheDrawing(benchmark::State& stato) {
    const Disegno disegno(static_cast<int>(stato.range(0)));
    for (auto _ : stato) plot::plotZoom(5, 5, 5 + larghezza / 2, 5 + altezza / 2);
}

void RepaintTheWindow(benchmark::State& stato) {
    const Disegno disegno(static_cast<int>(stato.range(0)));
    QImage finestra(disegno.superficie.immagine().size(), QImage::Format_RGB32);
    for (auto _ : stato) {
        QPainter pittore(&finestra);
        pittore.drawImage(QPointF(), disegno.superficie.immagine());
    }
}

BENCHMARK(ShowTheWholeDrawing)->Arg(20000)->Arg(200000)->Unit(benchmark::kMillisecond);
BENCHMARK(ShowAQuarterOfTheDrawing)->Arg(200000)->Unit(benchmark::kMillisecond);
BENCHMARK(RepaintTheWindow)->Arg(20000)->Arg(200000)->Unit(benchmark::kMillisecond);

}  // namespace

BENCHMARK_MAIN();
