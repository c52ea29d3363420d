#pragma once

#include <string_view>

#include "base/text_lines.hpp"
#include "markup/scan_state.hpp"

namespace korven::markup {

/// What a renderer of the report is told. The reader has classified the line and kept the state
/// when it calls; the state belongs to the renderer, which counts body lines in `lineCounter` and
/// writes the header where it is due. All texts are UTF-8.
class MarkupReceiver {
 public:
    virtual ~MarkupReceiver() = default;

    /// #RESET, also a further one in an open document: start over.
    /// @param argument  page and header font for renderers with pages (reset_arguments.hpp)
    virtual void open(ScanState& state, std::string_view argument) = 0;
    /// A content line outside tables and lists; empty lines are lines.
    virtual void textLine(ScanState& state, std::string_view text) = 0;
    /// The end of a table or list: lay out rows 1 to `rowCount`. There may be none.
    virtual void table(ScanState& state) = 0;
    virtual void list(ScanState& state) = 0;
    /// #ENDDOCUMENT. The document counts as closed afterwards.
    virtual void close(ScanState& state) = 0;

    // Told to the print renderer alone.
    virtual void font(std::string_view /*name*/) {}
    virtual void fontSize(double /*points*/) {}
    virtual void fontItalic(bool /*on*/) {}
    virtual void newPage(ScanState& /*state*/) {}
    /// A page break is wanted only if less than this height is left.
    virtual void newParagraph(ScanState& /*state*/, double /*centimetres*/) {}
};

/// Which of the three readings of the directives a renderer follows.
enum class RendererKind { print, preview, text };

/// Reads a report mark-up line by line and tells a renderer what to do. Nothing happens before
/// #RESET; unknown directives vanish; no directive complains about its argument.
class MarkupReader {
 public:
    /// @param receiver  not owned; must outlive the reader
    MarkupReader(RendererKind kind, MarkupReceiver& receiver) : kind_(kind), receiver_(receiver) {}

    /// Acts on one line (UTF-8, without its line end).
    /// @throws ErroreIndice for row 2001 of one table or list, and what the renderer throws
    void line(std::string_view text);

    [[nodiscard]] const ScanState& state() const { return state_; }

 private:
    void content(std::string_view text);

    RendererKind kind_;
    MarkupReceiver& receiver_;
    ScanState state_;
};

/// Feeds a whole mark-up file to a renderer.
/// @throws ErroreFile with the line when a table or list exceeds its capacity
void renderMarkup(base::LettoreRighe& file, RendererKind kind, MarkupReceiver& receiver);

}  // namespace korven::markup
