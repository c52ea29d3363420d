#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "base/text_lines.hpp"
#include "markup/reader.hpp"

namespace korven::markup {

/// The report as plain text: text lines and table rows unchanged, with their tabs, so that a
/// spreadsheet can read it. Of the layout nothing survives. The header comes before the first text
/// line, not before a table that comes earlier; the footer comes at the end.
///
/// The text is collected in memory as the bytes of the file (Windows-1252, CR LF), so that the
/// caller can save it whole or not at all.
class TextRenderer : public MarkupReceiver {
 public:
    void open(ScanState& state, std::string_view argument) override;
    void textLine(ScanState& state, std::string_view text) override;
    void table(ScanState& state) override;
    void list(ScanState& state) override;
    void close(ScanState& state) override;

    /// The bytes written so far; nothing when no document was opened, and then no file is due.
    [[nodiscard]] const std::optional<std::string>& bytes() const { return bytes_; }

 private:
    void write(std::string_view text);
    void writeRows(const ScanState& state);

    std::optional<std::string> bytes_;
};

/// The bytes of the text export of a mark-up file; nothing when it opens no document.
/// @throws ErroreFile as `renderMarkup`
[[nodiscard]] std::optional<std::string> renderText(base::LettoreRighe& file);

}  // namespace korven::markup
