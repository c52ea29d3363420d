#include "base/file_error.hpp"
#include "fuzz_target.hpp"
#include "markup/preview_renderer.hpp"
#include "markup/print_renderer.hpp"
#include "markup/reader.hpp"
#include "markup/reset_arguments.hpp"
#include "markup/table_style.hpp"
#include "markup/text_renderer.hpp"

// Any bytes as a report in mark-up, read as each of the three renderers reads it, printed, shown
// and exported as plain text. Only a table beyond its capacity is refused.

namespace {

using namespace korven;

// Shows nothing, but takes the arguments apart as a renderer with pages does.
class NoView : public markup::MarkupReceiver {
 public:
    void open(markup::ScanState& state, std::string_view argument) override {
        check(state);
        (void)markup::parseReset(argument);
    }
    void textLine(markup::ScanState& state, std::string_view) override {
        ++state.lineCounter;
        check(state);
    }
    void table(markup::ScanState& state) override {
        check(state);
        for (int column = 1; column <= 40; ++column)
            (void)markup::rightAligned(state.columnStyle, column);
    }
    void list(markup::ScanState& state) override { check(state); }
    void close(markup::ScanState& state) override { check(state); }

 private:
    static void check(const markup::ScanState& state) {
        test::pretendi(state.rowCount >= 0 && state.rowCount <= markup::maximumRows,
                       "no more rows than a table holds");
        test::pretendi(state.mode == markup::Mode::text || state.mode == markup::Mode::table ||
                           state.mode == markup::Mode::list,
                       "one of the three modes");
    }
};

// A printer that sees to it that pages come one after the other and are closed before the job is.
class Pages : public markup::ReportPrinter {
 public:
    ~Pages() override { test::pretendi(!page_ && !job_, "all pages are handed over"); }
    markup::SheetSize sheet() override { return {595, 842}; }
    void setFont(const markup::ReportFont& font) override { size_ = font.size; }
    double textWidth(std::string_view text) override {
        return static_cast<double>(text.size()) * size_ / 2;
    }
    double textHeight() override { return size_; }
    double lineStep() override { return size_; }
    void startPage() override {
        test::pretendi(!page_, "one page at a time");
        page_ = job_ = true;
    }
    void write(double, double, std::string_view) override {
        test::pretendi(page_, "texts are written on pages");
    }
    void endPage() override {
        test::pretendi(page_, "a page that ends has begun");
        page_ = false;
    }
    void endJob() override {
        test::pretendi(job_ && !page_, "a job ends once, after its last page");
        job_ = false;
    }

 private:
    double size_ = 0;
    bool page_ = false, job_ = false;
};

class List : public markup::PreviewList {
 public:
    double windowWidth() override { return 500; }
    double textWidth(std::string_view text) override {
        return 5.0 * static_cast<double>(text.size());
    }
    void addLine(std::string_view) override {}
};

void printIt(const std::string& content) {
    Pages pages;
    markup::PrintRenderer renderer(pages);
    try {
        base::LettoreRighe file("prova.TAB", content);
        markup::renderMarkup(file, markup::RendererKind::print, renderer);
    } catch (const base::ErroreFile&) {
    }
    renderer.finish();
}

void showIt(const std::string& content) {
    List list;
    markup::PreviewRenderer renderer(list);
    try {
        base::LettoreRighe file("prova.TAB", content);
        markup::renderMarkup(file, markup::RendererKind::preview, renderer);
    } catch (const base::ErroreFile&) {
    }
}

}  // namespace

extern "C" int KORVEN_FUZZ_ENTRY(const std::uint8_t* bytes, std::size_t count) {
    const std::string content = test::contenutoFile(bytes, count);
    using enum markup::RendererKind;
    for (const auto kind : {print, preview, text}) {
        try {
            base::LettoreRighe file("prova.TAB", content);
            NoView view;
            markup::renderMarkup(file, kind, view);
        } catch (const base::ErroreFile&) {
        }
    }
    printIt(content);
    showIt(content);
    try {
        base::LettoreRighe file("prova.TAB", content);
        (void)markup::renderText(file);
    } catch (const base::ErroreFile&) {
    }
    return 0;
}
