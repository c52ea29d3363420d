#pragma once

#include <cstddef>
#include <span>
#include <string_view>
#include <vector>

namespace korven::markup {

/// The characters of a UTF-8 text, each a piece of it; a byte out of place is one.
[[nodiscard]] std::vector<std::string_view> characters(std::string_view text);

/// Number of characters after which a text can be parted, by a simple form of the Italian rules:
/// the first character that is a blank or is followed by one (or by the end), that is the first of
/// a double consonant, or that is a vowel before a single consonant and another vowel. "sabbia" is
/// parted after "sab", "argilla" after "argil", "limosa" after "li", "ghiaia" only at its end.
/// @return 1 or more; for an empty text 1, one more than its length
[[nodiscard]] std::size_t syllable(std::span<const std::string_view> text);

}  // namespace korven::markup
