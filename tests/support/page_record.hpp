#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "base/code_page.hpp"
#include "base/text_lines.hpp"
#include "markup/preview_renderer.hpp"
#include "markup/print_renderer.hpp"

namespace korven::test {

/// A printer whose measures can be reckoned by hand: a character is half as wide as the font size,
/// 0.6 of it in bold; a line is as high as the size, and the next one begins 1.2 of it further
/// down. Keeps what was written, with page and font, and the order of the calls.
class PageRecord : public markup::ReportPrinter {
 public:
    struct Text {
        int page;
        double x, y;
        std::string text;
        markup::ReportFont font;
    };

    markup::SheetSize sheet() override { return size; }
    void setFont(const markup::ReportFont& font) override { font_ = font; }
    double textWidth(std::string_view text) override {
        return font_.size * (font_.bold ? 0.6 : 0.5) *
               static_cast<double>(base::numeroCaratteri(text));
    }
    double textHeight() override { return font_.size; }
    double lineStep() override { return 1.2 * font_.size; }
    void startPage() override {
        ++page;
        calls.push_back("start");
    }
    void write(double x, double y, std::string_view text) override {
        texts.push_back({page, x, y, std::string(text), font_});
        calls.push_back("write " + std::string(text));
    }
    void endPage() override { calls.push_back("end"); }
    void endJob() override { calls.push_back("job"); }

    /// The texts of a page, in the order in which they were written, parted by "|".
    [[nodiscard]] std::string onPage(int wanted) const {
        std::string joined;
        for (const auto& text : texts)
            if (text.page == wanted) joined += (joined.empty() ? "" : "|") + text.text;
        return joined;
    }

    markup::SheetSize size{595.3, 841.9};
    int page = 0;
    std::vector<Text> texts;
    std::vector<std::string> calls;

 private:
    markup::ReportFont font_;
};

/// The list of a preview in which every character is 5 points wide.
class ListRecord : public markup::PreviewList {
 public:
    double windowWidth() override { return width; }
    double textWidth(std::string_view text) override {
        return 5.0 * static_cast<double>(base::numeroCaratteri(text));
    }
    void addLine(std::string_view text) override { lines.emplace_back(text); }

    double width = 528.4;  ///< of which 500 are used
    std::vector<std::string> lines;
};

/// A mark-up of these lines, UTF-8.
inline std::string markup(const std::vector<std::string>& lines) {
    std::string bytes;
    for (const auto& line : lines) bytes += base::inCp1252(line) + "\r\n";
    return bytes;
}

/// A mark-up printed.
inline PageRecord printed(const std::vector<std::string>& lines, PageRecord record = {}) {
    base::LettoreRighe file("r.TAB", markup(lines));
    markup::PrintRenderer renderer(record);
    markup::renderMarkup(file, markup::RendererKind::print, renderer);
    renderer.finish();
    return record;
}

/// A mark-up shown.
inline std::vector<std::string> previewed(const std::vector<std::string>& lines) {
    ListRecord record;
    base::LettoreRighe file("r.TAB", markup(lines));
    markup::PreviewRenderer renderer(record);
    markup::renderMarkup(file, markup::RendererKind::preview, renderer);
    return record.lines;
}

}  // namespace korven::test
