#include "tools/help_markup.hpp"

#include <optional>

#include "base/code_page.hpp"

namespace korven::tools {

namespace {

using Lines = std::vector<std::string_view>;

// A UTF-8 character that Windows-1252 lacks, as a numeric entity.
std::string entity(std::string_view character) {
    const auto byte = [&](std::size_t i) { return static_cast<unsigned char>(character[i]); };
    unsigned code = byte(0) & (0x7Fu >> character.size());
    for (std::size_t i = 1; i < character.size(); ++i) code = code << 6 | (byte(i) & 0x3Fu);
    return "&#" + std::to_string(code) + ";";
}

// One character as it stands in HTML.
std::string escaped(std::string_view character) {
    if (character == "<") return "&lt;";
    if (character == ">") return "&gt;";
    if (character == "&") return "&amp;";
    return base::rappresentabile(character) ? std::string(character) : entity(character);
}

// A text in which no character marks anything.
std::string plainText(std::string_view text) {
    std::string html;
    while (!text.empty()) {
        const auto length = base::lunghezzaPrimoCarattere(text);
        html += escaped(text.substr(0, length));
        text.remove_prefix(length);
    }
    return html;
}

/// Turns the mark-up within a line into tags.
class Inline {
 public:
    Inline(HelpBody& body, std::string_view text) : body_(body), text_(text) {}

    /// The whole text; nothing when a mark is not closed.
    std::optional<std::string> all() {
        std::string html;
        while (at_ < text_.size())
            if (!step(html)) return std::nullopt;
        return html;
    }

 private:
    struct Mark {
        std::string_view open, close, before, after;
    };
    static constexpr Mark marks[] = {{"**", "**", "<b>", "</b>"},
                                     {"`", "`", "<code>", "</code>"},
                                     {"_{", "}", "<sub>", "</sub>"},
                                     {"^{", "}", "<sup>", "</sup>"}};

    bool step(std::string& html) {
        const auto rest = text_.substr(at_);
        if (rest.starts_with("[[")) return link(html);
        for (const Mark& mark : marks)
            if (rest.starts_with(mark.open)) return marked(html, mark);
        const auto length = base::lunghezzaPrimoCarattere(rest);
        const auto character = rest.substr(0, length);
        html += escaped(character);
        at_ += length;
        return true;
    }

    // Text up to the closing mark, with marks of its own in it.
    bool marked(std::string& html, const Mark& mark) {
        const auto start = at_ + mark.open.size();
        const auto end = text_.find(mark.close, start);
        if (end == std::string_view::npos) return false;
        const auto inside = Inline(body_, text_.substr(start, end - start)).all();
        if (!inside) return false;
        html.append(mark.before).append(*inside).append(mark.after);
        at_ = end + mark.close.size();
        return true;
    }

    // [[page|text]] or [[page#place|text]]
    bool link(std::string& html) {
        const auto end = text_.find("]]", at_);
        const auto bar = text_.find('|', at_);
        if (end == std::string_view::npos || bar > end) return false;
        const auto target = text_.substr(at_ + 2, bar - at_ - 2);
        const auto shown = Inline(body_, text_.substr(bar + 1, end - bar - 1)).all();
        if (target.empty() || !shown || shown->empty()) return false;
        body_.links.emplace_back(target);
        html += "<a href=\"" + std::string(target) + "\">" + *shown + "</a>";
        at_ = end + 2;
        return true;
    }

    HelpBody& body_;
    std::string_view text_;
    std::size_t at_ = 0;
};

/// Goes through the blocks of a page.
class Blocks {
 public:
    Blocks(HelpBody& body, const Lines& lines, const HelpFrame& frame)
        : body_(body), lines_(lines), fields_(frame.fields), groups_(frame.groups) {}

    void all() {
        while (at_ < lines_.size() && body_.fault.empty()) {
            const auto line = lines_[at_];
            if (line.empty())
                ++at_;
            else if (line.starts_with("@campo "))
                field();
            else if (line.starts_with("@gruppo "))
                group();
            else if (line.starts_with("== "))
                emit("<h2>" + shown(lines_[at_++].substr(3)) + "</h2>");
            else if (line.starts_with("= "))
                formula();
            else if (line.starts_with("- "))
                list();
            else if (line.starts_with("|"))
                table();
            else if (line.starts_with("! "))
                emit("<table class=\"avviso\" width=\"100%\" cellpadding=\"6\"><tr><td>" +
                     shown(paragraph(2)) + "</td></tr></table>");
            else if (line.starts_with("@"))
                refuse("atteso \"@campo NOME\" o \"@gruppo NOME\"");
            else
                emit("<p>" + shown(paragraph(0)) + "</p>");
        }
        if (body_.fault.empty() && body_.anchors.size() < fields_.size())
            refuse("atteso il campo " + fields_[body_.anchors.size()].name);
        if (body_.fault.empty() && nextGroup_ < groups_.size())
            refuse("atteso il gruppo " + groups_[nextGroup_].name);
    }

 private:
    void emit(const std::string& block) { body_.html += block + "\n"; }

    void refuse(const std::string& expected) {
        body_.fault = expected;
        body_.faultLine = at_ < lines_.size() ? at_ : lines_.size() - 1;
    }

    std::string shown(std::string_view text) {
        const auto html = Inline(body_, text).all();
        if (!html && body_.fault.empty()) {
            if (at_ > 0) --at_;
            refuse("attesi segni chiusi: **, `, _{}, ^{}, [[pagina|testo]]");
        }
        return html.value_or("");
    }

    static bool beginsBlock(std::string_view line) {
        for (const std::string_view sign : {"@", "= ", "== ", "- ", "|", "! "})
            if (line.starts_with(sign)) return true;
        return line.empty();
    }

