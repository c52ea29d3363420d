#pragma once

#include <cstddef>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "base/disk.hpp"
#include "base/text_lines.hpp"
#include "markup/cells.hpp"
#include "markup/reader.hpp"
#include "markup/report_printer.hpp"
#include "markup/table_fitting.hpp"
#include "outdoc/document_parts.hpp"
#include "outdoc/paragraph.hpp"

namespace korven::outdoc {

/// The report as a word-processor file (document_parts.hpp). Obeys the directives as print does,
/// but leaves the breaking of lines and pages to the word processor: a table is a table with its
/// columns fitted and its head repeated, a list a line with a dotted leader for each row. Lines in
/// capitals become the title and the headings of the document.
///
/// How much of a page is left only the word processor knows, so #NEWPARAGRAPH keeps what follows
/// it, up to the height that it names, together on one page. Header and footer are those of the
/// whole document: the header at its first line, the footer at its end.
class DocumentRenderer : public markup::MarkupReceiver {
 public:
    /// @param headingSizes  of the levels of headings, falling [points], 3 at most: a heading is of
    ///                      the first level whose size it has or exceeds, else of the last; none:
    ///                      all are of level 1
    explicit DocumentRenderer(std::vector<double> headingSizes = {});

    void open(markup::ScanState& state, std::string_view argument) override;
    void textLine(markup::ScanState& state, std::string_view text) override;
    void table(markup::ScanState& state) override;
    void list(markup::ScanState& state) override;
    void close(markup::ScanState& state) override;
    void font(std::string_view name) override { body_.name = name; }
    void fontSize(double points) override { body_.size = points; }
    void fontItalic(bool on) override { body_.italic = on; }
    void newPage(markup::ScanState&) override;
    void newParagraph(markup::ScanState& state, double centimetres) override;

    /// The bytes of the file; nothing when no document was opened.
    [[nodiscard]] std::optional<std::string> bytes() const;

 private:
    void headerIfDue(markup::ScanState& state);
    [[nodiscard]] Paragraph inBodyFont();
    [[nodiscard]] std::size_t headingLevel() const;
    void add(Paragraph content);
    void emptyParagraph();
    [[nodiscard]] int rowsTogether() const;
    [[nodiscard]] markup::FittedTable fit(const markup::ScanState& state, markup::BlockKind kind);
    [[nodiscard]] Paragraph inHeaderFont(markup::Alignment alignment) const;
    [[nodiscard]] std::string footerLines(std::string_view text) const;

    std::vector<double> headingSizes_;
    DocumentParts parts_;  ///< without the content
    std::string content_;
    markup::ReportFont body_;
    markup::CellGrid grid_;
    double together_ = 0;  ///< height of what must still begin on the page reached [points]
    bool opened_ = false;
    bool breakDue_ = false;
    bool belowHeading_ = false;  ///< what follows belongs to a heading and stays on its page
    bool belowTable_ = false;    ///< two tables without a line between would become one
};

/// True for a line that a reader takes for a heading: it has letters, and all of them are capitals.
[[nodiscard]] bool isHeading(std::string_view text);

/// A report that was converted.
struct Converted {
    std::string document;  ///< path of the word-processor file
    std::string kept;      ///< where the earlier one is now; empty if nothing had to be kept
};

/// Writes mark-up (UTF-8, lines ended by CR LF) as a word-processor file, replacing one of that
/// name. What this program did not write, or
/// somebody changed since, is kept first (earlier_document.hpp).
/// @throws base::ErroreFile if the file can't be written, if a table is beyond its capacity, or if
/// the mark-up opens no document
/// @param headingSizes  as `DocumentRenderer` takes them
Converted writeDocument(const std::string& path, std::string_view markup,
                        std::span<const double> headingSizes,
                        const base::Disco& disk = base::discoDiSistema());

/// Converts a mark-up file into a word-processor file beside it, as `writeDocument`.
/// @throws base::ErroreFile as there, if the mark-up can't be read, or if the file would take its
/// place
Converted convertReport(const std::string& markup,
                        const base::Disco& disk = base::discoDiSistema());

}  // namespace korven::outdoc
