#include "device/drawing_fonts.hpp"

#include <QFontDatabase>
#include <QFontMetricsF>
#include <QString>
#include <array>
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
    const QString voluta = qt(carattere);
    if (QFontDatabase::hasFamily(voluta)) return voluta;
    for (const auto& [nome, sostituto] : sostituti)
        if (voluta.compare(nome, Qt::CaseInsensitive) == 0) return sostituto;
    return voluta;
}

QFont nuovoFont(std::string_view carattere) {
    QFont font(famiglia(carattere));
    font.setStyleHint(QFont::SansSerif);
    font.setPixelSize(corpoDiMisura);
    font.setKerning(false);  // a plotter sets letter behind letter
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

double MetricaQt::larghezza(std::string_view carattere, double altezza,
                            std::string_view testo) const {
    if (plot::MetricaStimata::conosce(carattere))
        return plot::MetricaStimata().larghezza(carattere, altezza, testo);
    const QFont font = fontDisegno(carattere);
    const QString scritto = qt(testo);
    return QFontMetricsF(font).horizontalAdvance(scritto) / font.pixelSize() *
           corpoPerRiga(font, rigaPerAltezza * altezza);
}

}  // namespace korven::device
