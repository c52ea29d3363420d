#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "markup/reader.hpp"

namespace korven::test {

/// Writes down what a renderer is told, an event a line: "text Muro", "table a|b" with its rows.
class MarkupRecord : public markup::MarkupReceiver {
 public:
    void open(markup::ScanState&, std::string_view argument) override { note("open", argument); }
    void textLine(markup::ScanState& state, std::string_view text) override {
        ++state.lineCounter;
        note("text", text);
    }
    void table(markup::ScanState& state) override { note("table", rows(state)); }
    void list(markup::ScanState& state) override { note("list", rows(state)); }
    void close(markup::ScanState&) override { note("close", ""); }
    void font(std::string_view name) override { note("font", name); }
    void fontSize(double points) override { note("size", std::to_string(points)); }
    void fontItalic(bool on) override { note("italic", on ? "on" : "off"); }
    void newPage(markup::ScanState&) override { note("page", ""); }
    void newParagraph(markup::ScanState&, double centimetres) override {
        note("paragraph", std::to_string(centimetres));
    }

    std::vector<std::string> events;

 private:
    static std::string rows(const markup::ScanState& state) {
        std::string joined;
        for (int row = 1; row <= state.rowCount; ++row)
            joined += (row > 1 ? "|" : "") + state.rows[row];
        return joined;
    }
    void note(std::string_view what, std::string_view text) {
        std::string event(what);
        if (!text.empty()) event.append(" ").append(text);
        events.push_back(std::move(event));
    }
};

}  // namespace korven::test
