#include "tools/hatch_source.hpp"

#include <algorithm>
#include <cstdlib>
#include <limits>
#include <optional>

#include "tools/source_lines.hpp"

namespace korven::tools {

namespace {

constexpr std::size_t anyCount = std::numeric_limits<std::size_t>::max();
constexpr int reach = 200;  // shapes may run out of the tile, no further than into the next ones

/// What a word of the language takes.
struct Word {
    std::string_view word;
    std::size_t least, most;       ///< numbers after it
    bool pairs = false;            ///< the numbers come in pairs x, y
    bool block = false;            ///< lines up to "fine" belong to it
    bool fillable = false;         ///< "pieno" may come first
    std::size_t count = anyCount;  ///< index of the number that counts chords or copies
};

constexpr Word vocabulary[] = {
    {"linea", 4, 4},
    {"spezzata", 4, anyCount, true},
    {"poligono", 6, anyCount, true, false, true},
    {"cerchio", 4, 4, false, false, true, 3},
    {"ellisse", 6, 6, false, false, true, 5},
    {"arco", 6, 6, false, false, false, 5},
    {"onda", 4, 5, false, false, false, 3},
    {"punto", 2, 2},
    {"mattoni", 2, 3, false, false, false, 0},
    {"occupa", 3, 3},
    {"metti", 2, 4},
    {"griglia", 2, 3, false, true, false, 0},
    {"ripeti", 3, 3, false, true, false, 2},
    {"sparsi", 3, 4, false, true, false, 1},
};

class Reader {
 public:
    explicit Reader(SourceLines lines) : lines_(std::move(lines)) {}

    HatchSource all() {
        while (const auto line = nextLine()) {
            if (line->starts_with("@figura ")) {
                figure(words(*line));
            } else if (line->starts_with("@campitura ")) {
                pattern(words(*line));
            } else {
                command(words(*line));
            }
        }
        endBlocks();
        return std::move(source_);
    }

 private:
    // Without comments, empty lines and indentation.
    std::optional<std::string_view> nextLine() {
        while (auto line = lines_.next()) {
            const auto start = line->find_first_not_of(' ');
            if (start == std::string_view::npos || (*line)[start] == '#') continue;
            line->remove_prefix(start);
            return line;
        }
        return std::nullopt;
    }

    void figure(const std::vector<std::string_view>& word) {
        endBlocks();
        if (word.size() != 2) lines_.refuse("atteso \"@figura NOME\"");
        const auto [place, isNew] = source_.figures.try_emplace(std::string(word[1]));
        if (!isNew) lines_.refuse("attesa una figura nuova");
        // A figure is known to "metti" from its end on, so that none contains itself.
        open_ = {&place->second};
        unfinished_ = place->first;
    }

    void pattern(const std::vector<std::string_view>& word) {
        endBlocks();
        const auto number = word.size() == 3 ? wholeNumber(word[1]) : std::nullopt;
        const auto unit = word.size() == 3 ? decimalNumber(word[2]) : std::nullopt;
        if (!number || !unit) lines_.refuse("atteso \"@campitura NUMERO UNITÀ\"");
        const int last = source_.patterns.empty() ? 0 : source_.patterns.back().number;
        if (*number <= last || *number > hatchRows)
            lines_.refuse("atteso un numero da " + std::to_string(last + 1) + " a 100");
        if (!(*unit >= 0.001 && *unit <= 0.05)) lines_.refuse("attesa un'unità da 0.001 a 0.05");
        auto& now = source_.patterns.emplace_back();
        now = {*number, *unit, {}, {}, lines_.number()};
        for (std::size_t i = 0; i < now.name.size(); ++i)
            now.name[i] = languageText(lines_, nextLine().value_or(""), i);
        open_ = {&now.commands};
    }

