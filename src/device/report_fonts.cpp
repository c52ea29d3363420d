#include "device/report_fonts.hpp"

#include <QFontMetricsF>
#include <algorithm>

#include "device/drawing_fonts.hpp"
#include "device/qt_text.hpp"

namespace korven::device {

namespace {

constexpr double corpoMassimo = 1000;  // a letter as high as the largest sheets [points]

QFont fontRelazione(const markup::ReportFont& voluto) {
    QFont font = fontDisegno(voluto.name.empty() ? markup::defaultFontName : voluto.name);
    font.setBold(voluto.bold);
    font.setItalic(voluto.italic);
    font.setStyleStrategy(QFont::PreferNoShaping);  // no ligatures
    return font;
}

}  // namespace

CarattereRelazione::CarattereRelazione(const markup::ReportFont& voluto)
    : font(fontRelazione(voluto)),
      glifi(font),
      larghezze_([misure = QFontMetricsF(font)](std::string_view testo) {
          return misure.horizontalAdvance(qt(testo));
      }) {
    const QFontMetricsF misure(font);
    const double corpo = font.pixelSize();
    ascendente = misure.ascent() / corpo;
    altezza = misure.height() / corpo;
    interlinea = misure.lineSpacing() / corpo;
}

double CarattereRelazione::larghezza(std::string_view testo, double corpo) {
    return larghezze_(testo) * corpo / font.pixelSize();
}

CarattereRelazione& CaratteriRelazione::carattere(const markup::ReportFont& font) {
    auto& fatto = fatti_[{font.name, font.bold, font.italic}];
    if (!fatto) fatto = std::make_unique<CarattereRelazione>(font);
    return *fatto;
}

double corpoStampato(double corpo) {
    if (!(corpo > 0)) return markup::defaultFontSize;
    return std::min(corpo, corpoMassimo);
}

}  // namespace korven::device