    // This line from `skip` on and those that go on with it.
    std::string paragraph(std::size_t skip) {
        std::string text(lines_[at_++].substr(skip));
        while (at_ < lines_.size() && !beginsBlock(lines_[at_]))
            text.append(" ").append(base::senzaSpaziEsterni(lines_[at_++]));
        return text;
    }

    // The label comes from the structure: the one under which the form shows the field.
    void field() {
        const std::size_t next = body_.anchors.size();
        const auto name = lines_[at_].substr(7);
        if (next == fields_.size()) return refuse("attesi solo i campi di struttura");
        if (name != fields_[next].name) return refuse("atteso il campo " + fields_[next].name);
        const std::string anchor = "campo" + fields_[next].name;
        body_.anchors.push_back(anchor);
        ++at_;
        emit("<h3><a name=\"" + anchor + "\"></a>" + shown(fields_[next].label) + "</h3>");
    }

    // A table of the messages that the page explains, each by the row with its name, then a list of
    // those that need no word more. Their texts are those of the program, so that none can differ.
    void group() {
        const auto name = lines_[at_].substr(8);
        if (nextGroup_ == groups_.size()) return refuse("attesi solo i gruppi di struttura");
        const HelpMessageGroup& group = groups_[nextGroup_];
        if (name != group.name) return refuse("atteso il gruppo " + group.name);
        ++nextGroup_;
        ++at_;
        std::vector<const HelpMessage*> explained;
        std::string alone;
        for (const auto& message : group.messages)
            if (message.name.empty())
                alone += "<li>" + plainText(message.text) + "</li>";
            else
                explained.push_back(&message);
        if (!explained.empty()) explanations(explained);
        if (!alone.empty() && body_.fault.empty()) emit("<ul>" + alone + "</ul>");
    }

    // "| head | head |", then "| NAME | what to do |" for each of the messages.
    void explanations(const std::vector<const HelpMessage*>& messages) {
        std::string rows;
        for (std::size_t row = 0; row <= messages.size(); ++row, ++at_) {
            const std::string expected = row == 0 ? "la testa di una tabella di messaggi"
                                                  : "il messaggio " + messages[row - 1]->name;
            if (at_ == lines_.size() || !lines_[at_].starts_with("|"))
                return refuse("atteso: " + expected);
            const auto cells = cellsOf(lines_[at_]);
            if (cells.size() != 2 || (row > 0 && cells[0] != messages[row - 1]->name))
                return refuse("atteso: " + expected);
            const std::string first =
                row == 0 ? shown(cells[0]) : plainText(messages[row - 1]->text);
            rows += tableRow({first, shown(cells[1])}, row == 0);
            if (!body_.fault.empty()) return;
        }
        if (at_ < lines_.size() && lines_[at_].starts_with("|"))
            return refuse("attesi solo i messaggi del gruppo");
        emitTable(rows);
    }

    // Blanks in a row part two formulas of a line.
    void formula() {
        std::string text;
        for (; at_ < lines_.size() && lines_[at_].starts_with("= "); ++at_)
            text += (text.empty() ? "" : "<br/>") + shown(lines_[at_].substr(2));
        for (auto i = text.find("  "); i != std::string::npos; i = text.find("  ", i))
            text.replace(i, 2, "&#160; ");
        emit("<p class=\"formula\">" + text + "</p>");
    }

    void list() {
        std::string items;
        while (at_ < lines_.size() && lines_[at_].starts_with("- "))
            items += "<li>" + shown(paragraph(2)) + "</li>";
        emit("<ul>" + items + "</ul>");
    }

    // "| a | b |"; the first row is the head.
    void table() {
        std::string rows;
        std::size_t columns = 0;
        for (; at_ < lines_.size() && lines_[at_].starts_with("|"); ++at_) {
            const auto cells = cellsOf(lines_[at_]);
            const bool head = rows.empty();
            if (head) columns = cells.size();
            if (cells.size() != columns || columns < 2)
                return refuse("attese celle quante in testa");
            std::vector<std::string> texts;
            for (const auto cell : cells) texts.push_back(shown(cell));
            rows += tableRow(texts, head);
        }
        emitTable(rows);
    }

    static std::string tableRow(const std::vector<std::string>& cells, bool head) {
        std::string row = "<tr>";
        for (const auto& cell : cells)
            row += (head ? "<th align=\"left\">" : "<td>") + cell + (head ? "</th>" : "</td>");
        return row + "</tr>";
    }

    void emitTable(const std::string& rows) {
        emit("<table class=\"tabella\" border=\"1\" cellspacing=\"0\" cellpadding=\"4\">" + rows +
             "</table>");
    }

    // A bar within [[...]] parts no cells.
    static Lines cellsOf(std::string_view line) {
        Lines cells;
        std::size_t start = 1;
        int depth = 0;
        for (std::size_t i = 1; i < line.size(); ++i) {
            if (line.substr(i).starts_with("[[")) ++depth;
            if (line.substr(i).starts_with("]]")) --depth;
            if (line[i] != '|' || depth > 0) continue;
            cells.push_back(base::senzaSpaziEsterni(line.substr(start, i - start)));
            start = i + 1;
        }
        return cells;
    }

    HelpBody& body_;
    const Lines& lines_;
    const std::vector<HelpField>& fields_;
    const std::vector<HelpMessageGroup>& groups_;
    std::size_t at_ = 0, nextGroup_ = 0;
};

}  // namespace

HelpBody helpBody(const Lines& lines, const HelpFrame& frame) {
    HelpBody body;
    Blocks(body, lines, frame).all();
    return body;
}

}  // namespace korven::tools
