#pragma once

#include <string>
#include <string_view>

namespace korven::scene {

/// Measures texts in the font that the picture will be painted with.
class MisuraTesti {
 public:
    virtual ~MisuraTesti() = default;
    /// Width of a text [px] in a font of size `corpo` [px].
    [[nodiscard]] virtual double larghezza(std::string_view testo, double corpo,
                                           bool grassetto) const = 0;
};

/// Takes the place of a font: the widths of a usual sans-serif face.
class MisuraStimata : public MisuraTesti {
 public:
    [[nodiscard]] double larghezza(std::string_view testo, double corpo,
                                   bool grassetto) const override;
};

}  // namespace korven::scene
