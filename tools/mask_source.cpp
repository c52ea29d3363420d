#include "tools/mask_source.hpp"

#include <algorithm>
#include <optional>
#include <span>
#include <utility>

#include "base/code_page.hpp"
#include "base/number_text.hpp"
#include "project/field_table.hpp"
#include "tools/source_lines.hpp"

namespace korven::tools {

namespace {

using Mark = std::string_view;

constexpr Mark maskMark = "@maschera";
constexpr Mark choiceMark = "@scelta ";
constexpr Mark fieldMark = "@campo ";
constexpr Mark otherMark = "@altro ";
constexpr Mark keysMark = "$$$";  // before the only values that a column takes

std::vector<std::string> parts(std::string_view text) {
    std::vector<std::string> all;
    while (true) {
        const auto end = text.find('|');
        all.emplace_back(text.substr(0, end));
        if (end == std::string_view::npos) return all;
        text.remove_prefix(end + 1);
    }
}

template <class Text>
std::string joined(std::span<const project::Codice> codes, Mark between, Text text) {
    std::string all;
    for (const auto& code : codes) all.append(all.empty() ? Mark() : between).append(text(code));
    return all;
}

class Reader {
 public:
    explicit Reader(SourceLines lines) : lines_(std::move(lines)) {}

    std::vector<MaskSource> all() {
        advance();
        while (line_) {
            if (line_->starts_with(maskMark))
                mask();
            else if (line_->starts_with(choiceMark))
                choice();
            else if (line_->starts_with(fieldMark))
                field();
            else if (line_->starts_with(otherMark))
                other();
            else
                lines_.refuse(
                    "attesa una riga \"@maschera\", \"@scelta\", \"@campo\" o \"@altro\"");
        }
        return std::move(masks_);
    }

 private:
    // The next line that is neither empty nor a comment, if there is one.
    void advance() {
        while ((line_ = lines_.next()))
            if (line_->find_first_not_of(' ') != std::string_view::npos && !line_->starts_with('#'))
                return;
    }

    [[nodiscard]] std::string checked(std::string_view text) const {
        if (!base::rappresentabile(text)) lines_.refuse("attesi solo caratteri di Windows-1252");
        return std::string(base::senzaSpaziEsterni(text));
    }

    // The text after a name such as "titolo:"; the line is then done.
    std::string named(Mark name) {
        if (!line_ || !line_->starts_with(name))
            lines_.refuse("attesa una riga \"" + std::string(name) + " ...\"");
        std::string text = checked(line_->substr(name.size()));
        at_ = lines_.number();
        advance();
        return text;
    }

    // A text that ends at a comma in the mask file.
    std::string namedValue(Mark name) {
        if (line_ && line_->find(',') != std::string_view::npos)
            lines_.refuse("attesa una riga senza virgole");
        return named(name);
    }

    MaskSource& current() {
        if (masks_.empty()) lines_.refuse("attesa prima una riga \"@maschera FILE TIPO\"");
        return masks_.back();
    }

    void mask() {
        const auto word = words(*line_);
        const int kind = word.size() == 3 ? wholeNumber(word[2]).value_or(0) : 0;
        if (word[0] != maskMark || kind < 1 || kind > 4)
            lines_.refuse("attesa una riga \"@maschera FILE TIPO\", con il tipo da 1 a 4");
        MaskSource& made = masks_.emplace_back();
        made.file = word[1];
        made.kind = kind;
        advance();
        made.title = namedValue("titolo:");
        const auto context = wholeNumber(namedValue("guida:"));
        if (!context || *context < 0 || *context > 200)
            lines_.refuse(at_, "attesa una voce della guida, da 0 a 200");
        made.context = *context;
        made.reference = named("riferimento:");
        for (const char c : made.reference)
            if (static_cast<unsigned char>(c) > 126)
                lines_.refuse(at_, "attesi solo caratteri senza accenti");
        made.buttons = parts(namedValue("pulsanti:"));
    }

    // The row of the table of fields that the line names after its mark.
    const project::Campo& projectField(Mark mark) {
        const auto name = base::senzaSpaziEsterni(line_->substr(mark.size()));
        const auto all = project::campi();
        const auto found =
            std::find_if(all.begin(), all.end(), [name](const auto& c) { return c.nome == name; });
        if (found == all.end()) lines_.refuse("atteso il nome di un campo del progetto");
        return *found;
    }

