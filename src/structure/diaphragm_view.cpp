#include <algorithm>
#include <cmath>

#include "base/translated_texts.hpp"
#include "plot/sheet.hpp"
#include "structure/dimension_lines.hpp"
#include "structure/section_drawing.hpp"
#include "structure/section_views.hpp"

namespace korven::structure {

namespace {

constexpr double striscia = 200;  // [cm]

// One face of the wall with its row of bars. `verso` leads from the face into the wall: 1 uphill,
// where the face is on the left, -1 downhill.
struct Faccia {
    double x;  ///< of the face on the sheet
    double verso;
    double copriferro, interasse, diametro;  ///< [cm]
    std::string_view lato, didascaliaInterasse;
};

int numeroFerri(double interasse) {
    if (!(interasse > 0)) return 0;
    return static_cast<int>(
        std::min(std::floor(striscia / interasse), static_cast<double>(massimoFerriDisegnati)));
}

// The row stands in the middle of the strip.
double yFerro(const Faccia& faccia, int k) {
    const double primo = -(numeroFerri(faccia.interasse) - 1) / 2.0;
    return yVista + (primo + k) * faccia.interasse * scalaSezione;
}

void richiamo(const Faccia& faccia, double xOggetto, double y, std::string_view testo) {
    if (faccia.verso > 0)
        richiamoASinistra(xOggetto, faccia.x, y, testo);
    else
        richiamoADestra(xOggetto, faccia.x, y, testo);
}

std::string conLato(std::string_view didascalia, const Faccia& faccia, double centimetri) {
    return base::traduttore(didascalia) + ' ' + base::traduttore(faccia.lato) + " =" +
           testoMisura(centimetri);
}

void quotaInterasse(const Faccia& faccia) {
    const std::string testo = testoQuota(faccia.didascaliaInterasse, faccia.interasse);
    const int n = numeroFerri(faccia.interasse);
    if (n < 2) return richiamo(faccia, faccia.x, yVista, testo);
    const int k = n / 2 - 1;
    constexpr double distanza = 0.8;
    quotaVerticale(yFerro(faccia, k), yFerro(faccia, k + 1), faccia.x - faccia.verso * distanza,
                   faccia.x, testo);
}

void disegnaFaccia(const Faccia& faccia) {
    const double raggio = faccia.diametro / 2 * scalaSezione;
    const double bordoFerri = faccia.x + faccia.verso * faccia.copriferro * scalaSezione;
    const double xFerri = bordoFerri + faccia.verso * raggio;
    const int n = numeroFerri(faccia.interasse);
    for (int k = 0; k < n; ++k) plot::disegnaCerchio(xFerri, yFerro(faccia, k), raggio);

    constexpr double mezzaStriscia = striscia / 2 * scalaSezione;
    const double yAlto = n > 0 ? yFerro(faccia, n - 1) : yVista + mezzaStriscia - 0.5;
    richiamo(faccia, xFerri, yAlto, conLato("Diametro ferri", faccia, faccia.diametro));
    quotaInterasse(faccia);
    // Between the lower edge and the first bar, so that the strokes stand clear of the marks.
    const double yBasso = n > 1 ? (yFerro(faccia, 0) + yFerro(faccia, 1)) / 2 : yVista - 3;
    richiamo(faccia, bordoFerri, yBasso, conLato("Copriferro", faccia, faccia.copriferro));
    tacca(faccia.x, yBasso);
    tacca(bordoFerri, yBasso);
}

}  // namespace

void vistaDiaframma(const project::Sezione& s) {
    const double mezza = s.spessoreDiaframma / 2 * scalaSezione;
    const double sinistra = xVista - mezza, destra = xVista + mezza;
    constexpr double mezzaStriscia = striscia / 2 * scalaSezione;
    constexpr double sotto = yVista - mezzaStriscia, sopra = yVista + mezzaStriscia;
    if (s.spessoreDiaframma > 0) {
        plot::linea(sinistra, sotto, destra, sotto);
        plot::linea(destra, sotto, destra, sopra);
        plot::linea(destra, sopra, sinistra, sopra);
        plot::linea(sinistra, sopra, sinistra, sotto);
    }
    quotaOrizzontale(sinistra, destra, sopra + 0.6, sopra + 0.1, testoMisura(s.spessoreDiaframma));
    disegnaFaccia({sinistra, 1, s.copriferroMonte, s.interasseMonte, s.diametroMonte, "LATO MONTE",
                   "Interasse monte"});
    disegnaFaccia({destra, -1, s.copriferroValle, s.interasseValle, s.diametroValle, "LATO VALLE",
                   "Interasse valle"});
}

}  // namespace korven::structure
