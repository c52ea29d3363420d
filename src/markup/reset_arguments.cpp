#include "markup/reset_arguments.hpp"

#include <cmath>

#include "base/number_text.hpp"

namespace korven::markup {

namespace {

// Cuts the first field off the front of the text.
std::string_view cutField(std::string_view& text) {
    const auto comma = text.find(',');
    const std::string_view field = text.substr(0, comma);
    text.remove_prefix(comma == std::string_view::npos ? text.size() : comma + 1);
    return field;
}

double cutNumber(std::string_view& text) { return base::leggiNumero(cutField(text)).value_or(0); }

constexpr double ResetArguments::*lengths[] = {
    &ResetArguments::leftMargin,   &ResetArguments::rightMargin, &ResetArguments::topMargin,
    &ResetArguments::bottomMargin, &ResetArguments::headerGap,   &ResetArguments::footerGap};

}  // namespace

ResetArguments parseReset(std::string_view argument) {
    ResetArguments page;
    for (const auto length : lengths)
        page.*length = std::floor(cutNumber(argument) * pointsPerCentimetre);
    page.headerFontSize = std::trunc(cutNumber(argument));
    page.headerFontName = cutField(argument);
    return page;
}

}  // namespace korven::markup