    void choice() {
        MaskSource& mask = current();
        if (mask.kind != 1 || mask.fields.size() > mask.choices.size())
            lines_.refuse("attese le scelte prima dei campi, e non in una griglia");
        const project::Campo& field = projectField(choiceMark);
        if (field.codici.empty()) lines_.refuse("atteso un campo con dei codici");
        advance();
        MaskField made;
        made.label = etichetta(field);
        mask.choices.push_back(
            joined(field.codici, "|", [](const auto& code) { return std::string(code.voce); }));
        // A choice has no type; its limits are its codes.
        made.type = "0";
        made.least = field.codici.front().valore;
        made.most = field.codici.back().valore;
        made.help = named("aiuto:");
        mask.fields.push_back(std::move(made));
    }

    void field() {
        MaskSource& mask = current();
        const project::Campo& field = projectField(fieldMark);
        advance();
        MaskField made;
        made.label = etichetta(field);
        made.type = namedValue("tipo:");
        const auto limits = field.limiti.value_or(project::Limiti{0, 0});
        made.least = limits.minimo;
        made.most = limits.massimo;
        made.help = named("aiuto:");
        if (!field.codici.empty())
            made.help += std::string(keysMark) + joined(field.codici, ",", [](const auto& code) {
                             return base::testoNumero(code.valore) + '=' + std::string(code.voce);
                         });
        if (field.parte != project::Parte::titoli) {
            mask.fields.push_back(std::move(made));
            return;
        }
        for (int i = 1; i <= project::numeroTitoli; ++i) {
            mask.fields.push_back(made);
            mask.fields.back().label += " [" + std::to_string(i) + ']';
        }
    }

    void other() {
        MaskField made;
        made.label = checked(line_->substr(otherMark.size()));
        MaskSource& mask = current();
        advance();
        made.type = namedValue("tipo:");
        const std::string limits = namedValue("limiti:");
        const auto word = words(limits);
        const auto least = word.size() == 2 ? decimalNumber(word[0]) : std::nullopt;
        const auto most = word.size() == 2 ? decimalNumber(word[1]) : std::nullopt;
        if (!least || !most || *most < *least) lines_.refuse(at_, "attesi due limiti in ordine");
        made.least = *least;
        made.most = *most;
        made.help = named("aiuto:");
        mask.fields.push_back(std::move(made));
    }

    SourceLines lines_;
    std::optional<std::string_view> line_;
    long at_ = 0;  // line of the text that `named` has taken last
    std::vector<MaskSource> masks_;
};

}  // namespace

std::vector<MaskSource> readMaskSource(const std::string& path, std::string_view content) {
    return Reader(SourceLines(path, content)).all();
}

std::string maskFileBytes(const MaskSource& mask) {
    std::string bytes;
    const auto line = [&bytes](const std::string& text) { bytes += base::inCp1252(text) + "\r\n"; };
    line(std::to_string(mask.kind));
    line(mask.title);
    if (mask.kind == 1) line(std::to_string(mask.choices.size()));
    for (const auto& items : mask.choices) line(items);
    line(std::to_string(mask.fields.size() - mask.choices.size()));
    for (const auto& field : mask.fields) {
        line(field.label);
        line(field.type);
        line(base::testoNumero(field.least));
        line(base::testoNumero(field.most));
        line(field.help);
    }
    line(mask.reference);
    line(std::to_string(mask.buttons.size()));
    for (const auto& caption : mask.buttons) line(caption);
    line("MN=" + std::to_string(mask.context));
    return bytes;
}

std::vector<std::string> maskTexts(const MaskSource& mask) {
    std::vector<std::string> texts{mask.title};
    const auto add = [&texts](std::string_view text) {
        texts.emplace_back(base::senzaSpaziEsterni(text));
    };
    for (const auto& items : mask.choices) add(items);
    constexpr Mark readOnlyMark = "§";
    for (const auto& field : mask.fields) {
        std::string_view label = field.label;
        if (label.starts_with(readOnlyMark)) label.remove_prefix(readOnlyMark.size());
        add(label.substr(0, label.find('[')));
        if (!field.help.empty()) add(field.help);
    }
    for (const auto& caption : mask.buttons) add(caption);
    return texts;
}

}  // namespace korven::tools
