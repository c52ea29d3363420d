#include "tools/pen_source.hpp"

#include <optional>
#include <utility>

#include "base/code_page.hpp"
#include "base/language.hpp"
#include "base/number_text.hpp"
#include "tools/source_lines.hpp"

namespace korven::tools {

namespace {

constexpr std::size_t penRows = 30;
constexpr std::size_t colourRows = 15;
constexpr double widest = 5.0;         // mm
constexpr double largestShift = 50.0;  // cm

int hexDigit(char c) {
    if (c >= '0' && c <= '9') return c - '0';
    if (c >= 'A' && c <= 'F') return c - 'A' + 10;
    return -1;
}

/// The value of "#RRGGBB", red in the low byte; nothing for another form.
std::optional<int> colourValue(std::string_view text) {
    if (text.size() != 7 || text[0] != '#') return std::nullopt;
    int value = 0;
    for (std::size_t channel = 0; channel < 3; ++channel) {
        const int high = hexDigit(text[1 + 2 * channel]);
        const int low = hexDigit(text[2 + 2 * channel]);
        if (high < 0 || low < 0) return std::nullopt;
        value |= (16 * high + low) << (8 * channel);
    }
    return value;
}

class Reader {
 public:
    explicit Reader(SourceLines lines) : lines_(std::move(lines)) {}

    PenSource all() {
        while (const auto line = nextLine()) {
            const auto word = words(*line);
            if (word[0] == "@colore") {
                colour(word);
            } else if (word[0] == "@penna") {
                pen(word);
            } else if (word[0] == "@margini") {
                margins(word);
            } else {
                lines_.refuse("attesa una riga \"@colore\", \"@penna\" o \"@margini\"");
            }
        }
        if (source_.colours.size() != colourRows) lines_.refuse("attesi 15 colori");
        if (source_.pens.size() != penRows) lines_.refuse("attese 30 penne");
        if (!hasMargins_) lines_.refuse("attesa una riga \"@margini SINISTRO SUPERIORE\"");
        return std::move(source_);
    }

 private:
    // Without comments and empty lines.
    std::optional<std::string_view> nextLine() {
        while (auto line = lines_.next())
            if (line->find_first_not_of(' ') != std::string_view::npos && !line->starts_with('#'))
                return line;
        return std::nullopt;
    }

    void colour(const std::vector<std::string_view>& word) {
        if (word.size() != 3) lines_.refuse("atteso \"@colore NUMERO #RRGGBB\"");
        expectRow(word[1], source_.colours.size() + 1, colourRows);
        const auto value = colourValue(word[2]);
        if (!value) lines_.refuse("atteso un colore #RRGGBB");
        if (*value == 0)
            lines_.refuse("atteso un colore che non sia 0: una penna non disegnerebbe");
        auto& row = source_.colours.emplace_back();
        row.value = *value;
        row.name = texts();
        for (std::size_t i = 0; i + 1 < source_.colours.size(); ++i)
            expectNew(row.name, source_.colours[i].name);
    }

    void pen(const std::vector<std::string_view>& word) {
        if (word.size() < 5) lines_.refuse("atteso \"@penna NUMERO COLORE SPESSORE CARATTERE\"");
        expectRow(word[1], source_.pens.size() + 1, penRows);
        const auto colourNumber = wholeNumber(word[2]);
        if (!colourNumber || *colourNumber < 0 || *colourNumber > static_cast<int>(colourRows))
            lines_.refuse("atteso un colore da 0 a 15");
        auto& row = source_.pens.emplace_back();
        row.colour = *colourNumber;
        row.width = within(word[3], 0.0, widest);
        for (std::size_t i = 4; i < word.size(); ++i)
            row.font += (i > 4 ? " " : "") + std::string(word[i]);
        if (!base::rappresentabile(row.font))
            lines_.refuse("attesi solo caratteri di Windows-1252");
        row.label = texts();
        for (std::size_t i = 0; i + 1 < source_.pens.size(); ++i)
            expectNew(row.label, source_.pens[i].label);
    }

    void margins(const std::vector<std::string_view>& word) {
        if (word.size() != 3 || hasMargins_)
            lines_.refuse("attesa una sola riga \"@margini SINISTRO SUPERIORE\"");
        source_.left = within(word[1], -largestShift, largestShift);
        source_.top = within(word[2], -largestShift, largestShift);
        hasMargins_ = true;
    }

    void expectRow(std::string_view word, std::size_t next, std::size_t rows) const {
        const auto number = wholeNumber(word);
        if (!number || *number != static_cast<int>(next) || next > rows)
            lines_.refuse("atteso il numero " + std::to_string(next) + " di " +
                          std::to_string(rows));
    }

    [[nodiscard]] double within(std::string_view word, double least, double most) const {
        const auto value = decimalNumber(word);
        if (!value || !(*value >= least && *value <= most))
            lines_.refuse("atteso un numero da " + base::testoNumero(least) + " a " +
                          base::testoNumero(most));
        return *value;
    }

    PenTexts texts() {
        PenTexts text;
        for (std::size_t i = 0; i < penLanguages; ++i)
            text[i] = languageText(lines_, nextLine().value_or(""), i);
        return text;
    }

    void expectNew(const PenTexts& text, const PenTexts& known) const {
        for (std::size_t i = 0; i < penLanguages; ++i)
            if (text[i] == known[i]) lines_.refuse("atteso un testo nuovo: " + text[i]);
    }

    SourceLines lines_;
    PenSource source_;
    bool hasMargins_ = false;
};

}  // namespace

PenSource readPenSource(const std::string& path, std::string_view content) {
    return Reader(SourceLines(path, content)).all();
}

std::string penFileName(int language) {
    return "module06" + std::string(base::siglaLingua(language)) + ".CFG";
}

std::string penFileBytes(const PenSource& source, int language) {
    const auto index = static_cast<std::size_t>(language - 1);
    std::string bytes;
    const auto line = [&bytes](const std::string& text) { bytes += base::inCp1252(text) + "\r\n"; };
    for (const auto& pen : source.pens) {
        line(pen.label.at(index));
        line(std::to_string(pen.colour));
        line(base::formattaNumero(pen.width));
        line(pen.font);
    }
    for (const auto& colour : source.colours) {
        line(colour.name.at(index));
        line(std::to_string(colour.value));
    }
    line(base::formattaNumero(source.left));
    line(base::formattaNumero(source.top));
    return bytes;
}

}  // namespace korven::tools
