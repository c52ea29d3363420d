#include "outdoc/document_renderer.hpp"

#include <algorithm>
#include <cassert>
#include <cmath>
#include <utility>

#include "base/code_page.hpp"
#include "base/file_error.hpp"
#include "base/file_identity.hpp"
#include "base/files.hpp"
#include "base/folders/file_names.hpp"
#include "base/translated_texts.hpp"
#include "markup/estimated_width.hpp"
#include "outdoc/document_blocks.hpp"
#include "outdoc/earlier_document.hpp"

namespace korven::outdoc {

using markup::Alignment;
using markup::BlockKind;
using markup::FittedTable;
using markup::ScanState;

namespace {

// A list as short as those of the report stays on one page.
constexpr int rowsKept = 12;

// No more than a page can be kept together [points].
constexpr double mostTogether = 700;

// Room that the page number takes at the right end of the footer [points].
constexpr double pageNumberRoom = 60;

}  // namespace

bool isHeading(std::string_view text) {
    return base::maiuscolo(text) == text && base::minuscolo(text) != text;
}

DocumentRenderer::DocumentRenderer(std::vector<double> headingSizes)
    : headingSizes_(std::move(headingSizes)) {
    assert(headingSizes_.size() <= headingStyles.size());
    if (!headingSizes_.empty()) parts_.levels = static_cast<int>(headingSizes_.size());
}

void DocumentRenderer::open(ScanState&, std::string_view argument) {
    // A further #RESET starts over, as in the plain text.
    *this = DocumentRenderer(std::move(headingSizes_));
    opened_ = true;
    parts_.page = documentPage(argument);
    body_ = parts_.page.headerFont;
}

// The first heading of a report is centred and is its title.
void DocumentRenderer::textLine(ScanState& state, std::string_view text) {
    headerIfDue(state);
    if (text.empty()) return emptyParagraph();
    if (parts_.title.empty()) parts_.title = text;
    Paragraph line = inBodyFont();
    line.alignment = state.alignment;
    belowHeading_ = isHeading(text);
    if (belowHeading_) {
        line.style =
            state.alignment == Alignment::centre ? titleStyle : headingStyles.at(headingLevel());
        line.font.bold = true;
    }
    line.runs = run(line.font, text);
    add(std::move(line));
}

void DocumentRenderer::table(ScanState& state) {
    const FittedTable fitted = fit(state, BlockKind::table);
    if (grid_.rowCount() == 0) return;
    headerIfDue(state);
    if (belowTable_ || breakDue_) emptyParagraph();
    const auto widths = columnWidths(grid_, fitted, body_, parts_.page.textWidth());
    content_ +=
        tableWords(grid_, widths, state.alignment, state.columnStyle, body_, rowsTogether());
    together_ -= grid_.rowCount() * rowHeight(body_);
    belowTable_ = true;
    belowHeading_ = false;
}

void DocumentRenderer::list(ScanState& state) {
    const FittedTable fitted = fit(state, BlockKind::list);
    for (int row = 1; row <= grid_.rowCount(); ++row) {
        headerIfDue(state);
        Paragraph line = listRow(fitted, state.alignment, parts_.page.textWidth());
        line.font = body_;
        line.keepWithNext = row < grid_.rowCount() && row <= rowsKept;
        std::string text = grid_.cell(row, 1);
        for (int column = 2; column <= grid_.columns(); ++column)
            text += (column == 2 ? " \t " : "\t") + grid_.cell(row, column);
        line.runs = run(line.font, text);
        add(std::move(line));
    }
    belowHeading_ = false;
}

void DocumentRenderer::newPage(ScanState&) {
    breakDue_ = true;
    together_ = 0;
}

void DocumentRenderer::newParagraph(ScanState&, double centimetres) {
    together_ = std::min(centimetres * markup::pointsPerCentimetre, mostTogether);
}

// Rows that do not yet fill the height to be kept.
int DocumentRenderer::rowsTogether() const {
    const double rows = std::ceil(together_ / rowHeight(body_)) - 1;
    return static_cast<int>(std::clamp(rows, 0.0, static_cast<double>(grid_.rowCount())));
}

void DocumentRenderer::close(ScanState& state) {
    headerIfDue(state);
    parts_.footer = footerLines(state.footer);
}

std::optional<std::string> DocumentRenderer::bytes() const {
    if (!opened_) return std::nullopt;
    DocumentParts parts = parts_;
    if (parts.header.empty()) parts.header = paragraph(inHeaderFont(Alignment::centre));
    if (parts.footer.empty()) parts.footer = footerLines({});
    std::string closing;
    if (belowTable_ || content_.empty()) {  // nothing may end with a table, or be empty
        Paragraph last;
        last.font.size = 1;
        closing = paragraph(last);
    }
    parts.content = {content_, closing};
    return documentBytes(parts);
}

void DocumentRenderer::headerIfDue(ScanState& state) {
    if (state.lineCounter++ != 0) return;
    Paragraph line = inHeaderFont(Alignment::centre);
    line.runs = run(line.font, state.header);
    parts_.header = paragraph(line);
}

Paragraph DocumentRenderer::inBodyFont() {
    Paragraph line;
    line.font = body_;
    return line;
}

// From 0, by the font in force.
std::size_t DocumentRenderer::headingLevel() const {
    const auto level = std::find_if(headingSizes_.begin(), headingSizes_.end(),
                                    [this](double size) { return body_.size >= size; });
    const auto found = static_cast<std::size_t>(level - headingSizes_.begin());
    return std::min(found, headingSizes_.empty() ? 0 : headingSizes_.size() - 1);
}

void DocumentRenderer::add(Paragraph content) {
    content.pageBreakBefore = breakDue_;
    together_ -= lineHeight(content.font);
    content.keepWithNext = content.keepWithNext || together_ > 0;
    breakDue_ = belowTable_ = false;
    content_ += paragraph(content);
}

void DocumentRenderer::emptyParagraph() {
    Paragraph line = inBodyFont();
    line.keepWithNext = belowHeading_;
    add(std::move(line));
}

FittedTable DocumentRenderer::fit(const ScanState& state, BlockKind kind) {
    grid_.fill(state);
    return markup::fitColumns(
        grid_, kind, [this](std::string_view text) { return markup::estimatedWidth(body_, text); });
}

Paragraph DocumentRenderer::inHeaderFont(Alignment alignment) const {
    Paragraph line;
    line.alignment = alignment;
    line.font = parts_.page.headerFont;
    return line;
}

// The text of the footer in the middle, the page number at its right end, on a line of its own if
// the text needs the whole width.
std::string DocumentRenderer::footerLines(std::string_view text) const {
    const markup::ReportFont& font = parts_.page.headerFont;
    const double width = parts_.page.textWidth();
    const std::string number =
        pageField(font, "PAGE") + run(font, " / ") + pageField(font, "NUMPAGES");
    if ((width - markup::estimatedWidth(font, text)) / 2 < pageNumberRoom) {
        Paragraph notice = inHeaderFont(Alignment::centre);
        notice.runs = run(font, text);
        Paragraph below = inHeaderFont(Alignment::right);
        below.runs = number;
        return paragraph(notice) + paragraph(below);
    }
    Paragraph line = inHeaderFont(Alignment::left);
    line.tabs = {{width / 2, true, false}, {width, false, false}};
    line.runs = run(font, "\t" + std::string(text) + "\t") + number;
    return paragraph(line);
}

// `name` is that of the mark-up in errors.
static Converted write(const std::string& path, base::LettoreRighe& markup, const std::string& name,
                       std::span<const double> headingSizes, const base::Disco& disk) {
    DocumentRenderer renderer({headingSizes.begin(), headingSizes.end()});
    markup::renderMarkup(markup, markup::RendererKind::print, renderer);
    const auto bytes = renderer.bytes();
    if (!bytes)
        throw base::ErroreFile(name, 0,
                               base::traduttore("la relazione non apre nessun documento (#RESET)"));
    std::string kept = keepEarlierDocument(path, disk);
    base::scriviFile(path, *bytes, disk);
    return {path, std::move(kept)};
}

Converted writeDocument(const std::string& path, std::string_view markup,
                        std::span<const double> headingSizes, const base::Disco& disk) {
    base::LettoreRighe lines(path, base::inCp1252(markup));
    return write(path, lines, path, headingSizes, disk);
}

Converted convertReport(const std::string& markup, const base::Disco& disk) {
    const std::string path = base::nomeDocumento(markup);
    auto file = base::LettoreRighe::apri(markup);
    if (base::stessoFile(path, markup))
        throw base::ErroreFile(
            path, 0, base::traduttore("la scrittura prenderebbe il posto di un file letto"));
    return write(path, file, markup, {}, disk);
}

}  // namespace korven::outdoc
