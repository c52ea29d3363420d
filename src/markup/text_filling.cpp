#include "markup/text_filling.hpp"

#include <algorithm>
#include <cmath>

namespace korven::markup {

namespace {

// A line that no list and no page can show; keeps a measure that hardly grows from filling memory.
constexpr std::size_t maximumFill = 20000;

std::string joined(const std::string& text, std::size_t count, char fill, std::string_view tail) {
    std::string whole;
    whole.reserve(text.size() + count + tail.size());
    return whole.append(text).append(count, fill).append(tail);
}

}  // namespace

std::string filledUpTo(std::string text, char fill, std::string_view tail, double width,
                       const TextMeasure& measure) {
    const auto fallsShort = [&](std::size_t count) {
        return measure(joined(text, count, fill, tail)) < width;
    };
    const double start = measure(joined(text, 0, fill, tail));
    if (!(start < width)) return text;
    const double step = measure(std::string(1, fill));
    if (!(step > 0)) return text;

    // Measuring is what costs, so the count is guessed from the width of one and then corrected.
    const double guess = std::ceil((width - start) / step);
    auto count = static_cast<std::size_t>(std::clamp(guess, 1.0, double{maximumFill}));
    while (count < maximumFill && fallsShort(count)) ++count;
    while (count > 1 && !fallsShort(count - 1)) --count;
    return joined(text, count, fill, {});
}

std::string dottedLeader(std::string_view label, double width, const TextMeasure& measure) {
    return filledUpTo(std::string(label) + ' ', '.', {}, width, measure);
}

}  // namespace korven::markup
