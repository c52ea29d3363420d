#pragma once

#include <QFont>
#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <tuple>

#include "device/font_glyphs.hpp"
#include "markup/character_widths.hpp"
#include "markup/report_printer.hpp"

namespace korven::device {

/// A typeface of the printed report, in which a text is as wide as the sum of its characters: no
/// kerning, no ligatures. Heights are shares of the font's size.
struct CarattereRelazione {
    explicit CarattereRelazione(const markup::ReportFont& voluto);

    /// Width of a text [points].
    /// @param corpo  font size [points]
    [[nodiscard]] double larghezza(std::string_view testo, double corpo);

    QFont font;             ///< at a size for measuring [pixels]
    GlifiFont glifi;        ///< of that font
    double ascendente = 0;  ///< from the top of a line to its base line
    double altezza = 0;     ///< from the top of a line to its foot
    double interlinea = 0;  ///< from line to line

 private:
    markup::CharacterWidths larghezze_;
};

/// The typefaces that a report asks for, each made once.
class CaratteriRelazione {
 public:
    /// The typeface of that name, bold and italic as asked; one with the same widths where the
    /// machine lacks it, the usual one for an empty name. The size does not matter.
    [[nodiscard]] CarattereRelazione& carattere(const markup::ReportFont& font);

 private:
    std::map<std::tuple<std::string, bool, bool>, std::unique_ptr<CarattereRelazione>> fatti_;
};

/// The size at which a report is written that asks for this one [points]: within what a page can
/// show, and the usual one for 0 or less.
[[nodiscard]] double corpoStampato(double corpo);

}  // namespace korven::device
