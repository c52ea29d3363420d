#pragma once

#include <string_view>

namespace korven::plot {

/// The typeface of all pens as they are delivered.
inline constexpr std::string_view carattereConsegnato = "Arial";

/// Measures texts with the fonts of the device that a drawing goes to.
class MetricaTesto {
 public:
    virtual ~MetricaTesto() = default;
    /// Width [cm] of a text in the typeface `carattere` at `altezza` [cm].
    [[nodiscard]] virtual double larghezza(std::string_view carattere, double altezza,
                                           std::string_view testo) const = 0;
};

/// Width of a text in any size, over the font size, where no device measures: that of a usual
/// sans-serif face, or of a typewriter face when the typeface has "Courier" or "Mono" in its name.
[[nodiscard]] double larghezzaStimata(std::string_view carattere, std::string_view testo);

/// Takes the place of a device: measures by `larghezzaStimata`.
class MetricaStimata : public MetricaTesto {
 public:
    /// True for a typeface whose widths are those that this class knows; any other is an estimate.
    [[nodiscard]] static bool conosce(std::string_view carattere);
    [[nodiscard]] double larghezza(std::string_view carattere, double altezza,
                                   std::string_view testo) const override;
};

}  // namespace korven::plot
