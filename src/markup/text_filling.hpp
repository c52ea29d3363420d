#pragma once

#include <string>
#include <string_view>

#include "markup/text_fitting.hpp"

namespace korven::markup {

/// The text followed by the fewest `fill` characters for which text, fill and `tail` together are
/// no narrower than `width`. Whoever pads with blanks alone reaches a position this way, though
/// never exactly.
/// @param fill     one character with a width of its own; without one nothing is filled
/// @param measure  in the unit of `width`; must not shrink as the text grows
/// @return the text filled, without the tail
[[nodiscard]] std::string filledUpTo(std::string text, char fill, std::string_view tail,
                                     double width, const TextMeasure& measure);

/// The label of a list: a blank after it, then points up to the width of its column, which lead the
/// eye to the value.
[[nodiscard]] std::string dottedLeader(std::string_view label, double width,
                                       const TextMeasure& measure);

}  // namespace korven::markup
