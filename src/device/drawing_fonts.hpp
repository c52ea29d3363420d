#pragma once

#include <QFont>
#include <string_view>

#include "plot/text_width.hpp"

namespace korven::device {

/// The font of a drawing's texts: the typeface named, or one with the same widths when the machine
/// lacks it (Liberation for Arial, Courier New and Times New Roman), at a size for measuring.
/// Shapes are not fitted to pixels, so that a text has the same proportions on every device.
[[nodiscard]] QFont fontDisegno(std::string_view carattere);

/// Font size at which a row of text in this font, accents and descenders included, is `riga` high,
/// in the same unit. A drawing writes a text of height h in a row of 5/3 h.
[[nodiscard]] double corpoPerRiga(const QFont& font, double riga);

/// Row of a text over its height.
inline constexpr double rigaPerAltezza = 5.0 / 3.0;

/// Width of a painted text over that in the font it is painted in: 1, except where a drawing counts
/// on other widths. Fonts of one name come in versions, and a wider one is used where the machine
/// has none of the widths of a known face; the text is as wide as it was measured all the same.
[[nodiscard]] double stiramento(std::string_view carattere, std::string_view testo);

/// Measures texts in the fonts that the drawing is painted with. Faces whose widths are known take
/// those, so that a drawing is the same whatever fonts are at hand.
class MetricaQt : public plot::MetricaTesto {
 public:
    [[nodiscard]] double larghezza(std::string_view carattere, double altezza,
                                   std::string_view testo) const override;
};

}  // namespace korven::device
