#include "markup/estimated_width.hpp"

#include "plot/text_width.hpp"

namespace korven::markup {

// Words of narrow letters gain most; hardly one gains more than this.
static constexpr double boldAllowance = 1.15;

double estimatedWidth(const ReportFont& font, std::string_view text) {
    const double plain = plot::larghezzaStimata(font.name, text) * font.size;
    return font.bold ? plain * boldAllowance : plain;
}

}  // namespace korven::markup
