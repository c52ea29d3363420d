#pragma once

#include <string>
#include <string_view>

#include "markup/cells.hpp"
#include "markup/reader.hpp"
#include "markup/report_page.hpp"
#include "markup/table_fitting.hpp"

namespace korven::markup {

/// Where the preview shows its lines, below those that it shows already.
class PreviewList {
 public:
    virtual ~PreviewList() = default;
    /// Width of the window [points].
    [[nodiscard]] virtual double windowWidth() = 0;
    /// Width of a text in the font of the list [points]. It is asked some six times for each cell,
    /// so it should be quick (character_widths.hpp).
    [[nodiscard]] virtual double textWidth(std::string_view text) = 0;
    virtual void addLine(std::string_view text) = 0;
};

/// Shows the report as the lines of a list, with its header once and its footer at the end. It
/// knows one font and no pages; columns and alignment come about by blanks, and all columns but the
/// labels of lists are aligned to the right.
class PreviewRenderer : public MarkupReceiver {
 public:
    /// @param list  not owned; must outlive the renderer
    explicit PreviewRenderer(PreviewList& list);

    void open(ScanState& state, std::string_view argument) override;
    void textLine(ScanState& state, std::string_view text) override;
    void table(ScanState& state) override;
    void list(ScanState& state) override;
    void close(ScanState& state) override;

 private:
    [[nodiscard]] std::string padTo(double x) const;
    void addAligned(Alignment alignment, std::string_view text);
    void countLine(ScanState& state);
    void block(ScanState& state, BlockKind kind);
    [[nodiscard]] std::string row(const FittedTable& fitted, BlockKind kind, int number, double x0);

    PreviewList& list_;
    TextMeasure measure_;
    CellGrid grid_;
    LineRoom room_;
};

/// Shows a mark-up file. Does nothing if there is no such file.
/// @throws ErroreFile for a table beyond 2000 rows, or 510 rows or 30 columns of the grid
void previewReport(const std::string& path, PreviewList& list);

}  // namespace korven::markup
