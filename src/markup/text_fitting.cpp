#include "markup/text_fitting.hpp"

#include <algorithm>
#include <span>
#include <utility>

#include "base/code_page.hpp"
#include "base/table.hpp"
#include "base/translated_texts.hpp"
#include "markup/syllable_rule.hpp"

namespace korven::markup {

namespace {

constexpr char lineEnd = '|';

void skipBlanks(std::string_view& text) {
    text.remove_prefix(std::min(text.find_first_not_of(' '), text.size()));
}

class Fitting {
 public:
    Fitting(std::string_view text, double width, const TextMeasure& measure)
        : rest_(text), width_(width), measure_(measure) {}

    std::vector<std::string> lines() {
        for (skipBlanks(rest_); !rest_.empty(); skipBlanks(rest_)) {
            const std::string_view stretch = rest_.substr(0, rest_.find(lineEnd));
            if (measure_(stretch) < width_)
                wholeLine(stretch);
            else
                cutLine(stretch);
        }
        return std::move(lines_);
    }

 private:
    void add(std::string line) {
        if (lines_.size() == maximumLines)
            throw base::ErroreIndice(
                base::traduttore("la descrizione di uno strato ha più di 100 righe"));
        lines_.push_back(std::move(line));
    }

    // Goes on after `length` bytes, and after the line end if one follows.
    void goOn(std::size_t length) {
        rest_.remove_prefix(length);
        if (rest_.starts_with(lineEnd)) rest_.remove_prefix(1);
    }

    void wholeLine(std::string_view stretch) {
        add(std::string(base::senzaSpaziEsterni(stretch)));
        goOn(stretch.size());
    }

    void cutLine(std::string_view stretch) {
        const std::string_view head = stretch.substr(0, headLength(stretch));
        std::string_view tail = stretch.substr(head.size());
        const bool insideWord = !tail.empty() && !head.ends_with(' ') && !tail.starts_with(' ');
        add(std::string(base::senzaSpaziEsterni(head)) + (insideWord ? "-" : ""));
        // Blanks before a line end are no line of their own.
        skipBlanks(tail);
        goOn(stretch.size() - tail.size());
    }

    // Bytes of the syllables that the line takes: the last one that overran is taken back.
    [[nodiscard]] std::size_t headLength(std::string_view stretch) const {
        const auto letters = characters(stretch);
        std::span<const std::string_view> undivided = letters;
        std::size_t head = 0;
        while (!undivided.empty()) {
            const auto piece = undivided.first(std::min(syllable(undivided), undivided.size()));
            std::size_t longer = head;
            for (const auto letter : piece) longer += letter.size();
            const bool fits = measure_(stretch.substr(0, longer)) < width_;
            if (fits || head == 0) head = longer;
            if (!fits) break;
            undivided = undivided.subspan(piece.size());
        }
        return head;
    }

    std::string_view rest_;
    double width_;
    const TextMeasure& measure_;
    std::vector<std::string> lines_;
};

}  // namespace

std::vector<std::string> fitText(std::string_view text, double width, const TextMeasure& measure) {
    return Fitting(text, width, measure).lines();
}

}  // namespace korven::markup
