#include <benchmark/benchmark.h>

#include <QApplication>
#include <QImage>
#include <QKeyEvent>
#include <QPainter>
#include <string>

#include "analysis/segment_count.hpp"
#include "device/scene_painter.hpp"
#include "live/wall.hpp"
#include "live/working_values.hpp"
#include "masks/editing.hpp"
#include "project/project_data.hpp"
#include "scene/scene.hpp"
#include "shell/live/live_view.hpp"
#include "shell/masks/base2_32.hpp"
#include "shell/picture/picture_panel.hpp"
#include "shell/picture/picture_view.hpp"
#include "support/dialog_double.hpp"
#include "support/wall_builder.hpp"

// From a key in the form of the layers to the picture in the main form: the key goes into its cell,
// the values of the form become a project, its wall is computed, laid out and painted. The largest
// project there can be: 100 layers under as many hatches, 20 anchors, 20 stages, 249 segments, on a
// picture of 1600 by 1000.

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

    [[nodiscard]] masks::Maschere& maschere() { return maschere_; }
    [[nodiscard]] const project::DatiProgetto& dati() const { return dati_; }
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

 private:
    project::DatiProgetto dati_ = massimo();
    masks::Maschere maschere_;
    live::ValoriForma valori_;
    device::MisuraTestiQt misura_{QApplication::font()};
    device::PittoreScena pittore_{QApplication::font(), scene::Tavolozza::chiara};
    QImage immagine_{1600, 1000, QImage::Format_RGB32};
};

// The form of the layers over the picture of the main form, as the program puts them together.
class Scrivania : public QObject {
 public:
    explicit Scrivania(int fase) {
        project::Progetto = banco_.dati();
        project::fileCorrente = "muro.kvd";
        analysis::contenutoNSeg = "249";
        pannello_.resize(1600, 1000);
        pannello_.show();
        QCoreApplication::processEvents();
        pannello_.resize(1600, 1000 + pannello_.height() - pannello_.vista().height());
        vita_.guarda();
        vita_.mostra({fase, live::Curva::momento});
        connect(&forma_, &shell::FormaMaschera::digitata, &vita_, [this] {
            live::ValoriForma valori = forma_.valori();
            valori.maschera = masks::NumeroMaschera::strati;
            vita_.digita(banco_.maschere().corrente(), valori);
        });
        forma_.comincia({1, 2});
        forma_.show();
        pannello_.vista().installEventFilter(this);
        QCoreApplication::processEvents();
    }
    ~Scrivania() override {
        analysis::contenutoNSeg.reset();
        project::fileCorrente.clear();
        project::azzeraProgetto();
    }
    Scrivania(const Scrivania&) = delete;
    Scrivania& operator=(const Scrivania&) = delete;

    // A digit that begins a cell anew, till the picture that it makes has been painted.
    // @return false: it has made none
    bool digita(int volta) {
        const int prima = pitture_;
        const char cifra = static_cast<char>('1' + volta % 9);
        premi(Qt::Key_0 + (cifra - '0'), QString(QLatin1Char(cifra)));
        for (int giro = 0; pitture_ == prima && giro < 10; ++giro)
            QCoreApplication::processEvents();
        return pitture_ == prima + 1;
    }
    // To the next cell and back: the next digit begins anew.
    void ricomincia() {
        premi(Qt::Key_Right, {});
        premi(Qt::Key_Left, {});
        QCoreApplication::processEvents();
    }
    [[nodiscard]] const live::ProgettoVivo& vivo() const { return vita_.vivo(); }

 private:
    void premi(int tasto, const QString& testo) {
        for (const auto tipo : {QEvent::KeyPress, QEvent::KeyRelease}) {
            QKeyEvent evento(tipo, tasto, Qt::NoModifier, testo);
            QCoreApplication::sendEvent(forma_.focusWidget(), &evento);
        }
    }
    bool eventFilter(QObject*, QEvent* evento) override {
        pitture_ += evento->type() == QEvent::Paint ? 1 : 0;
        return false;
    }

    Banco banco_;
    test::DialogoFinto dialogo_;
    shell::VitaProgetto vita_;
    shell::PannelloFigura pannello_{vita_, [](const QFont&) {}};
    shell::Base2_32 forma_{banco_.maschere().corrente(),
                           banco_.maschere().valoriTesto(),
                           dialogo_,
                           {},
                           nullptr,
                           masks::capienza(masks::NumeroMaschera::strati)};
    int pitture_ = 0;
};

void daTastoAFigura(benchmark::State& stato) {
    Scrivania scrivania(static_cast<int>(stato.range(0)));
    int volta = 0;
    for (auto _ : stato) {
        if (!scrivania.digita(++volta)) {
            stato.SkipWithError("not painted once");
            break;
        }
        stato.PauseTiming();
        scrivania.ricomincia();
        stato.ResumeTiming();
    }
    const live::ProgettoVivo& vivo = scrivania.vivo();
    if (!vivo.impedimento().empty()) stato.SkipWithError(vivo.impedimento().c_str());
    if (!vivo.parete().sta() || vivo.parete().nSeg != 249) stato.SkipWithError("no wall");
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

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication applicazione(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
}
