#include "markup/character_widths.hpp"

#include <utility>

#include "base/code_page.hpp"

namespace korven::markup {

CharacterWidths::CharacterWidths(TextMeasure measure) : measure_(std::move(measure)) {
    ascii_.fill(unknown);
}

double CharacterWidths::operator()(std::string_view utf8) {
    double sum = 0;
    for (const char *at = utf8.begin(), *end = utf8.end(); at != end;) {
        const auto first = static_cast<unsigned char>(*at);
        if (first < ascii_.size()) {  // a character of its own, as nearly all are
            sum += asciiWidth(first);
            ++at;
            continue;
        }
        const std::string_view rest(at, static_cast<std::size_t>(end - at));
        const std::size_t length = base::lunghezzaPrimoCarattere(rest);
        sum += otherWidth(rest.substr(0, length));
        at += length;
    }
    return sum;
}

double CharacterWidths::asciiWidth(unsigned char character) {
    double& width = ascii_[character];
    if (width == unknown) {
        const char text = static_cast<char>(character);
        width = measure_({&text, 1});
    }
    return width;
}

double CharacterWidths::otherWidth(std::string_view character) {
    const auto known = others_.find(character);
    if (known != others_.end()) return known->second;
    return others_.emplace(character, measure_(character)).first->second;
}

}  // namespace korven::markup
