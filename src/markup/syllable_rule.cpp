#include "markup/syllable_rule.hpp"

#include "base/code_page.hpp"

namespace korven::markup {

namespace {

constexpr std::string_view blank = " ";
constexpr std::string_view doubleConsonants = "BCDFGLMNPQRSTVZbcdfglmnpqrstvz";
constexpr std::string_view vowels = "AEIOUaeiou";

// Letters with an accent are none of either kind.
bool oneOf(std::string_view set, std::string_view character) {
    return character.size() == 1 && set.find(character.front()) != std::string_view::npos;
}

}  // namespace

std::vector<std::string_view> characters(std::string_view text) {
    std::vector<std::string_view> all;
    while (!text.empty()) {
        all.push_back(text.substr(0, base::lunghezzaPrimoCarattere(text)));
        text.remove_prefix(all.back().size());
    }
    return all;
}

std::size_t syllable(std::span<const std::string_view> text) {
    const auto at = [&](std::size_t i) { return i < text.size() ? text[i] : blank; };
    for (std::size_t i = 0; i < text.size(); ++i) {
        const auto c = text[i], n = at(i + 1), n2 = at(i + 2);
        const bool wordEnd = c == blank || n == blank;
        const bool doubled = oneOf(doubleConsonants, c) && n == c;
        const bool beforeConsonant = oneOf(vowels, c) && !oneOf(vowels, n) && oneOf(vowels, n2);
        if (wordEnd || doubled || beforeConsonant) return i + 1;
    }
    return text.size() + 1;
}

}  // namespace korven::markup
