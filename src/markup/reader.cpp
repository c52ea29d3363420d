#include "markup/reader.hpp"

#include <algorithm>
#include <iterator>
#include <string>

#include "base/code_page.hpp"
#include "base/number_text.hpp"
#include "base/translated_texts.hpp"
#include "markup/line.hpp"
#include "markup/table_style.hpp"

namespace korven::markup {

namespace {

using Action = void (*)(ScanState&, MarkupReceiver&, std::string_view argument);

void toTextMode(ScanState& state, MarkupReceiver&, std::string_view) { state.mode = Mode::text; }

void openForText(ScanState& state, MarkupReceiver& receiver, std::string_view argument) {
    state.documentOpen = true;
    state.lineCounter = 0;
    state.mode = Mode::text;
    receiver.open(state, argument);
}

void openForPreview(ScanState& state, MarkupReceiver& receiver, std::string_view argument) {
    state.alignment = Alignment::left;
    openForText(state, receiver, argument);
}

void setTableStyle(ScanState& state, TableStyle style) {
    state.tableStyle = style.tableStyle;
    state.columnStyle = std::move(style.columnStyle);
}

void openForPrint(ScanState& state, MarkupReceiver& receiver, std::string_view argument) {
    setTableStyle(state, defaultTableStyle());
    openForPreview(state, receiver, argument);
}

void storeHeader(ScanState& state, MarkupReceiver&, std::string_view argument) {
    state.header = argument;
    state.mode = Mode::text;
}

void storeFooter(ScanState& state, MarkupReceiver&, std::string_view argument) {
    state.footer = argument;
    state.mode = Mode::text;
}

void tableStyle(ScanState& state, MarkupReceiver&, std::string_view argument) {
    setTableStyle(state, parseTableStyle(argument));
    state.mode = Mode::text;
}

void font(ScanState& state, MarkupReceiver& receiver, std::string_view argument) {
    receiver.font(argument);
    state.mode = Mode::text;
}

double number(std::string_view argument) { return base::leggiNumero(argument).value_or(0); }

void fontSize(ScanState& state, MarkupReceiver& receiver, std::string_view argument) {
    receiver.fontSize(number(argument));
    state.mode = Mode::text;
}

void fontItalic(ScanState& state, MarkupReceiver& receiver, std::string_view argument) {
    receiver.fontItalic(base::maiuscolo(argument) == "TRUE");
    state.mode = Mode::text;
}

template <Mode mode>
void start(ScanState& state, MarkupReceiver&, std::string_view) {
    state.mode = mode;
    state.rowCount = 0;
}

void endTable(ScanState& state, MarkupReceiver& receiver, std::string_view) {
    receiver.table(state);
    state.mode = Mode::text;
}

void endList(ScanState& state, MarkupReceiver& receiver, std::string_view) {
    receiver.list(state);
    state.mode = Mode::text;
}

template <Alignment alignment>
void align(ScanState& state, MarkupReceiver&, std::string_view) {
    state.alignment = alignment;
}

void newPage(ScanState& state, MarkupReceiver& receiver, std::string_view) {
    receiver.newPage(state);
}

void newParagraph(ScanState& state, MarkupReceiver& receiver, std::string_view argument) {
    receiver.newParagraph(state, number(argument));
}

void endDocument(ScanState& state, MarkupReceiver& receiver, std::string_view) {
    receiver.close(state);
    state.documentOpen = false;
}

constexpr Action ignored = nullptr;

struct Directive {
    std::string_view keyword;
    Action print, preview, text;
};

constexpr Directive directives[] = {
    {"#RESET", openForPrint, openForPreview, openForText},
    {"#HEADER", storeHeader, storeHeader, storeHeader},
    {"#FOOTER", storeFooter, storeFooter, storeFooter},
    {"#FONT", font, toTextMode, toTextMode},
    {"#FONTSIZE", fontSize, toTextMode, toTextMode},
    {"#FONTITALIC", fontItalic, ignored, ignored},
    {"#TABSTYLE", tableStyle, tableStyle, ignored},
    {"#STARTTABLE", start<Mode::table>, start<Mode::table>, start<Mode::table>},
    {"#STARTLIST", start<Mode::list>, start<Mode::list>, start<Mode::list>},
    {"#ENDTABLE", endTable, endTable, endTable},
    {"#ENDTABLELEFTALIGN", endTable, endTable, endTable},
    {"#ENDTABLENOITALIC", endTable, endTable, endTable},
    {"#ENDLIST", endList, endList, endList},
    {"#LEFT", align<Alignment::left>, align<Alignment::left>, ignored},
    {"#CENTER", align<Alignment::centre>, align<Alignment::centre>, ignored},
    {"#RIGHT", align<Alignment::right>, align<Alignment::right>, ignored},
    {"#NEWPAGE", newPage, ignored, ignored},
    {"#NEWPARAGRAPH", newParagraph, ignored, ignored},
    {"#ENDDOCUMENT", endDocument, endDocument, endDocument}};

Action actionOf(std::string_view keyword, RendererKind kind) {
    const auto* row = std::find_if(std::begin(directives), std::end(directives),
                                   [&](const Directive& d) { return d.keyword == keyword; });
    if (row == std::end(directives)) return ignored;
    switch (kind) {
        case RendererKind::print:
            return row->print;
        case RendererKind::preview:
            return row->preview;
        case RendererKind::text:
            break;
    }
    return row->text;
}

}  // namespace

void MarkupReader::line(std::string_view text) {
    const MarkupLine parts = takeApart(text);
    if (!state_.documentOpen && parts.keyword != "#RESET") return;
    if (!parts.directive) return content(parts.text);
    if (const Action action = actionOf(parts.keyword, kind_))
        action(state_, receiver_, parts.argument);
}

void MarkupReader::content(std::string_view text) {
    if (state_.mode == Mode::text) return receiver_.textLine(state_, text);
    state_.rows[state_.rowCount + 1] = text;
    ++state_.rowCount;
}

void renderMarkup(base::LettoreRighe& file, RendererKind kind, MarkupReceiver& receiver) {
    MarkupReader reader(kind, receiver);
    const std::string expected = base::traduttore("una riga della relazione");
    while (!file.fine()) {
        const std::string text = file.riga(expected);
        try {
            reader.line(text);
        } catch (const base::ErroreIndice& error) {
            file.rifiuta(base::traduttore("attesa una tabella entro la capacità") + ": " +
                         error.what());
        }
    }
}

}  // namespace korven::markup
