#include "markup/preview_renderer.hpp"

#include "base/files.hpp"
#include "markup/text_filling.hpp"

namespace korven::markup {

namespace {

// How far the blanks before a cell and after it reach, from the left end of its column.
struct Reach {
    double before, after;
};

Reach reachOf(BlockKind kind, double width) {
    if (kind == BlockKind::table) return {width + columnIndent, width + columnGap};
    return {width - columnIndent, width};
}

}  // namespace

PreviewRenderer::PreviewRenderer(PreviewList& list)
    : list_(list), measure_([&list](std::string_view text) { return list.textWidth(text); }) {}

void PreviewRenderer::open(ScanState&, std::string_view) {
    room_ = {0, usableLength(list_.windowWidth())};
}

void PreviewRenderer::textLine(ScanState& state, std::string_view text) {
    countLine(state);
    addAligned(state.alignment, text);
}

void PreviewRenderer::table(ScanState& state) { block(state, BlockKind::table); }
void PreviewRenderer::list(ScanState& state) { block(state, BlockKind::list); }

void PreviewRenderer::close(ScanState& state) {
    list_.addLine("");
    addAligned(Alignment::centre, state.footer);
}

std::string PreviewRenderer::padTo(double x) const { return filledUpTo({}, ' ', {}, x, measure_); }

void PreviewRenderer::addAligned(Alignment alignment, std::string_view text) {
    list_.addLine(padTo(alignedX(alignment, room_, measure_(text))).append(text));
}

void PreviewRenderer::countLine(ScanState& state) {
    if (state.lineCounter == 0) {
        addAligned(Alignment::centre, state.header);
        list_.addLine("");
    }
    ++state.lineCounter;
}

void PreviewRenderer::block(ScanState& state, BlockKind kind) {
    grid_.fill(state);
    const FittedTable fitted = fitColumns(grid_, kind, measure_);
    const double x0 = alignedX(state.alignment, room_, fitted.total);
    for (int number = 1; number <= grid_.rowCount(); ++number) {
        countLine(state);
        list_.addLine(row(fitted, kind, number, x0));
    }
}

// The blanks after a cell are measured with the cell a second time, appended to the line that holds
// it already. Hence mostly none are added, and the next cell's own blanks make the column.
std::string PreviewRenderer::row(const FittedTable& fitted, BlockKind kind, int number, double x0) {
    std::string line = padTo(x0);
    double cursor = x0;
    for (int column = 1; column <= grid_.columns(); ++column) {
        const double width = fitted.widths[static_cast<std::size_t>(column - 1)];
        const Reach reach = reachOf(kind, width);
        std::string cell = grid_.cell(number, column);
        if (kind == BlockKind::list && column == 1)
            cell = dottedLeader(cell, width, measure_);
        else
            line = filledUpTo(std::move(line), ' ', cell, cursor + reach.before, measure_);
        line += cell;
        line = filledUpTo(std::move(line), ' ', cell, cursor + reach.after, measure_);
        cursor += width + columnGap;
    }
    return line;
}

void previewReport(const std::string& path, PreviewList& list) {
    if (!base::esisteFile(path)) return;
    auto file = base::LettoreRighe::apri(path);
    PreviewRenderer renderer(list);
    renderMarkup(file, RendererKind::preview, renderer);
}

}  // namespace korven::markup
