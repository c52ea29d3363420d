#include "markup/character_widths.hpp"

#include <utility>

#include "base/code_page.hpp"

namespace korven::markup {

CharacterWidths::CharacterWidths(TextMeasure measure) : measure_(std::move(measure)) {
    ascii_.fill(unknown);
}

double CharacterWidths::operator()(std::string_view utf8) {
    double sum = 0;
    while (!utf8.empty()) {
        const std::size_t length = base::lunghezzaPrimoCarattere(utf8);
        sum += widthOf(utf8.substr(0, length));
        utf8.remove_prefix(length);
    }
    return sum;
}

double CharacterWidths::widthOf(std::string_view character) {
    const auto first = static_cast<unsigned char>(character.front());
    if (first < ascii_.size()) {
        double& width = ascii_[first];
        if (width == unknown) width = measure_(character);
        return width;
    }
    const auto known = others_.find(character);
    if (known != others_.end()) return known->second;
    return others_.emplace(character, measure_(character)).first->second;
}

}  // namespace korven::markup
