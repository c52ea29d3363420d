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
class NessunaVista : public markup::MarkupReceiver {
 public:
    void open(markup::ScanState& stato, std::string_view argomento) override {
        controlla(stato);
        (void)markup::parseReset(argomento);
    }
    void textLine(markup::ScanState& stato, std::string_view) override {
        ++stato.lineCounter;
        controlla(stato);
    }
    void table(markup::ScanState& stato) override {
        controlla(stato);
        for (int colonna = 1; colonna <= 40; ++colonna)
            (void)markup::rightAligned(stato.columnStyle, colonna);
    }
    void list(markup::ScanState& stato) override { controlla(stato); }
    void close(markup::ScanState& stato) override { controlla(stato); }

 private:
    static void controlla(const markup::ScanState& stato) {
        test::pretendi(stato.rowCount >= 0 && stato.rowCount <= markup::maximumRows,
                       "no more rows than a table holds");
        test::pretendi(stato.mode == markup::Mode::text || stato.mode == markup::Mode::table ||
                           stato.mode == markup::Mode::list,
                       "one of the three modes");
    }
};

// A printer that sees to it that pages come one after the other and are closed before the job is.
class Pagine : public markup::ReportPrinter {
 public:
    ~Pagine() override { test::pretendi(!pagina_ && !lavoro_, "all pages are handed over"); }
    markup::SheetSize sheet() override { return {595, 842}; }
    void setFont(const markup::ReportFont& font) override { corpo_ = font.size; }
    double textWidth(std::string_view testo) override {
        return static_cast<double>(testo.size()) * corpo_ / 2;
    }
    double textHeight() override { return corpo_; }
    double lineStep() override { return corpo_; }
    void startPage() override {
        test::pretendi(!pagina_, "one page at a time");
        pagina_ = lavoro_ = true;
    }
    void write(double, double, std::string_view) override {
        test::pretendi(pagina_, "texts stand on pages");
    }
    void endPage() override {
        test::pretendi(pagina_, "a page that ends has begun");
        pagina_ = false;
    }
    void endJob() override {
        test::pretendi(lavoro_ && !pagina_, "a job ends once, behind its last page");
        lavoro_ = false;
    }

 private:
    double corpo_ = 0;
    bool pagina_ = false, lavoro_ = false;
};

class Elenco : public markup::PreviewList {
 public:
    double windowWidth() override { return 500; }
    double textWidth(std::string_view testo) override {
        return 5.0 * static_cast<double>(testo.size());
    }
    void addLine(std::string_view) override {}
};

void stampa(const std::string& contenuto) {
    Pagine pagine;
    markup::PrintRenderer renderer(pagine);
    try {
        base::LettoreRighe file("prova.TAB", contenuto);
        markup::renderMarkup(file, markup::RendererKind::print, renderer);
    } catch (const base::ErroreFile&) {
    }
    renderer.finish();
}

void mostra(const std::string& contenuto) {
    Elenco elenco;
    markup::PreviewRenderer renderer(elenco);
    try {
        base::LettoreRighe file("prova.TAB", contenuto);
        markup::renderMarkup(file, markup::RendererKind::preview, renderer);
    } catch (const base::ErroreFile&) {
    }
}

}  // namespace

extern "C" int KORVEN_FUZZ_ENTRY(const std::uint8_t* byte, std::size_t quanti) {
    const std::string contenuto = test::contenutoFile(byte, quanti);
    using enum markup::RendererKind;
    for (const auto tipo : {print, preview, text}) {
        try {
            base::LettoreRighe file("prova.TAB", contenuto);
            NessunaVista vista;
            markup::renderMarkup(file, tipo, vista);
        } catch (const base::ErroreFile&) {
        }
    }
    stampa(contenuto);
    mostra(contenuto);
    try {
        base::LettoreRighe file("prova.TAB", contenuto);
        (void)markup::renderText(file);
    } catch (const base::ErroreFile&) {
    }
    return 0;
}
