#pragma once

#include <array>
#include <map>
#include <string>
#include <string_view>

#include "markup/text_fitting.hpp"

namespace korven::markup {

/// Measures texts as the sum of the widths of their characters, each of which it asks for once.
/// True to a device that draws without kerning and ligatures, and quick where a text grows blank by
/// blank under the measure.
class CharacterWidths {
 public:
    /// @param measure  width of a text of one character
    explicit CharacterWidths(TextMeasure measure);

    [[nodiscard]] double operator()(std::string_view utf8);

 private:
    [[nodiscard]] double asciiWidth(unsigned char character);
    [[nodiscard]] double otherWidth(std::string_view character);

    static constexpr double unknown = -1;
    TextMeasure measure_;
    std::array<double, 128> ascii_;
    std::map<std::string, double, std::less<>> others_;
};

}  // namespace korven::markup
