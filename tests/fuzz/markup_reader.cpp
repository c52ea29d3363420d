#include "report/markup_reader.hpp"

#include "base/file_error.hpp"
#include "fuzz_target.hpp"
#include "report/reset_arguments.hpp"
#include "report/table_style.hpp"
#include "report/text_renderer.hpp"

// Any bytes as a report in mark-up, read as each of the three renderers reads it and exported as
// plain text. Only a table of too many rows is refused.

namespace {

using namespace korven;

// Shows nothing, but takes the arguments apart as a renderer with pages does.
class NessunaVista : public report::MarkupReceiver {
 public:
    void open(report::ScanState& stato, std::string_view argomento) override {
        controlla(stato);
        (void)report::parseReset(argomento);
    }
    void textLine(report::ScanState& stato, std::string_view) override {
        ++stato.lineCounter;
        controlla(stato);
    }
    void table(report::ScanState& stato) override {
        controlla(stato);
        for (int colonna = 1; colonna <= 40; ++colonna)
            (void)report::rightAligned(stato.columnStyle, colonna);
    }
    void list(report::ScanState& stato) override { controlla(stato); }
    void close(report::ScanState& stato) override { controlla(stato); }

 private:
    static void controlla(const report::ScanState& stato) {
        test::pretendi(stato.rowCount >= 0 && stato.rowCount <= report::maximumRows,
                       "no more rows than a table holds");
        test::pretendi(stato.mode == report::Mode::text || stato.mode == report::Mode::table ||
                           stato.mode == report::Mode::list,
                       "one of the three modes");
    }
};

}  // namespace

extern "C" int KORVEN_FUZZ_ENTRY(const std::uint8_t* byte, std::size_t quanti) {
    const std::string contenuto = test::contenutoFile(byte, quanti);
    using enum report::RendererKind;
    for (const auto tipo : {print, preview, text}) {
        try {
            base::LettoreRighe file("prova.TAB", contenuto);
            NessunaVista vista;
            report::renderMarkup(file, tipo, vista);
        } catch (const base::ErroreFile&) {
        }
    }
    try {
        base::LettoreRighe file("prova.TAB", contenuto);
        (void)report::renderText(file);
    } catch (const base::ErroreFile&) {
    }
    return 0;
}
