#include "markup/print_renderer.hpp"

#include "base/files.hpp"
#include "base/pointer_guard.hpp"
#include "markup/table_style.hpp"
#include "markup/text_filling.hpp"

namespace korven::markup {

PrintRenderer::PrintRenderer(ReportPrinter& printer)
    : printer_(printer),
      measure_([&printer](std::string_view t) { return printer.textWidth(t); }) {}

void PrintRenderer::open(ScanState&, std::string_view argument) {
    const SheetSize sheet = printer_.sheet();
    page_ = {parseReset(argument), usableLength(sheet.width), usableLength(sheet.height)};
    body_.name = page_.layout.headerFontName;
    body_.size = page_.layout.headerFontSize;
    printer_.setFont(body_);
    if (!pageOpen_) y_ = 0;
}

void PrintRenderer::textLine(ScanState& state, std::string_view text) {
    headerIfDue(state);
    ++state.lineCounter;
    if (text.empty() && atPageTop_) return;
    if (pageTest(state)) state.lineCounter = 1;
    writeAligned(state.alignment, text);
    endLine();
    atPageTop_ = false;
}

void PrintRenderer::table(ScanState& state) {
    const FittedTable fitted = fit(state, BlockKind::table);
    for (int row = 1; row <= grid_.rowCount(); ++row) {
        countRow(state);
        if (row == 1)
            headRow(state, fitted);
        else
            tableRow(state, fitted, row);
        // The head is repeated for rows that follow, not above an empty page.
        if (pageTest(state) && row < grid_.rowCount()) headRow(state, fitted);
    }
    atPageTop_ = false;
}

void PrintRenderer::list(ScanState& state) {
    const FittedTable fitted = fit(state, BlockKind::list);
    for (int row = 1; row <= grid_.rowCount(); ++row) {
        countRow(state);
        listRow(state, fitted, row);
        pageTest(state);
    }
    atPageTop_ = false;
}

void PrintRenderer::close(ScanState& state) {
    footer(state);
    endPage();
    finish();
}

void PrintRenderer::font(std::string_view name) {
    body_.name = name;
    printer_.setFont(body_);
}

void PrintRenderer::fontSize(double points) {
    body_.size = points;
    printer_.setFont(body_);
}

void PrintRenderer::fontItalic(bool on) {
    body_.italic = on;
    printer_.setFont(body_);
}

void PrintRenderer::newPage(ScanState& state) { breakPage(state); }

void PrintRenderer::newParagraph(ScanState& state, double centimetres) {
    pageTest(state, centimetres * pointsPerCentimetre);
}

void PrintRenderer::finish() {
    if (pageOpen_) endPage();
    if (jobOpen_) printer_.endJob();
    jobOpen_ = false;
}

// A page begins with the first thing that is written on it, be it nothing.
void PrintRenderer::write(double x, std::string_view text) {
    if (!pageOpen_) printer_.startPage();
    pageOpen_ = jobOpen_ = true;
    if (!text.empty()) printer_.write(x, y_, text);
}

void PrintRenderer::writeAligned(Alignment alignment, std::string_view text) {
    write(alignedX(alignment, page_.room(), measure_(text)), text);
}

void PrintRenderer::endLine() { y_ += printer_.lineStep(); }

void PrintRenderer::bold(bool on) {
    body_.bold = on;
    printer_.setFont(body_);
}

void PrintRenderer::inHeaderFont(const auto& what) {
    ReportFont font = body_;  // italics are the printer's own and hold here too
    font.name = page_.layout.headerFontName;
    font.size = page_.layout.headerFontSize;
    printer_.setFont(font);
    what();
    printer_.setFont(body_);
}

void PrintRenderer::header(const ScanState& state) {
    inHeaderFont([&] {
        y_ = page_.layout.topMargin;
        writeAligned(Alignment::centre, state.header);
        y_ = page_.bodyTop(printer_.textHeight());
    });
    atPageTop_ = true;
}

void PrintRenderer::headerIfDue(const ScanState& state) {
    if (state.lineCounter == 0) header(state);
}

void PrintRenderer::footer(const ScanState& state) {
    inHeaderFont([&] {
        y_ = page_.footerTop(printer_.textHeight());
        writeAligned(Alignment::centre, state.footer);
    });
}

void PrintRenderer::endPage() {
    printer_.endPage();
    pageOpen_ = false;
    y_ = 0;
}

void PrintRenderer::breakPage(const ScanState& state) {
    footer(state);
    endPage();
    header(state);
}

bool PrintRenderer::pageTest(const ScanState& state, double need) {
    if (!(y_ > page_.limit(printer_.textHeight()) - need)) return false;
    breakPage(state);
    return true;
}

FittedTable PrintRenderer::fit(const ScanState& state, BlockKind kind) {
    grid_.fill(state);
    return fitColumns(grid_, kind, measure_);
}

void PrintRenderer::countRow(ScanState& state) {
    headerIfDue(state);
    ++state.lineCounter;
}

// The alignment of the block is worked out by the row, with the widths that hold for all.
void PrintRenderer::tableRow(const ScanState& state, const FittedTable& fitted, int row) {
    double cursor = alignedX(state.alignment, page_.room(), fitted.total);
    for (int column = 1; column <= grid_.columns(); ++column) {
        const std::string& cell = grid_.cell(row, column);
        const double width = fitted.widths[static_cast<std::size_t>(column - 1)];
        const double room = rightAligned(state.columnStyle, column) ? width - measure_(cell) : 0;
        write(cursor + columnIndent + room, cell);
        cursor += width + columnGap;
    }
    endLine();
}

// The widths are those of the plain font: a head that is wider in bold type sticks out of its
// column on the side where it is not aligned.
void PrintRenderer::headRow(const ScanState& state, const FittedTable& fitted) {
    bold(true);
    tableRow(state, fitted, 1);
    bold(false);
}

void PrintRenderer::listRow(const ScanState& state, const FittedTable& fitted, int row) {
    double cursor = alignedX(state.alignment, page_.room(), fitted.total);
    for (int column = 1; column <= grid_.columns(); ++column) {
        const std::string& cell = grid_.cell(row, column);
        const double width = fitted.widths[static_cast<std::size_t>(column - 1)];
        if (column == 1)
            write(cursor + columnIndent, dottedLeader(cell, width, measure_));
        else
            write(cursor + columnIndent + width - measure_(cell), cell);
        cursor += width + columnGap;
    }
    endLine();
}

void printReport(const std::string& path, ReportPrinter& printer, base::Dialogo& dialog) {
    if (!base::esisteFile(path)) return;
    const base::GuardiaPuntatore waiting(dialog);
    auto file = base::LettoreRighe::apri(path);
    PrintRenderer renderer(printer);
    renderMarkup(file, RendererKind::print, renderer);
    renderer.finish();
}

}  // namespace korven::markup
