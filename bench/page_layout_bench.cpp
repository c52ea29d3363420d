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

// Widths of a font without a device, asked for each character once, as a program with a
// window does it.
class Measurer {
 public:
    double operator()(const markup::ReportFont& font, std::string_view text) {
        ++measures;
        const std::string key = font.name + (font.bold ? "*" : "") + std::to_string(font.size);
        auto& widths = fonts_[key];
        if (!widths)
            widths = std::make_unique<markup::CharacterWidths>(
                [font](std::string_view t) { return markup::estimatedWidth(font, t); });
        return (*widths)(text);
    }
    long measures = 0;

 private:
    std::map<std::string, std::unique_ptr<markup::CharacterWidths>> fonts_;
};

class Printer : public markup::ReportPrinter {
 public:
    markup::SheetSize sheet() override { return {595.28, 841.89}; }
    void setFont(const markup::ReportFont& font) override { font_ = font; }
    double textWidth(std::string_view text) override { return measure(font_, text); }
    double textHeight() override { return 1.15 * font_.size; }
    double lineStep() override { return 1.15 * font_.size; }
    void startPage() override { ++pages; }
    void write(double, double, std::string_view) override { ++texts; }
    void endPage() override {}
    void endJob() override {}

    Measurer measure;
    long pages = 0, texts = 0;

 private:
    markup::ReportFont font_;
};

class List : public markup::PreviewList {
 public:
    double windowWidth() override { return 600; }
    double textWidth(std::string_view text) override {
        return measure({"Arial", 10, false, false}, text);
    }
    void addLine(std::string_view) override { ++lines; }

    Measurer measure;
    long lines = 0;
};

void print(benchmark::State& state) {
    const std::string text = bench::relazionePiuLunga();
    for (auto _ : state) {
        Printer printer;
        base::LettoreRighe file("muro.TAB", text);
        markup::PrintRenderer renderer(printer);
        markup::renderMarkup(file, markup::RendererKind::print, renderer);
        state.counters["pages"] = static_cast<double>(printer.pages);
        state.counters["texts"] = static_cast<double>(printer.texts);
        state.counters["measures"] = static_cast<double>(printer.measure.measures);
        if (printer.texts < 3L * fasi * nNodi) state.SkipWithError("cells were left out");
    }
}

void preview(benchmark::State& state) {
    const std::string text = bench::relazionePiuLunga();
    for (auto _ : state) {
        List list;
        base::LettoreRighe file("muro.TAB", text);
        markup::PreviewRenderer renderer(list);
        markup::renderMarkup(file, markup::RendererKind::preview, renderer);
        state.counters["lines"] = static_cast<double>(list.lines);
        state.counters["measures"] = static_cast<double>(list.measure.measures);
        if (list.lines < 1L * fasi * nNodi) state.SkipWithError("rows were left out");
    }
}

BENCHMARK(print)->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK(preview)->Unit(benchmark::kMillisecond)->UseRealTime();

}  // namespace

BENCHMARK_MAIN();
