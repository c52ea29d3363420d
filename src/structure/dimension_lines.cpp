#include "structure/dimension_lines.hpp"

#include <algorithm>

#include "base/number_text.hpp"
#include "base/translated_texts.hpp"
#include "plot/plot_engine.hpp"
#include "plot/sheet.hpp"

namespace korven::structure {

namespace {

constexpr double altezzaQuote = 0.2;
constexpr double distacco = 0.2;  // of a text from its line, more than what stands out of it
constexpr double distaccoRichiamo = 0.08;
constexpr double mezzoTratto = 0.1;  // of the strokes that end a dimension
constexpr double sporgenza = 0.08;   // of an extension line beyond its dimension

// Between the turned names of the two sides.
constexpr double xSinistra = plot::x0 + 0.6;
constexpr double xDestra = plot::x0 + plot::larghQuadro - 0.6;

void estremo(double x, double y) {
    plot::linea(x - mezzoTratto, y - mezzoTratto, x + mezzoTratto, y + mezzoTratto);
}

double altezzaEntro(double spazio, std::string_view testo) {
    const double larghezza = plot::larghezzaTesto(altezzaQuote, testo);
    if (larghezza <= spazio || larghezza <= 0) return altezzaQuote;
    constexpr double leggibile = 0.1;
    return std::max(altezzaQuote * spazio / larghezza, leggibile);
}

}  // namespace

std::string testoMisura(double centimetri) { return base::testoNumero(centimetri * 10) + " [mm]"; }

std::string testoQuota(std::string_view didascalia, double centimetri) {
    return base::traduttore(didascalia) + " =" + testoMisura(centimetri);
}

void quotaOrizzontale(double x1, double x2, double y, double yOggetto, std::string_view testo) {
    const bool sopra = y > yOggetto;
    const double oltre = sopra ? sporgenza : -sporgenza;
    plot::linea(x1, yOggetto, x1, y + oltre);
    plot::linea(x2, yOggetto, x2, y + oltre);
    plot::linea(x1, y, x2, y);
    estremo(x1, y);
    estremo(x2, y);
    plot::testoCentrato((x1 + x2) / 2, sopra ? y + distacco : y - distacco - altezzaQuote,
                        altezzaQuote, testo);
}

void quotaVerticale(double y1, double y2, double x, double xOggetto, std::string_view testo) {
    const bool aDestra = x > xOggetto;
    const double oltre = aDestra ? sporgenza : -sporgenza;
    plot::linea(xOggetto, y1, x + oltre, y1);
    plot::linea(xOggetto, y2, x + oltre, y2);
    plot::linea(x, y1, x, y2);
    estremo(x, y1);
    estremo(x, y2);
    plot::testoCentrato(aDestra ? x + distacco + altezzaQuote : x - distacco, (y1 + y2) / 2,
                        altezzaQuote, testo, 90);
}

void richiamoASinistra(double xOggetto, double xLibero, double y, std::string_view testo) {
    plot::linea(xSinistra, y, xOggetto, y);
    estremo(xOggetto, y);
    plot::testoDa(xSinistra, y + distaccoRichiamo,
                  altezzaEntro(xLibero - distacco - xSinistra, testo), testo);
}

void richiamoADestra(double xOggetto, double xLibero, double y, std::string_view testo) {
    plot::linea(xDestra, y, xOggetto, y);
    estremo(xOggetto, y);
    plot::testoFinoA(xDestra, y + distaccoRichiamo,
                     altezzaEntro(xDestra - xLibero - distacco, testo), testo);
}

void tacca(double x, double y) { plot::linea(x, y - mezzoTratto, x, y + mezzoTratto); }

}  // namespace korven::structure
