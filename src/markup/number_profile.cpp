#include "markup/number_profile.hpp"

#include <algorithm>

#include "base/code_page.hpp"

namespace korven::markup {

static constexpr std::string_view zeros = "0000000000000";

int numberProfile(std::string_view cell) {
    if (cell.find_first_not_of(" .0123456789") != std::string_view::npos) return textProfile;
    const auto point = cell.find('.');
    if (point == std::string_view::npos || base::senzaSpaziEsterni(cell).ends_with('.'))
        return integerProfile;
    return static_cast<int>(cell.size() - point) - 1;
}

std::string alignedCell(std::string_view cell, int profile, int decimals) {
    if (profile == textProfile) return std::string(cell);
    std::string filled(cell);
    if (profile == integerProfile) filled += '.';
    filled += zeros;
    std::string aligned(base::senzaSpaziEsterni(filled));
    // The point counts as the first place, so -1 takes it off.
    aligned.resize(
        std::min(aligned.size(), aligned.find('.') + static_cast<std::size_t>(1 + decimals)));
    if (aligned.starts_with('.')) aligned.insert(0, 1, '0');
    return aligned;
}

}  // namespace korven::markup
