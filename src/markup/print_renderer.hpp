#pragma once

#include <string>
#include <string_view>

#include "base/dialogo.hpp"
#include "markup/cells.hpp"
#include "markup/reader.hpp"
#include "markup/report_page.hpp"
#include "markup/report_printer.hpp"
#include "markup/table_fitting.hpp"

namespace korven::markup {

/// Lays the report out on the pages of a printer: each text and each cell at its place, page breaks
/// with header and footer, the head row of a table repeated on each of its pages. Nothing is
/// wrapped or shrunk; what is too wide runs over the margin.
class PrintRenderer : public MarkupReceiver {
 public:
    /// @param printer  not owned; must outlive the renderer
    explicit PrintRenderer(ReportPrinter& printer);

    void open(ScanState& state, std::string_view argument) override;
    void textLine(ScanState& state, std::string_view text) override;
    void table(ScanState& state) override;
    void list(ScanState& state) override;
    void close(ScanState& state) override;
    void font(std::string_view name) override;
    void fontSize(double points) override;
    void fontItalic(bool on) override;
    void newPage(ScanState& state) override;
    void newParagraph(ScanState& state, double centimetres) override;

    /// Hands over what a document without #ENDDOCUMENT left open. Its last page has no footer.
    void finish();

 private:
    void write(double x, std::string_view text);
    void writeAligned(Alignment alignment, std::string_view text);
    void endLine();
    void bold(bool on);
    void inHeaderFont(const auto& what);
    void header(const ScanState& state);
    void headerIfDue(const ScanState& state);
    void footer(const ScanState& state);
    void endPage();
    void breakPage(const ScanState& state);
    bool pageTest(const ScanState& state, double need = 0);
    FittedTable fit(const ScanState& state, BlockKind kind);
    void countRow(ScanState& state);
    void tableRow(const ScanState& state, const FittedTable& fitted, int row);
    void headRow(const ScanState& state, const FittedTable& fitted);
    void listRow(const ScanState& state, const FittedTable& fitted, int row);

    ReportPrinter& printer_;
    TextMeasure measure_;
    CellGrid grid_;
    ReportPage page_;
    ReportFont body_;
    double y_ = 0;            ///< top of the line that comes next
    bool atPageTop_ = false;  ///< the header was the last thing printed
    bool pageOpen_ = false;
    bool jobOpen_ = false;
};

/// Prints a mark-up file, with the pointer waiting meanwhile. Without such a file it does nothing.
/// @throws ErroreFile for a table beyond 2000 rows, or 510 rows or 30 columns of the grid, and what
///         the printer throws
void printReport(const std::string& path, ReportPrinter& printer, base::Dialogo& dialog);

}  // namespace korven::markup
