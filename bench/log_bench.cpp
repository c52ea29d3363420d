#include <benchmark/benchmark.h>

#include <cstdint>
#include <random>

#include "base/folders/program_folder.hpp"
#include "drawings/hatch_library.hpp"
#include "drawings/log/stratigraphic_log.hpp"
#include "plot/dxf/export.hpp"
#include "plot/plot_configuration.hpp"
#include "plot/plot_engine.hpp"
#include "support/hatch_files.hpp"
#include "support/temporary_folder.hpp"
#include "support/wall_builder.hpp"

// A stratigraphic log with dense hatches through all its stations: drawn into the store and the
// spill files, read back for a surface, written as DXF. Each has to grow as the strokes do.

namespace {

using namespace korven;

constexpr int pattern = 5;
constexpr int strati = 5;

// Shows nothing and knows how much it was shown.
class Contatore : public plot::SuperficieDisegno {
 public:
    plot::SpazioDisegno spazio() override {
        plot::SpazioDisegno finestra;
        finestra.larghezza = 800;
        finestra.altezza = 1140;
        return finestra;
    }
    void prepara(const plot::Riquadro&, double, double) override { linee = 0; }
    void marcaFoglio(const plot::Riquadro&, plot::Colore) override {}
    void spessore(int) override {}
    void poligono(const plot::PoligonoPlot&) override {}
    void linea(const plot::Tratto&, plot::Colore) override { ++linee; }
    void testo(const plot::TestoSuperficie&) override {}
    void aggiorna() override {}

    long linee = 0;
};

// Each layer is 4 cm of column high: three whole tiles of 1 cm and two halves.
project::DatiProgetto progetto() {
    test::Muro muro = test::muro().falda(3);
    for (int i = 1; i <= strati; ++i)
        muro.strato({.fondo = 4.0 * i,
                     .descrizione = "105 Sabbia fine limosa, debolmente argillosa, con rara "
                                    "ghiaia."});
    return muro.dati();
}

// Short strokes all over the tile, as many as fill the column with `tratti` of them.
test::CampituraDiProva fitta(int tratti) {
    constexpr int piastrelle = 4 * strati;
    std::mt19937 caso(200);
    std::uniform_int_distribution<int> posto(-100, 95);
    test::CampituraDiProva campitura{0.005, {}, "fitta"};
    for (int i = 0; i < tratti / piastrelle; ++i) {
        const auto x = static_cast<std::int16_t>(posto(caso));
        const auto y = static_cast<std::int16_t>(posto(caso));
        campitura.tratti.push_back(
            {x, y, static_cast<std::int16_t>(x + 5), static_cast<std::int16_t>(y + 5)});
    }
    return campitura;
}

class Cartella {
 public:
    explicit Cartella(int tratti) {
        base::impostaCartellaProgramma(cartella.percorso());
        plot::ConfigurazionePlot penne;
        for (int i = 1; i <= plot::numeroPenne; ++i) penne.penne[i] = {"Penna", 1, 0.18, "Arial"};
        for (int i = 1; i <= plot::numeroColori; ++i) penne.colori[i] = {"Nero", plot::bianco};
        plot::scriviConfigurazione(cartella / "module06ita.cfg", penne);
        scriviLibreria(cartella, {{pattern, fitta(tratti)}});
        drawings::dimenticaCampiture();
        plot::statoPlot = {};
    }
    Cartella(const Cartella&) = delete;
    Cartella& operator=(const Cartella&) = delete;
    ~Cartella() {
        plot::statoPlot = {};
        base::impostaCartellaProgramma({});
    }

    const test::CartellaProvvisoria cartella;
    Contatore superficie;
};

void conta(benchmark::State& stato) {
    long linee = 0;
    plot::statoPlot.archivio.perOgniLinea([&](const plot::Segmento&) { ++linee; });
    stato.SetComplexityN(linee);
    stato.counters["tratti"] = static_cast<double>(linee);
    stato.counters["file"] = plot::statoPlot.archivio.nFileScarico();
}

void disegna(benchmark::State& stato) {
    const Cartella cartella(static_cast<int>(stato.range(0)));
    const auto dati = progetto();
    for (auto _ : stato) drawings::disegnaStratigrafia(dati);
    conta(stato);
}

void rivedi(benchmark::State& stato) {
    Cartella cartella(static_cast<int>(stato.range(0)));
    drawings::disegnaStratigrafia(progetto());
    plot::statoPlot.superficie = &cartella.superficie;
    for (auto _ : stato) plot::plotTutto();
    conta(stato);
    if (static_cast<double>(cartella.superficie.linee) != stato.counters["tratti"])
        stato.SkipWithError("not all strokes were shown");
}

void scriviDxf(benchmark::State& stato) {
    const Cartella cartella(static_cast<int>(stato.range(0)));
    drawings::disegnaStratigrafia(progetto());
    for (auto _ : stato) plot::plotDxf(cartella.cartella / "stratigrafia.dxf");
    conta(stato);
}

void taglie(benchmark::internal::Benchmark* b) {
    b->Unit(benchmark::kMillisecond)->UseRealTime();
    for (const int tratti : {25000, 50000, 100000, 200000}) b->Arg(tratti);
    b->Complexity(benchmark::oN);
}

BENCHMARK(disegna)->Apply(taglie);
BENCHMARK(rivedi)->Apply(taglie);
BENCHMARK(scriviDxf)->Apply(taglie);

}  // namespace

BENCHMARK_MAIN();
