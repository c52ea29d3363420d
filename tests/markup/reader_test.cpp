#include "markup/reader.hpp"

#include <gtest/gtest.h>

#include <string>
#include <string_view>
#include <vector>

#include "base/file_error.hpp"

namespace korven::markup {
namespace {

using Lines = std::vector<std::string>;
constexpr RendererKind kinds[] = {RendererKind::print, RendererKind::preview, RendererKind::text};

/// Writes down what a renderer is told, an event a line: "text Muro", "table a|b" with its rows.
class MarkupRecord : public MarkupReceiver {
 public:
    void open(ScanState&, std::string_view argument) override { note("open", argument); }
    void textLine(ScanState& state, std::string_view text) override {
        ++state.lineCounter;
        note("text", text);
    }
    void table(ScanState& state) override { note("table", rows(state)); }
    void list(ScanState& state) override { note("list", rows(state)); }
    void close(ScanState&) override { note("close", ""); }
    void font(std::string_view name) override { note("font", name); }
    void fontSize(double points) override { note("size", std::to_string(points)); }
    void fontItalic(bool on) override { note("italic", on ? "on" : "off"); }
    void newPage(ScanState&) override { note("page", ""); }
    void newParagraph(ScanState&, double centimetres) override {
        note("paragraph", std::to_string(centimetres));
    }

    std::vector<std::string> events;

