#include "device/drawing_fonts.hpp"

#include <QFontDatabase>
#include <QFontMetricsF>
#include <QString>
#include <algorithm>
#include <array>
#include <cmath>
#include <map>
#include <string>
#include <utility>

#include "device/qt_text.hpp"

namespace korven::device {

namespace {

constexpr int corpoDiMisura = 1000;  // pixels; large, so that widths have their full precision

QString famiglia(std::string_view carattere) {
    static const std::array<std::pair<QString, QString>, 4> sostituti{{
        {"Arial", "Liberation Sans"},
        {"Helvetica", "Liberation Sans"},
        {"Courier New", "Liberation Mono"},
        {"Times New Roman", "Liberation Serif"},
    }};
    QString voluta = qt(carattere);
    if (QFontDatabase::hasFamily(voluta)) return voluta;
    for (const auto& [nome, sostituto] : sostituti)
        if (voluta.compare(nome, Qt::CaseInsensitive) == 0) return sostituto;
    return voluta;
}

QFont nuovoFont(std::string_view carattere) {
    QFont font(famiglia(carattere));
    font.setStyleHint(QFont::SansSerif);
    font.setPixelSize(corpoDiMisura);
    font.setKerning(false);  // a plotter sets letter after letter
    font.setHintingPreference(QFont::PreferNoHinting);
    return font;
}

}  // namespace

QFont fontDisegno(std::string_view carattere) {
    static std::map<std::string, QFont, std::less<>> fatti;  // making one costs a search
    const auto fatto = fatti.find(carattere);
    if (fatto != fatti.end()) return fatto->second;
    return fatti.emplace(carattere, nuovoFont(carattere)).first->second;
}

double corpoPerRiga(const QFont& font, double riga) {
    const QFontMetricsF misure(font);
    return riga * font.pixelSize() / (misure.ascent() + misure.descent());
}

namespace {

// At height 1.
double larghezzaNelFont(std::string_view carattere, std::string_view testo) {
    const QFont font = fontDisegno(carattere);
    return QFontMetricsF(font).horizontalAdvance(qt(testo)) / font.pixelSize() *
           corpoPerRiga(font, rigaPerAltezza);
}

}  // namespace

double stiramento(std::string_view carattere, std::string_view testo) {
    // Known widths are rounded to thousandths, which shows nowhere; no distortion beyond reading.
    constexpr double trascurabile = 0.003, massimo = 2;
    if (!plot::MetricaStimata::conosce(carattere)) return 1;
    const double naturale = larghezzaNelFont(carattere, testo);
    const double voluta = plot::MetricaStimata().larghezza(carattere, 1, testo);
    if (!(naturale > 0) || !(voluta > 0)) return 1;
    const double rapporto = std::clamp(voluta / naturale, 1 / massimo, massimo);
    return std::abs(rapporto - 1) < trascurabile ? 1 : rapporto;
}

double MetricaQt::larghezza(std::string_view carattere, double altezza,
                            std::string_view testo) const {
    if (plot::MetricaStimata::conosce(carattere))
        return plot::MetricaStimata().larghezza(carattere, altezza, testo);
    return larghezzaNelFont(carattere, testo) * altezza;
}

}  // namespace korven::device
