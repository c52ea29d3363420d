#include <benchmark/benchmark.h>

#include <map>
#include <memory>
#include <string>

#include "base/text_lines.hpp"
#include "largest_report.hpp"
#include "markup/character_widths.hpp"
#include "markup/estimated_width.hpp"
#include "markup/preview_renderer.hpp"
#include "markup/print_renderer.hpp"

// The largest report there can be, laid out on pages and in the list of the preview, without Qt.

namespace {

using namespace korven;

using bench::fasi;
using bench::nNodi;

// Widths of a font without a device, asked for each character once, as a program with a window
// does it.
class Misuratore {
 public:
    double operator()(const markup::ReportFont& font, std::string_view testo) {
        ++misure;
        const std::string chiave = font.name + (font.bold ? "*" : "") + std::to_string(font.size);
        auto& larghezze = fonts_[chiave];
        if (!larghezze)
            larghezze = std::make_unique<markup::CharacterWidths>(
                [font](std::string_view t) { return markup::estimatedWidth(font, t); });
        return (*larghezze)(testo);
    }
    long misure = 0;

 private:
    std::map<std::string, std::unique_ptr<markup::CharacterWidths>> fonts_;
};

class Stampante : public markup::ReportPrinter {
 public:
    markup::SheetSize sheet() override { return {595.28, 841.89}; }
    void setFont(const markup::ReportFont& font) override { font_ = font; }
    double textWidth(std::string_view testo) override { return misura(font_, testo); }
    double textHeight() override { return 1.15 * font_.size; }
    double lineStep() override { return 1.15 * font_.size; }
    void startPage() override { ++pagine; }
    void write(double, double, std::string_view) override { ++testi; }
    void endPage() override {}
    void endJob() override {}

    Misuratore misura;
    long pagine = 0, testi = 0;

 private:
    markup::ReportFont font_;
};

class Elenco : public markup::PreviewList {
 public:
    double windowWidth() override { return 600; }
    double textWidth(std::string_view testo) override {
        return misura({"Arial", 10, false, false}, testo);
    }
    void addLine(std::string_view) override { ++righe; }

    Misuratore misura;
    long righe = 0;
};

void stampa(benchmark::State& stato) {
    const std::string testo = bench::relazionePiuLunga();
    for (auto _ : stato) {
        Stampante stampante;
        base::LettoreRighe file("muro.TAB", testo);
        markup::PrintRenderer renderer(stampante);
        markup::renderMarkup(file, markup::RendererKind::print, renderer);
        stato.counters["pagine"] = static_cast<double>(stampante.pagine);
        stato.counters["testi"] = static_cast<double>(stampante.testi);
        stato.counters["misure"] = static_cast<double>(stampante.misura.misure);
        if (stampante.testi < 3L * fasi * nNodi) stato.SkipWithError("cells were left out");
    }
}

void anteprima(benchmark::State& stato) {
    const std::string testo = bench::relazionePiuLunga();
    for (auto _ : stato) {
        Elenco elenco;
        base::LettoreRighe file("muro.TAB", testo);
        markup::PreviewRenderer renderer(elenco);
        markup::renderMarkup(file, markup::RendererKind::preview, renderer);
        stato.counters["righe"] = static_cast<double>(elenco.righe);
        stato.counters["misure"] = static_cast<double>(elenco.misura.misure);
        if (elenco.righe < 1L * fasi * nNodi) stato.SkipWithError("rows were left out");
    }
}

BENCHMARK(stampa)->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK(anteprima)->Unit(benchmark::kMillisecond)->UseRealTime();

}  // namespace

BENCHMARK_MAIN();