 private:
    static std::string rows(const ScanState& state) {
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

// A reader and what its renderer was told.
struct Reading {
    explicit Reading(RendererKind kind) : reader(kind, record) {}
    Reading(RendererKind kind, const Lines& lines) : reader(kind, record) { feed(lines); }
    void feed(const Lines& lines) {
        for (const auto& line : lines) reader.line(line);
    }
    [[nodiscard]] const ScanState& state() const { return reader.state(); }

    MarkupRecord record;
    MarkupReader reader;
};

Lines events(RendererKind kind, const Lines& lines) { return Reading(kind, lines).record.events; }

TEST(MarkupReader, WithoutResetNothingHappensWhateverTheFileHolds) {
    const Lines lines = {"text",        "#HEADER x", "#STARTTABLE",  "a\tb",      "#ENDTABLE",
                         "#FONT Arial", "#NEWPAGE",  "#ENDDOCUMENT", "#RESETTLE", "# RESET"};
    for (const auto kind : kinds) EXPECT_EQ(events(kind, lines), Lines{});
}

TEST(MarkupReader, DirectivesInLowerCaseActAlike) {
    for (const auto kind : kinds)
        EXPECT_EQ(events(kind, {"  #reset 1,2 ", "a", "#enddocument"}),
                  (Lines{"open 1,2", "text a", "close"}));
}

TEST(MarkupReader, NothingIsReadBetweenTheEndOfADocumentAndTheNextReset) {
    for (const auto kind : kinds)
        EXPECT_EQ(events(kind, {"#RESET", "#ENDDOCUMENT", "lost", "#RESET", "kept"}),
                  (Lines{"open", "close", "open", "text kept"}));
}

TEST(MarkupReader, UnknownDirectivesAndALoneSignVanish) {
    for (const auto kind : kinds)
        EXPECT_EQ(events(kind, {"#RESET", "#1 first", "#", "#RESETTLE", "#ENDTABLE2", "b"}),
                  (Lines{"open", "text b"}));
}

TEST(MarkupReader, EmptyLineIsATextLineAndTextLosesItsOuterBlanks) {
    for (const auto kind : kinds)
        EXPECT_EQ(events(kind, {"#RESET", "", "   a b  "}), (Lines{"open", "text", "text a b"}));
}

TEST(MarkupReader, CollectsRowsBetweenStartAndEnd) {
    for (const auto kind : kinds) {
        EXPECT_EQ(events(kind, {"#RESET", "#STARTTABLE", "a\tb", "  c\td  ", "#ENDTABLE", "e"}),
                  (Lines{"open", "table a\tb|c\td", "text e"}));
        EXPECT_EQ(events(kind, {"#RESET", "#STARTLIST", "a\tb", "", "#ENDLIST"}),
                  (Lines{"open", "list a\tb|"}));
    }
}

TEST(MarkupReader, ThreeSpellingsOfTheTableEndActAlike) {
    for (const auto kind : kinds)
        for (const char* end : {"#ENDTABLE", "#ENDTABLELEFTALIGN", "#ENDTABLENOITALIC"})
            EXPECT_EQ(events(kind, {"#RESET", "#STARTTABLE", "a", end}),
                      (Lines{"open", "table a"}));
}

TEST(MarkupReader, FontSizeInsideATableMakesTextLinesAndALaterEndStillLaysOutTheRows) {
    const Lines lines = {"#RESET", "#STARTTABLE", "a", "#FONTSIZE 16", "b", "#ENDTABLE"};
    EXPECT_EQ(events(RendererKind::print, lines),
              (Lines{"open", "size 16.000000", "text b", "table a"}));
    for (const auto kind : {RendererKind::preview, RendererKind::text})
        EXPECT_EQ(events(kind, lines), (Lines{"open", "text b", "table a"}));
}

TEST(MarkupReader, EndWithoutStartLaysOutTheRowsOfThePreviousTableAgain) {
    for (const auto kind : kinds)
        EXPECT_EQ(events(kind, {"#RESET", "#STARTTABLE", "a", "#ENDTABLE", "#ENDLIST", "#RESET",
                                "#ENDTABLE"}),
                  (Lines{"open", "table a", "list a", "open", "table a"}));
}

TEST(MarkupReader, EndBeforeAnyTableHasZeroRows) {
    for (const auto kind : kinds)
        EXPECT_EQ(events(kind, {"#RESET", "#ENDTABLE"}), (Lines{"open", "table"}));
}

TEST(MarkupReader, StartClearsTheRowsAlsoInsideAnOpenTable) {
    for (const auto kind : kinds)
        EXPECT_EQ(events(kind, {"#RESET", "#STARTTABLE", "a", "#STARTLIST", "b", "#ENDTABLE"}),
                  (Lines{"open", "table b"}));
}

// A directive given while a table is being collected: does it end the collecting, and what is the
// renderer told, in print, preview and text?
struct Case {
    const char* directive;
    bool leavesTable[3];
    const char* told[3];
};
constexpr Case insideATable[] = {
    {"#RESET x", {true, true, true}, {"open x", "open x", "open x"}},
    {"#HEADER x", {true, true, true}, {"", "", ""}},
    {"#FOOTER x", {true, true, true}, {"", "", ""}},
    {"#FONT  Courier New ", {true, true, true}, {"font Courier New", "", ""}},
    {"#FONTSIZE 9.5pt", {true, true, true}, {"size 9.500000", "", ""}},
    {"#FONTSIZE big", {true, true, true}, {"size 0.000000", "", ""}},
    {"#FONTITALIC  true ", {true, false, false}, {"italic on", "", ""}},
    {"#FONTITALIC yes", {true, false, false}, {"italic off", "", ""}},
    {"#FONTITALIC", {true, false, false}, {"italic off", "", ""}},
    {"#TABSTYLE =<", {true, true, false}, {"", "", ""}},
    {"#ENDTABLE", {true, true, true}, {"table a", "table a", "table a"}},
    {"#ENDTABLELEFTALIGN", {true, true, true}, {"table a", "table a", "table a"}},
    {"#ENDTABLENOITALIC", {true, true, true}, {"table a", "table a", "table a"}},
    {"#ENDLIST", {true, true, true}, {"list a", "list a", "list a"}},
    {"#LEFT", {false, false, false}, {"", "", ""}},
    {"#CENTER", {false, false, false}, {"", "", ""}},
    {"#RIGHT", {false, false, false}, {"", "", ""}},
    {"#NEWPAGE", {false, false, false}, {"page", "", ""}},
    {"#NEWPARAGRAPH 2.5", {false, false, false}, {"paragraph 2.500000", "", ""}},
    {"#NEWPARAGRAPH", {false, false, false}, {"paragraph 0.000000", "", ""}},
    {"#ENDDOCUMENT", {false, false, false}, {"close", "close", "close"}},
    {"#NOSUCH", {false, false, false}, {"", "", ""}}};

TEST(MarkupReader, EachDirectiveDoesInEachRendererWhatItsRowSays) {
    for (const auto& row : insideATable)
        for (std::size_t kind = 0; kind < std::size(kinds); ++kind) {
            SCOPED_TRACE(std::string(row.directive) + " in renderer " + std::to_string(kind));
            Reading reading(kinds[kind], {"#RESET", "#STARTTABLE", "a", row.directive});
            EXPECT_EQ(reading.state().mode, row.leavesTable[kind] ? Mode::text : Mode::table);
            Lines expected = {"open"};
            if (*row.told[kind]) expected.emplace_back(row.told[kind]);
            EXPECT_EQ(reading.record.events, expected);
        }
}

TEST(MarkupReader, HeaderAndFooterAreStoredAndSurviveAReset) {
    for (const auto kind : kinds) {
        Reading reading(kind, {"#RESET", "#HEADER  Muro  1 ", "#FOOTER fine", "#RESET"});
        EXPECT_EQ(reading.state().header, "Muro  1");
        EXPECT_EQ(reading.state().footer, "fine");
        reading.feed({"#HEADER"});
        EXPECT_EQ(reading.state().header, "");
    }
}

TEST(MarkupReader, AlignmentHoldsUntilChangedAndIsIgnoredInText) {
    for (const auto kind : {RendererKind::print, RendererKind::preview}) {
        Reading reading(kind, {"#RESET", "#CENTER", "#STARTTABLE", "a", "#ENDTABLE"});
        EXPECT_EQ(reading.state().alignment, Alignment::centre);
        reading.feed({"#RIGHT"});
        EXPECT_EQ(reading.state().alignment, Alignment::right);
        reading.feed({"#LEFT"});
        EXPECT_EQ(reading.state().alignment, Alignment::left);
        reading.feed({"#RIGHT", "#RESET"});
        EXPECT_EQ(reading.state().alignment, Alignment::left);
    }
    EXPECT_EQ(Reading(RendererKind::text, {"#RESET", "#RIGHT"}).state().alignment, Alignment::left);
}

TEST(MarkupReader, FurtherResetStartsOverWithoutClosing) {
    for (const auto kind : kinds) {
        Reading reading(kind, {"#RESET", "a", "b"});
        EXPECT_EQ(reading.state().lineCounter, 2);
        reading.feed({"#RESET"});
        EXPECT_EQ(reading.state().lineCounter, 0);
        EXPECT_TRUE(reading.state().documentOpen);
        EXPECT_EQ(reading.record.events, (Lines{"open", "text a", "text b", "open"}));
        reading.feed({"#ENDDOCUMENT"});
        EXPECT_FALSE(reading.state().documentOpen);
    }
}

TEST(MarkupReader, ResetSetsTheTableStyleInPrintAlone) {
    Reading print(RendererKind::print, {"#RESET"});
    EXPECT_EQ(print.state().tableStyle, 1);
    EXPECT_EQ(print.state().columnStyle, std::string(23, '>'));
    print.feed({"#TABSTYLE -<<"});
    EXPECT_EQ(print.state().tableStyle, 2);
    EXPECT_EQ(print.state().columnStyle, "<<" + std::string(23, '>'));
    EXPECT_EQ(Reading(RendererKind::text, {"#RESET", "#TABSTYLE -<<"}).state().columnStyle, "");
}

TEST(MarkupReader, Takes2000RowsAndRefusesTheNext) {
    Reading reading(RendererKind::text, {"#RESET", "#STARTTABLE"});
    for (int row = 1; row <= 2000; ++row) reading.feed({std::to_string(row)});
    EXPECT_EQ(reading.state().rowCount, 2000);
    EXPECT_EQ(reading.state().rows[2000], "2000");
    EXPECT_THROW(reading.feed({"2001"}), base::ErroreIndice);
}

TEST(RenderMarkup, ReadsTheCodePageAndBothLineEnds) {
    base::LettoreRighe file("r.TAB", "#RESET\r\nProfondit\xE0\n#ENDDOCUMENT");
    MarkupRecord record;
    renderMarkup(file, RendererKind::preview, record);
    EXPECT_EQ(record.events, (Lines{"open", "text Profondità", "close"}));
}

TEST(RenderMarkup, NamesTheLineOfATableThatIsTooLong) {
    std::string content = "#RESET\r\n#STARTLIST\r\n";
    for (int row = 1; row <= 2001; ++row) content += "a\r\n";
    base::LettoreRighe file("r.TAB", content);
    MarkupRecord record;
    try {
        renderMarkup(file, RendererKind::print, record);
        FAIL();
    } catch (const base::ErroreFile& error) {
        EXPECT_EQ(error.percorso(), "r.TAB");
        EXPECT_EQ(error.riga(), 2003);
    }
}

}  // namespace
}  // namespace korven::markup
