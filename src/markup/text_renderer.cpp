#include "markup/text_renderer.hpp"

#include "base/code_page.hpp"

namespace korven::markup {

void TextRenderer::open(ScanState&, std::string_view) { bytes_.emplace(); }

void TextRenderer::textLine(ScanState& state, std::string_view text) {
    if (state.lineCounter == 0) write(state.header);
    ++state.lineCounter;
    write(text);
}

void TextRenderer::table(ScanState& state) { writeRows(state); }
void TextRenderer::list(ScanState& state) { writeRows(state); }
void TextRenderer::close(ScanState& state) { write(state.footer); }

void TextRenderer::writeRows(const ScanState& state) {
    for (int row = 1; row <= state.rowCount; ++row) write(state.rows[row]);
}

void TextRenderer::write(std::string_view text) { *bytes_ += base::inCp1252(text) + "\r\n"; }

std::optional<std::string> renderText(base::LettoreRighe& file) {
    TextRenderer renderer;
    renderMarkup(file, RendererKind::text, renderer);
    return renderer.bytes();
}

}  // namespace korven::markup
