#pragma once

#include <string>
#include <string_view>

#include "scene/picture.hpp"

namespace korven::scene {

/// A picture as SVG: lines, areas, hatches as strokes. Texts are texts, as wide as they were
/// measured in whatever font shows them; a control character in one becomes U+FFFD, since XML takes
/// none.
/// @param famiglia     the font that the texts were measured in
/// @param titolo       of the picture, and its description for those who do not see it
[[nodiscard]] std::string svg(const Scena& scena, Tavolozza tavolozza, std::string_view famiglia,
                              std::string_view titolo, std::string_view descrizione);

}  // namespace korven::scene
