#include <benchmark/benchmark.h>

#include <QGuiApplication>
#include <QImage>
#include <QPainter>
#include <string>

#include "base/folders/program_folder.hpp"
#include "device/graphics_session.hpp"
#include "device/scene_painter.hpp"
#include "live/wall.hpp"
#include "live/working_values.hpp"
#include "masks/editing.hpp"
#include "scene/scene.hpp"
#include "support/wall_builder.hpp"

// From a key in the form of the layers to the picture: the values of the form become a project, its
// wall is computed, laid out and painted. The largest project there can be: 100 layers under as
// many hatches, 20 anchors, 20 stages, 249 segments, on a screen of 1600 by 1000.

namespace {

using namespace korven;

project::DatiProgetto massimo() {
    const int patterns[] = {1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15, 25, 26, 30, 31, 40};
    auto muro = test::muro().lungo(30).rigido(150000).falda(6).sovraccarico(1);
    for (int i = 1; i <= project::massimoStrati; ++i)
        muro.strato({.fondo = 0.4 * i,
                     .phi = 28.0 + i % 7,
                     .ks = 2000.0 + 20 * i,
                     .descrizione = std::to_string(100 + patterns[i % 20]) + "C" +
                                    std::to_string(1 + i % 21) + " Strato numero " +
                                    std::to_string(i) + ", sabbia con limo"});
    for (int j = 1; j <= project::massimoTiranti; ++j) muro.tirante(0.7 * j, 800, 5);
    for (int k = 1; k <= project::massimoFasi; ++k)
        muro.fase({.scavo = 0.75 * k, .tiranti = k - 1.0, .falda = std::max(6.0, 0.75 * k)});
    return muro.dati();
}

class Banco {
 public:
    Banco() {
        maschere_.leggiMaschereProgramma();
        masks::preparaMaschera(maschere_, masks::NumeroMaschera::strati, dati_, 0);
        valori_ = {masks::NumeroMaschera::strati, {}, maschere_.valoriTesto()};
    }

    [[nodiscard]] live::PareteViva parete() const {
        const auto inCorso = live::conValori(dati_, maschere_.corrente(), valori_);
        return live::calcola(*inCorso.dati, 249);
    }
    [[nodiscard]] scene::Scena scena(const live::PareteViva& parete, int fase) const {
        return scene::scena(parete, {fase, live::Curva::momento}, {1600, 1000}, misura_);
    }
    void dipingi(const scene::Scena& scena) {
        QPainter p(&immagine_);
        pittore_.dipingi(p, scena);
    }
    // Another value in the first cell of numbers at each call, as somebody types it.
    void digita(int volta) { valori_.testi[2] = "18." + std::to_string(volta % 9 + 1); }

 private:
    const device::SessioneGrafica sessione_;
    project::DatiProgetto dati_ = massimo();
    masks::Maschere maschere_;
    live::ValoriForma valori_;
    device::MisuraTestiQt misura_{QGuiApplication::font()};
    device::PittoreScena pittore_{QGuiApplication::font(), scene::Tavolozza::chiara};
    QImage immagine_{1600, 1000, QImage::Format_RGB32};
};

void daTastoAFigura(benchmark::State& stato) {
    Banco banco;
    int volta = 0;
    for (auto _ : stato) {
        banco.digita(++volta);
        banco.dipingi(banco.scena(banco.parete(), static_cast<int>(stato.range(0))));
    }
    const auto parete = banco.parete();
    if (!parete.sta()) stato.SkipWithError(("no wall: " + parete.rifiuto).c_str());
}

void parete(benchmark::State& stato) {
    const Banco banco;
    for (auto _ : stato) benchmark::DoNotOptimize(banco.parete());
}

void disposizione(benchmark::State& stato) {
    const Banco banco;
    const auto una = banco.parete();
    for (auto _ : stato)
        benchmark::DoNotOptimize(banco.scena(una, static_cast<int>(stato.range(0))));
}

void pittura(benchmark::State& stato) {
    Banco banco;
    const auto una = banco.scena(banco.parete(), static_cast<int>(stato.range(0)));
    for (auto _ : stato) banco.dipingi(una);
}

// The envelope and the last stage.
BENCHMARK(daTastoAFigura)->Arg(0)->Arg(20)->Unit(benchmark::kMillisecond);
BENCHMARK(parete)->Unit(benchmark::kMillisecond);
BENCHMARK(disposizione)->Arg(0)->Arg(20)->Unit(benchmark::kMillisecond);
BENCHMARK(pittura)->Arg(0)->Arg(20)->Unit(benchmark::kMillisecond);

}  // namespace

BENCHMARK_MAIN();