    void endBlocks() {
        if (open_.size() > 1) lines_.refuse("atteso \"fine\"");
        if (!open_.empty() && open_.back()->empty()) lines_.refuse("atteso almeno un tratto");
        open_.clear();
        unfinished_.clear();
    }

    void command(std::vector<std::string_view> word) {
        if (open_.empty()) lines_.refuse("attesa prima una riga \"@figura\" o \"@campitura\"");
        if (word.front() == "fine") return endBlock(word.size());
        HatchCommand now;
        now.full = word.front() == "pieno";
        if (now.full) word.erase(word.begin());
        const Word& rule = known(word.empty() ? std::string_view() : word.front());
        if (now.full && !rule.fillable) lines_.refuse("attesa una forma chiusa dopo \"pieno\"");
        now.word = rule.word;
        word.erase(word.begin());
        if (now.word == "metti") {
            now.figure = placed(word);
            word.erase(word.begin());
        }
        numbers(word, rule, now.values);
        open_.back()->push_back(std::move(now));
        if (rule.block) open_.push_back(&open_.back()->back().body);
    }

    void endBlock(std::size_t wordCount) {
        if (wordCount != 1 || open_.size() < 2) lines_.refuse("nessun blocco da chiudere qui");
        if (open_.back()->empty()) lines_.refuse("atteso almeno un tratto nel blocco");
        open_.pop_back();
    }

    const Word& known(std::string_view name) const {
        const auto* const found =
            std::find_if(std::begin(vocabulary), std::end(vocabulary),
                         [name](const Word& word) { return word.word == name; });
        if (found == std::end(vocabulary))
            lines_.refuse("parola sconosciuta: " + std::string(name));
        return *found;
    }

    std::string placed(const std::vector<std::string_view>& word) const {
        const std::string name(word.empty() ? std::string_view() : word.front());
        if (!source_.figures.contains(name) || name == unfinished_)
            lines_.refuse("attesa una figura già descritta: " + name);
        return name;
    }

    void numbers(const std::vector<std::string_view>& word, const Word& rule,
                 std::vector<int>& values) const {
        if (word.size() < rule.least || word.size() > rule.most ||
            (rule.pairs && word.size() % 2 != 0))
            lines_.refuse("numero di valori sbagliato per \"" + std::string(rule.word) + "\"");
        for (const auto text : word) {
            const auto value = wholeNumber(text);
            if (!value) lines_.refuse("atteso un numero intero: " + std::string(text));
            values.push_back(*value);
        }
        for (std::size_t i = 0; i < values.size(); ++i)
            if (std::abs(values[i]) > limitOf(rule, i))
                lines_.refuse("valore troppo grande: " + std::to_string(values[i]));
        if (rule.count != anyCount && values[rule.count] < 1)
            lines_.refuse("atteso almeno 1: " + std::to_string(values[rule.count]));
        if (rule.word == "griglia" && values[1] < 1) lines_.refuse("attesa almeno una riga");
        if (rule.word == "mattoni" && values[1] < 1) lines_.refuse("atteso almeno un giunto");
    }

    // Angles go round, seeds are free, counts may be larger than a tile is wide.
    static int limitOf(const Word& rule, std::size_t index) {
        if (rule.word == "sparsi" && index == 0) return std::numeric_limits<int>::max();
        const bool angle = (rule.word == "ellisse" && index == 4) ||
                           (rule.word == "arco" && (index == 3 || index == 4)) ||
                           (rule.word == "metti" && index >= 2) ||
                           (rule.word == "sparsi" && index == 3) ||
                           (rule.word == "onda" && index == 4);
        return angle || index == rule.count ? 400 : reach;
    }

    SourceLines lines_;
    HatchSource source_;
    std::vector<std::vector<HatchCommand>*> open_;  ///< innermost block last
    std::string unfinished_;                        ///< figure being read
};

}  // namespace

HatchSource readHatchSource(const std::string& path, std::string_view content) {
    return Reader(SourceLines(path, content)).all();
}

}  // namespace korven::tools
